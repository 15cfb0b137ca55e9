#pragma once

#include <charconv>
#include <optional>
#include <string_view>

namespace grapplemont::ui {

/// The number that the whole text is; nothing for any other text.
template <class Number = int>
std::optional<Number> AsNumber(std::string_view text) {
  Number number = 0;
  const char* const last = text.data() + text.size();
  const auto [end, fault] = std::from_chars(text.data(), last, number);
  return fault == std::errc() && end == last ? std::optional(number) : std::nullopt;
}

}  // namespace grapplemont::ui
