#pragma once

#include <algorithm>
#include <cctype>
#include <string>

#include "report/line.h"

// Whether a report holds a line of a voice, whatever stands in its slots.

namespace grapplemont::test {

/// Short names of who wins and who loses; empty where it does not matter.
struct Result {
  std::string Winner, Loser;
};

inline constexpr std::size_t kLongestName = 80;

inline bool CouldBeName(char part, std::string_view words, const Result& result) {
  if (!words.ends_with("x") && !words.ends_with("team")) return false;  // everybody's name ends so
  const bool winners = part == 'w' || part == 'W', losers = part == 'l' || part == 'L';
  const auto names = [&](const std::string& name) { return words.find(name) != words.npos; };
  if (result.Winner.empty() || (!winners && !losers)) return true;
  return names(result.Winner) == winners && names(result.Loser) == losers;
}

/// Whether a slot could have become this.
inline bool CouldBe(std::string_view slot, std::string_view words, const Result& result) {
  const Hole hole = ReadHole(slot);
  if (hole.Is == Hole::Word || hole.Is == Hole::ThingWord) {
    const Sexed& row = kSexed[hole.Number];
    return words == row.Man || words == row.Woman || words == row.Several ||
           (!words.empty() &&
            std::string(1, static_cast<char>(words[0] + 32)) + std::string(words.substr(1)) ==
                row.Man);
  }
  if (hole.Is != Hole::Thing) return CouldBeName(hole.Part, words, result);
  if (hole.Number == static_cast<int>(Item::Tally))
    return !words.empty() && std::isdigit(words.back());
  for (const char* thing : {"Crown", "Titles", "Wrestling", "Lights", "briefcase"})
    if (words.ends_with(thing)) return true;
  return false;
}

inline bool Matches(std::string_view line, std::string_view text, const Result& result) {
  if (line.empty()) return true;
  if (line[0] != '{')
    return !text.empty() && line[0] == text[0] && Matches(line.substr(1), text.substr(1), result);
  const auto close = line.find('}');
  const std::string_view slot = line.substr(1, close - 1), rest = line.substr(close + 1);
  for (std::size_t size = 0; size <= std::min(kLongestName, text.size()); ++size) {
    if (CouldBe(slot, text.substr(0, size), result) && Matches(rest, text.substr(size), result))
      return true;
    if (size < text.size() && std::string_view(".!?:").find(text[size]) != std::string_view::npos)
      return false;
  }
  return false;
}

/// Whether the text holds the line, with names of the result in their places.
inline bool Holds(const std::string& text, std::string_view line, const Result& result) {
  while (line.ends_with(' ')) line.remove_suffix(1);
  for (std::size_t at = 0; at < text.size(); ++at)
    if ((at == 0 || text[at - 1] == ' ' || text[at - 1] == '\n') &&
        Matches(line, std::string_view(text).substr(at), result))
      return true;
  return false;
}

}  // namespace grapplemont::test
