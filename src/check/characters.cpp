#include "check/characters.h"

#include <algorithm>

namespace check {

namespace {

constexpr std::int64_t kLongestQuote = 40;  // in characters

struct Lead {
  std::size_t size;             ///< of the character, in bytes; 0 for a byte that begins none
  unsigned char second_low{};   ///< the second byte's range, if there is one: narrower than 80 to
  unsigned char second_high{};  ///< BF where the wider one would let in what is no character
};

constexpr Lead LeadOf(unsigned char byte) {
  if (byte < 0x80) return {1};
  if (byte < 0xC2) return {0};
  if (byte < 0xE0) return {2, 0x80, 0xBF};
  if (byte == 0xE0) return {3, 0xA0, 0xBF};
  if (byte == 0xED) return {3, 0x80, 0x9F};
  if (byte < 0xF0) return {3, 0x80, 0xBF};
  if (byte == 0xF0) return {4, 0x90, 0xBF};
  if (byte < 0xF4) return {4, 0x80, 0xBF};
  if (byte == 0xF4) return {4, 0x80, 0x8F};
  return {0};
}

/// The controls of ASCII and of the page behind it, and the no-break space at that page's end.
bool IsUnseen(std::string_view character) {
  const auto last = static_cast<unsigned char>(character.back());
  if (character.size() == 1) return last < 0x20 || last == 0x7F;
  return character.size() == 2 && character.front() == '\xC2' && last <= 0xA0;
}

}  // namespace

std::size_t CharacterSize(std::string_view text) {
  if (text.empty()) return 0;
  const auto byte = [text](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const Lead lead = LeadOf(byte(0));
  if (lead.size < 2) return lead.size;
  if (text.size() < lead.size) return 0;
  if (byte(1) < lead.second_low || byte(1) > lead.second_high) return 0;
  for (std::size_t at = 2; at < lead.size; ++at) {
    if (byte(at) < 0x80 || byte(at) > 0xBF) return 0;
  }
  return lead.size;
}

std::int64_t CountCharacters(std::string_view text) {
  std::int64_t count = 0;
  for (; !text.empty(); ++count) text.remove_prefix(std::max<std::size_t>(CharacterSize(text), 1));
  return count;
}

std::size_t FindNoText(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t size = CharacterSize(text.substr(at));
    if (size == 0 || text[at] == '\0') return at;
    at += size;
  }
  return text.npos;
}

std::string Escaped(char byte) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  const auto value = static_cast<unsigned char>(byte);
  return {'\\', 'x', kDigits[value / 16U], kDigits[value % 16U]};
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (std::int64_t count = 0; !text.empty() && count < kLongestQuote; ++count) {
    const std::size_t size = CharacterSize(text);
    const std::string_view character = text.substr(0, std::max<std::size_t>(size, 1));
    if (size == 0 || IsUnseen(character)) {
      for (const char byte : character) quoted += Escaped(byte);
    } else {
      quoted += character;
    }
    text.remove_prefix(character.size());
  }
  return quoted + (text.empty() ? "\"" : "\"...");
}

}  // namespace check
