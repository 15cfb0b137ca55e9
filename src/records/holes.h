#pragma once

#include <optional>
#include <string>
#include <string_view>

// Texts with slots in braces: "{who} has left {house}." Reports, meeting, news, rumours, fans and
// the sheet's phrases all are read by this; each knows what its slots mean.

namespace grapplemont {

/// Hands a text over piece by piece: `words` gets what stands between slots, `slot` what stands
/// inside a pair of braces. A brace that is not closed is a letter like any other.
template <class Words, class Slot>
void ReadHoles(std::string_view text, Words words, Slot slot) {
  while (!text.empty()) {
    const auto open = text.find('{');
    const auto close = open == std::string_view::npos ? open : text.find('}', open);
    if (close == std::string_view::npos) {
      words(text);
      return;
    }
    words(text.substr(0, open));
    slot(text.substr(open + 1, close - open - 1));
    text.remove_prefix(close + 1);
  }
}

/// The text with `fill(slot)` in place of each slot.
template <class Fill>
std::string FillHoles(std::string_view text, Fill fill) {
  std::string filled;
  ReadHoles(
      text, [&](std::string_view words) { filled += words; },
      [&](std::string_view slot) { filled += fill(slot); });
  return filled;
}

/// A slot that chooses between two forms by a count: "n:contract ends|contracts end" says the count
/// too, "n?has|have" only the word.
struct CountedSlot {
  std::string_view Name, One, Many;
  bool SaysCount = true;
};

/// Nothing where the slot is none of that kind.
inline std::optional<CountedSlot> ReadCounted(std::string_view slot) {
  const auto name = slot.find_first_of(":?"), bar = slot.find('|');
  if (name == slot.npos || bar == slot.npos || bar < name) return std::nullopt;
  return CountedSlot{slot.substr(0, name), slot.substr(name + 1, bar - name - 1),
                     slot.substr(bar + 1), slot[name] == ':'};
}

}  // namespace grapplemont
