#include "toolkit/qt/outline_style.h"

#include <QAbstractItemView>
#include <QStyleOption>

#include "toolkit/qt/outline.h"

namespace toolkit::qt {

namespace {

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::WindowText).lightness() >=
         palette.color(QPalette::Window).lightness();
}

void DrawOnDark(const QStyleOption& option, QPainter& painter) {
  if (!IsDark(option.palette)) return;
  QColor color = option.palette.color(QPalette::WindowText);
  color.setAlphaF(0.6F);
  DrawOutline(painter, option.rect, color);
}

/// Qt's own lines lie beside the pixels of a fractional scale, where what the list shows covers
/// some of them.
void DrawListFrame(const QStyleOption& option, QPainter& painter) {
  painter.fillRect(option.rect, option.palette.base());
  if (IsDark(option.palette)) return DrawOnDark(option, painter);
  DrawOutline(painter, option.rect, option.palette.color(QPalette::Window).darker(130));
}

}  // namespace

void OutlineStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
  if (element == PE_Frame && qobject_cast<const QAbstractItemView*>(widget) != nullptr) {
    return DrawListFrame(*option, *painter);
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element == PE_IndicatorCheckBox) DrawOnDark(*option, *painter);
  if (element == PE_FrameFocusRect) {
    DrawOutline(*painter, option->rect, option->palette.color(QPalette::Highlight));
  }
}

void OutlineStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  const bool focused = (option->state & State_HasFocus) != 0;
  if (control == CC_ComboBox && !focused) DrawOnDark(*option, *painter);
}

}  // namespace toolkit::qt
