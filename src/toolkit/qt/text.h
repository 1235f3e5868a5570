#pragma once

#include <QString>

#include "framework/values/string.h"

namespace toolkit::qt {

/// The text as the screen wants it; bytes that are no UTF-8 become the replacement character.
inline QString Shown(const framework::String& text) {
  const std::string_view bytes = text.View();
  return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

/// The same for a place where an ampersand would mark an accelerator letter.
inline QString ShownPlain(const framework::String& text) {
  return Shown(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace toolkit::qt
