#include "toolkit/qt/outline_style.h"

#include <QPainter>
#include <QStyleOption>

namespace toolkit::qt {

namespace {

void DrawOutline(const QStyleOption& option, QPainter& painter, const QColor& color) {
  painter.save();
  painter.setPen(color);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
  painter.restore();
}

void DrawOnDark(const QStyleOption& option, QPainter& painter) {
  QColor color = option.palette.color(QPalette::WindowText);
  if (color.lightness() < option.palette.color(QPalette::Window).lightness()) return;
  color.setAlphaF(0.6F);
  DrawOutline(option, painter, color);
}

}  // namespace

void OutlineStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element == PE_IndicatorCheckBox || element == PE_Frame) DrawOnDark(*option, *painter);
  if (element == PE_FrameFocusRect) {
    DrawOutline(*option, *painter, option->palette.color(QPalette::Highlight));
  }
}

void OutlineStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  const bool focused = (option->state & State_HasFocus) != 0;
  if (control == CC_ComboBox && !focused) DrawOnDark(*option, *painter);
}

}  // namespace toolkit::qt
