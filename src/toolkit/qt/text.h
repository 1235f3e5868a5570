#pragma once

#include <QString>

#include "framework/values/string.h"

namespace toolkit::qt {

/// The text as the screen wants it; bytes that are no UTF-8 become the replacement character.
inline QString Shown(const framework::String& text) {
  const std::string_view bytes = text.View();
  return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

/// The same of no more than so many bytes at the text's beginning, at least 3; no character is cut.
inline QString Shown(const framework::String& text, std::size_t most) {
  const std::string_view bytes = text.View();
  if (bytes.size() <= most) return Shown(text);
  const auto goes_on = [&](std::size_t i) { return (bytes[i] & 0xC0) == 0x80; };
  // A character has up to three bytes behind its first. Where there are more, they are no text.
  std::size_t end = most;
  while (most - end < 3 && goes_on(end)) --end;
  return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(end));
}

/// The same for a place where an ampersand would mark an accelerator letter.
inline QString ShownPlain(const framework::String& text) {
  return Shown(text).replace(QLatin1Char('&'), QLatin1String("&&"));
}

}  // namespace toolkit::qt
