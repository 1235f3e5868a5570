#include "toolkit/qt/appearance.h"

#include <QApplication>
#include <QEvent>
#include <QStyle>

#include "framework/notifications/local_object_runtime.h"
#include "framework/notifications/notifications.h"
#include "toolkit/qt/guarded.h"

namespace toolkit::qt {

namespace {

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() <
         palette.color(QPalette::WindowText).lightness();
}

QPalette DarkPalette() {
  // Boxes and lists stand out by being lighter: the style draws their outlines darker than the
  // ground, and a green that is made for paper wants the ground as dark as it can be.
  const QColor window(0x1e, 0x1e, 0x1e);
  const QColor base(0x38, 0x38, 0x38);
  const QColor text(0xee, 0xee, 0xee);
  const QColor faint(0x8c, 0x8c, 0x8c);
  QPalette palette(base, window);
  for (const auto role : {QPalette::Base, QPalette::ToolTipBase}) palette.setColor(role, base);
  for (const auto role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
    palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, role, faint);
  }
  // Those that a palette leaves to the theme, which may be a light one.
  palette.setColor(QPalette::Highlight, QColor(0x30, 0x8c, 0xc6));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

void SetAccent(QPalette& palette, const QColor& accent) {
  palette.setColor(QPalette::Highlight, accent);
  palette.setColor(QPalette::HighlightedText, qGray(accent.rgb()) > 160 ? Qt::black : Qt::white);
}

}  // namespace

Appearance::Appearance(QObject* application)
    : QObject(application),
      first_(QApplication::palette()),
      style_began_dark_(IsDark(QApplication::style()->standardPalette())),
      told_(first_) {
  application->installEventFilter(this);
  Connect(&portal_, &SettingsPortal::Changed, this, [this] { FollowDesktop(); });
}

bool Appearance::eventFilter(QObject* watched, QEvent* event) {
  framework::_RunEvent([this, type = event->type()] {
    // A change may take several steps; what comes of it is told once.
    if (type == QEvent::ApplicationPaletteChange) RunLater(this, [this] { TellOfChange(); });
    // The platform's theme may tell of a flip before the portal does, after it, or alone.
    if (type == QEvent::ThemeChange) RunLater(this, [this] { FollowDesktop(); });
  });
  return QObject::eventFilter(watched, event);
}

QPalette Appearance::OwnOfQt() const {
  // An empty palette is the one that Qt has from the desktop or its style. With a theme such as
  // gtk3, Qt 6.4 has for ever the one of the start, and only the style knows that another is
  // wanted.
  QApplication::setPalette(QPalette());
  const QPalette own = QApplication::palette();
  const QPalette of_style = QApplication::style()->standardPalette();
  return own == first_ && IsDark(of_style) != style_began_dark_ ? of_style : own;
}

void Appearance::FollowDesktop() {
  QPalette palette = OwnOfQt();
  if (portal_.Dark() && !IsDark(palette)) palette = DarkPalette();
  if (portal_.Accent()) SetAccent(palette, *portal_.Accent());
  if (palette != QApplication::palette()) QApplication::setPalette(palette);
}

void Appearance::TellOfChange() {
  const QPalette now = QApplication::palette();
  if (now == told_) return;
  // A change of the scheme changes all colours; what else came with it is no news of its own.
  const bool theme = IsDark(now) != IsDark(told_);
  told_ = now;
  using namespace framework::_MacOSDistributedNotifications;
  framework::_PostNotification(theme ? kThemeChanged : kColorsChanged);
}

}  // namespace toolkit::qt
