#include "records/fields/charset.h"

#include <algorithm>
#include <array>

namespace grapplemont {

namespace {

// What the bytes 0x80 to 0x9F stand for.
constexpr std::array<char32_t, 32> kHigh = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char32_t LetterOf(unsigned char byte) {
  return byte >= 0x80 && byte <= 0x9F ? kHigh[byte - 0x80u] : byte;
}

std::optional<char> ByteOf(char32_t letter) {
  if (letter < 0x80 || (letter >= 0xA0 && letter <= 0xFF)) return static_cast<char>(letter);
  const auto found = std::find(kHigh.begin(), kHigh.end(), letter);
  if (found == kHigh.end()) return std::nullopt;
  return static_cast<char>(0x80 + (found - kHigh.begin()));
}

/// Takes one letter off the front and says how many bytes it had; a broken one has one byte and is
/// no letter.
struct Taken {
  std::optional<char32_t> Letter;
  std::size_t Length = 1;
};

Taken TakeLetter(std::string_view utf8) {
  const auto at = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  if (at(0) < 0x80) return {at(0), 1};
  const std::size_t length = at(0) >= 0xF0 ? 4 : at(0) >= 0xE0 ? 3 : at(0) >= 0xC2 ? 2 : 0;
  if (length == 0 || at(0) > 0xF4 || utf8.size() < length) return {};
  char32_t letter = at(0) & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((at(i) & 0xC0u) != 0x80u) return {};
    letter = (letter << 6) | (at(i) & 0x3Fu);
  }
  const char32_t least = length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
  if (letter < least || letter > 0x10FFFF || (letter >= 0xD800 && letter < 0xE000)) return {};
  return {letter, length};
}

}  // namespace

std::string ToUtf8(std::string_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (const char c : text) {
    const char32_t letter = LetterOf(static_cast<unsigned char>(c));
    if (letter < 0x80) {
      utf8 += static_cast<char>(letter);
    } else if (letter < 0x800) {
      utf8 += static_cast<char>(0xC0 | (letter >> 6));
      utf8 += static_cast<char>(0x80 | (letter & 0x3F));
    } else {
      utf8 += static_cast<char>(0xE0 | (letter >> 12));
      utf8 += static_cast<char>(0x80 | ((letter >> 6) & 0x3F));
      utf8 += static_cast<char>(0x80 | (letter & 0x3F));
    }
  }
  return utf8;
}

std::optional<std::string> FromUtf8(std::string_view utf8) {
  std::string text;
  while (!utf8.empty()) {
    const Taken taken = TakeLetter(utf8);
    const auto byte = taken.Letter ? ByteOf(*taken.Letter) : std::nullopt;
    if (!byte) return std::nullopt;
    text += *byte;
    utf8.remove_prefix(taken.Length);
  }
  return text;
}

std::string FirstForeignLetter(std::string_view utf8) {
  while (!utf8.empty()) {
    const Taken taken = TakeLetter(utf8);
    if (!taken.Letter) return "?";
    if (!ByteOf(*taken.Letter)) return std::string(utf8.substr(0, taken.Length));
    utf8.remove_prefix(taken.Length);
  }
  return {};
}

std::string ForScreen(std::string_view bytes) {
  std::string text;
  while (!bytes.empty()) {
    const Taken taken = TakeLetter(bytes);
    const char letter = taken.Letter ? ByteOf(*taken.Letter).value_or('?') : bytes[0];
    text += IsControl(letter) ? '?' : letter;
    bytes.remove_prefix(taken.Length);
  }
  return text;
}

std::string ValidUtf8(std::string_view bytes) {
  std::string text;
  while (!bytes.empty()) {
    const Taken taken = TakeLetter(bytes);
    const std::string_view letter = bytes.substr(0, taken.Length);
    text += taken.Letter ? std::string(letter) : ToUtf8(letter);
    bytes.remove_prefix(taken.Length);
  }
  return text;
}

bool IsControl(char letter) {
  constexpr std::string_view kOpen = "\x7F\x81\x8D\x8F\x90\x9D";
  return static_cast<unsigned char>(letter) < 0x20 || kOpen.find(letter) != std::string_view::npos;
}

}  // namespace grapplemont
