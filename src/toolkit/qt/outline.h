#pragma once

#include <QPainter>

namespace toolkit::qt {

/// Draws a line around the rectangle, inside it, along the pixels of the screen: at a fractional
/// scale too its four sides are there, and of one thickness.
void DrawOutline(QPainter& painter, const QRect& rect, const QColor& color);

}  // namespace toolkit::qt
