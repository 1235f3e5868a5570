#include "toolkit/qt/tool_tip.h"

#include <QTextDocument>
#include <QToolTip>

namespace toolkit::qt {

namespace {

/// A tool tip wraps between words alone: this lets it break a word that is longer than a line.
QString Breakable(const QString& text) {
  constexpr int kMost = 40;
  QString breakable;
  int together = 0;
  for (const QChar letter : text) {
    const bool begins = !letter.isLowSurrogate() && !letter.isMark();
    together = letter.isSpace() ? 0 : together + 1;
    if (together > kMost && begins) {
      breakable += QChar(0x200B);  // a space of no width
      together = 1;
    }
    breakable += letter;
  }
  return breakable;
}

}  // namespace

QString ToolTip(const QString& text) {
  if (text.isEmpty()) return {};
  // It wraps only as rich text, which would fold the text's blanks.
  return QStringLiteral("<p style=\"white-space: pre-wrap\">%1</p>")
      .arg(Breakable(text).toHtmlEscaped());
}

QString ToolTipWithin(const QScreen& screen, QString text) {
  constexpr int kFrame = 20;
  constexpr int kLine = 40;
  const int most = screen.availableSize().height() - kFrame;
  for (;;) {
    QString tip = ToolTip(text);
    QTextDocument page;
    page.setDefaultFont(QToolTip::font());
    page.setHtml(tip);
    page.adjustSize();
    const double height = page.size().height();
    if (height <= most || text.size() < kLine) return tip;
    text = text.left(static_cast<int>(0.9 * most / height * static_cast<double>(text.size())));
    if (text.back().isHighSurrogate()) text.chop(1);
    text += QChar(0x2026);
  }
}

}  // namespace toolkit::qt
