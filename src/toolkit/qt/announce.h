#pragma once

#include <QString>
#include <QWidget>

namespace toolkit::qt {

/// Has a screen reader speak up: the words are told once, of the control of the window that has the
/// focus. Nothing keeps them.
void Announce(const QWidget& window, const QString& words);

}  // namespace toolkit::qt
