#pragma once

#include <QProxyStyle>

namespace toolkit::qt {

/// Qt's own style, which takes the outlines of boxes, lists and menus from the ground, only darker:
/// on a dark ground they vanish. There this style draws them in the colour of the text. On any
/// ground it draws a line around the caption of the box that has the focus.
class OutlineStyle final : public QProxyStyle {
 public:
  OutlineStyle() : QProxyStyle(kBase) {}

  static constexpr const char* kBase = "fusion";

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                          QPainter* painter, const QWidget* widget) const override;
};

}  // namespace toolkit::qt
