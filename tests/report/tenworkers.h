#pragma once

#include <cctype>
#include <string>
#include <string_view>

#include "records/segments.h"
#include "support/smallworld.h"

// A world for reports of every kind of match.

namespace grapplemont::test {

/// Eight to fight and two to run in, all named of one letter: "Aoe Aax" to "Joe Jjx".
inline SmallWorld Ten(bool men = true) {
  SmallWorld small;
  small.Promotion("CWA");
  for (char letter = 'A'; letter < 'K'; ++letter) {
    const std::string first(1, letter), last = first + static_cast<char>(letter + 'a' - 'A') + "x";
    small.Worker(first + "oe " + last, [&](Worker& w) {
      w.ShortName = last;
      w.Gender = men;
      w.Finisher1 = "Harbor Lights";
    });
  }
  return small;
}

inline Segment Match(int style, int type = 1) {
  Segment segment = EmptySegment();
  segment.Kind = kMatch;
  segment.Style = style;
  segment.MatchType = type;
  for (int place = 1; place <= 8; ++place)
    segment.Worker[static_cast<std::size_t>(place - 1)] = place;
  segment.Winner = 1;
  segment.Loser = style == kSingles || style == kThreeWay || style == kFourWay ? 2
                  : style == kTag || style == kThreeTeams                      ? 3
                                                                               : 5;
  segment.Finish = FinishesOf(style).empty() ? 0 : kClean;
  return segment;
}

/// Whether it has this word, in this case of letters.
inline bool HasWord(const std::string& text, std::string_view word) {
  const auto isLetter = [&](std::size_t at) {
    return at < text.size() && std::isalpha(static_cast<unsigned char>(text[at])) != 0;
  };
  for (auto at = text.find(word); at != std::string::npos; at = text.find(word, at + 1))
    if (!(at > 0 && isLetter(at - 1)) && !isLetter(at + word.size())) return true;
  return false;
}

}  // namespace grapplemont::test
