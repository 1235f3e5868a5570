#include "toolkit/qt/outline.h"

#include <algorithm>

namespace toolkit::qt {

void DrawOutline(QPainter& painter, const QRect& rect, const QColor& color) {
  const QTransform to_pixels = painter.deviceTransform();
  const QRectF exact = to_pixels.mapRect(QRectF(rect));
  const QRect outer(QPoint(qRound(exact.left()), qRound(exact.top())),
                    QPoint(qRound(exact.right()) - 1, qRound(exact.bottom()) - 1));
  // What lies inside begins a point further on, which is never less than this.
  const int line = std::max(1, static_cast<int>(to_pixels.m11()));
  const QRect inner = outer.adjusted(line, line, -line, -line);
  painter.save();
  painter.setWorldTransform(to_pixels.inverted() * painter.worldTransform());
  for (const QRect& side : QRegion(outer) - inner) painter.fillRect(side, color);
  painter.restore();
}

}  // namespace toolkit::qt
