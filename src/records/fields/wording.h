#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace grapplemont {

/// "1 month", "12 months"; `many` is for words that do more than take an s.
std::string Counted(long long count, std::string_view one, std::string_view many = {});
/// "Ann, Bea, Cy".
std::string Joined(const std::vector<std::string>& parts, std::string_view between = ", ");

/// "; did you mean CWA?", "; the nearest is CWA" where it takes a stretch, or nothing without
/// candidates. Meant is the one with the fewest letters put in, left out, exchanged or swapped with
/// their neighbour, small and capital letters all but alike; the first among equals.
std::string DidYouMean(std::string_view name, const std::vector<std::string_view>& candidates);

// Texts with slots in braces: "{who} has left {house}." Reports, meeting, news, rumours, fans and
// the sheet's phrases all are read by this; each knows what its slots mean.

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

// Alternatives in square brackets: "[Cover|Leg hooked], [two|no three]." The first of all brackets
// belong together, the second of all and so on; where one has fewer, it begins again. They do not
// stand inside each other.

/// In how many ways a line can be said: 1 without brackets.
int WaysToSay(std::string_view line);
/// One of them, from 0; past the last the first comes again.
std::string SaidIn(std::string_view line, int way);
/// What is wrong with the brackets of a line; empty for nothing.
std::string WhyNoWays(std::string_view line);

/// A slot that chooses between two forms by a count: "n:contract ends|contracts end" says the count
/// too, "n?has|have" only the word.
struct CountedSlot {
  std::string_view Name, One, Many;
  bool SaysCount = true;
};

/// Nothing where the slot is not of that kind.
inline std::optional<CountedSlot> ReadCounted(std::string_view slot) {
  const auto name = slot.find_first_of(":?"), bar = slot.find('|');
  if (name == slot.npos || bar == slot.npos || bar < name) return std::nullopt;
  return CountedSlot{slot.substr(0, name), slot.substr(name + 1, bar - name - 1),
                     slot.substr(bar + 1), slot[name] == ':'};
}

// The texts of words/, as the build puts them into the program.

/// The lines under one heading. The numbers say which, as its room counts them.
struct Block {
  int Heading = 0;
  int Band = 0;
  std::span<const std::string_view> Lines;
};
/// The headings of one file.
using Blocks = std::span<const Block>;

/// The lines of a heading; empty for one that does not exist.
inline std::span<const std::string_view> LinesUnder(Blocks blocks, int heading) {
  for (const Block& block : blocks)
    if (block.Heading == heading) return block.Lines;
  return {};
}

}  // namespace grapplemont
