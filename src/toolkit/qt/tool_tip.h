#pragma once

#include <QScreen>
#include <QString>

namespace toolkit::qt {

/// The text, plain, as a tool tip that wraps and keeps the text's blanks. A word that is longer
/// than a line is broken. Nothing for an empty text.
QString ToolTip(const QString& text);

/// The same, no higher than the screen: of a text that has no room there, the beginning is told,
/// and an ellipsis behind it.
QString ToolTipWithin(const QScreen& screen, QString text);

}  // namespace toolkit::qt
