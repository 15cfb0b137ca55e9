#pragma once

#include <array>
#include <string_view>

// A line of prose: a text with slots in braces, checked by the build where words/ has it.
//
//   "{a} counters a backdrop with a kick to {d:his} jaw. "
//
// A slot names a part of the cast by its letter (see cast.h) and, behind a colon, what to say of
// it; a form of address, an item of the report ("{title}", "{title:is}"), or a condition:
// "{?o}...{.}" is said only when somebody plays o, "{!o}...{.}" only when nobody does.

namespace grapplemont {

/// Letters of the parts that a cast may have.
inline constexpr std::string_view kParts = "adbwlkj12345678opqrtvumcWLFSXYOQGTVUZC";

/// What a line may say of itself in angle brackets before its text, "<floor down> {a} drops an
/// elbow on {d}. ": first what it leaves {d} in, then what has to be the case for it to fit.
enum LineTag : unsigned {
  kDownTag = 1,      // {d} lies on the mat behind it
  kHoldTag = 2,      // {a} has a hold on {d} behind it
  kFloorTag = 4,     // {d} lies on the mat already
  kHeldTag = 8,      // a hold is on; a Counter or a PutDown without it needs that none is
  kAnywayTag = 16,   // the same, whether a hold is on or not
  kTroubleTag = 32,  // {a} has been in trouble
  kWornTag = 64,     // {d} has taken a good deal
  kPinTag = 128,     // the bout may end in a count
  kLowTag = 256,     // the match is rated low, in the middle, high: one of those that it names
  kMidTag = 512,
  kHighTag = 1024,
  kLegTag = 2048,  // what of {d} it hurts
  kArmTag = 4096,
  kBackTag = 8192,
  kUpTag = 16384,     // {d} stands behind it: no hold is on, and no count comes next; of a
                      // Counter: {a} does, whom no hold has on the mat
  kCleanTag = 32768,  // the match was won fairly, and nobody strikes behind the bell
  kColdTag = 65536,   // the crowd is rated low, in the middle, high: one of those that it names
  kWarmTag = 131072,
  kHotTag = 262144,
  kMatTag = 524288,     // a hold has {d} on the mat
  kLongTag = 1048576,   // more was told than the few steps of a squash
  kGreatTag = 2097152,  // the match is rated above 90
  kTiredTag = 4194304   // {a} has taken a good deal
};
inline constexpr unsigned kLevelTags = kLowTag | kMidTag | kHighTag;
inline constexpr std::string_view kLineTags[] = {
    "down", "hold", "floor", "held", "anyway", "trouble", "worn", "pin",
    "low",  "mid",  "high",  "leg",  "arm",    "back",    "up",   "clean",
    "cold", "warm", "hot",   "mat",  "long",   "great",   "tired"};

/// What a line is wished to be where several would do.
enum class LineWish { Any, Short, Long };

struct TaggedLine {
  unsigned Tags = 0;
  std::string_view Text;  // without its tags
  bool Sound = true;      // all tags are known
  constexpr bool Is(LineTag tag) const { return (Tags & tag) != 0; }
};

/// A line of words/ apart from its tags.
constexpr TaggedLine ReadTags(std::string_view line) {
  const auto end = line.find("> ");
  if (line.empty() || line[0] != '<' || end == std::string_view::npos) return {0, line};
  TaggedLine read{0, line.substr(end + 2)};
  for (std::string_view rest = line.substr(1, end - 1); !rest.empty();) {
    const std::string_view word = rest.substr(0, rest.find(' '));
    rest.remove_prefix(word.size() == rest.size() ? word.size() : word.size() + 1);
    unsigned tag = 1, found = 0;
    for (const std::string_view known : kLineTags) {
      if (known == word) found = tag;
      tag <<= 1;
    }
    read.Tags |= found;
    read.Sound &= found != 0;
  }
  return read;
}

/// What a slot may say of a part instead of its name: of a man, a woman, several.
struct Sexed {
  std::string_view Key, Man, Woman, Several;
};
inline constexpr Sexed kSexed[] = {
    {"he", "he", "she", "they"},
    {"him", "him", "her", "them"},
    {"his", "his", "her", "their"},
    {"hers", "his", "hers", "theirs"},
    {"himself", "himself", "herself", "themselves"},
    {"man", "man", "woman", "team"},
    {"s", "s", "s", ""},
    {"es", "es", "es", ""},
    {"ies", "ies", "ies", "y"},
    {"is", "is", "is", "are"},
    {"was", "was", "was", "were"},
    {"has", "has", "has", "have"},
    {"does", "does", "does", "do"},
    {"it", "it", "it", "them"},
};

/// What a report may hold beside its people.
enum class Item {
  Title,
  Prize,
  No,
  Tally,
  Finisher,
  Promotion,
  Left,
  Turn,
  Feud,
  Count,
  Nth,
  When,
  Since,
  Face,  // only in conditions: what a turn that came off has made of somebody
  Heel,
  Tweener
};
inline constexpr std::string_view kItems[] = {
    "title", "prize", "no",  "tally", "finisher", "promotion", "left", "turn",
    "feud",  "count", "nth", "when",  "since",    "face",      "heel", "tweener"};

struct Hole {
  enum Kind { Bad, Name, Full, Short, Members, Word, Thing, ThingWord, If, IfNot, End };
  Kind Is = Bad;
  char Part = 0;   // of a name, a word, a condition on a part
  int Number = 0;  // row of kSexed; Item of a thing or of a condition without a part
  int Of = 0;      // Item of a thing's word
};

namespace detail {

template <class Rows, class Read>
constexpr int RowOf(const Rows& rows, std::string_view key, Read read) {
  int number = 0;
  for (const auto& row : rows) {
    if (read(row) == key) return number;
    ++number;
  }
  return -1;
}

constexpr bool IsPart(std::string_view text) {
  return text.size() == 1 && kParts.find(text[0]) != std::string_view::npos;
}

constexpr Hole ReadThing(Hole::Kind kind, std::string_view text) {
  if (kind != Hole::Thing && IsPart(text)) return {kind, text[0], 0};
  const int item = RowOf(kItems, text, [](std::string_view key) { return key; });
  return item < 0 ? Hole{} : Hole{kind, 0, item};
}

constexpr Hole ReadForm(char part, std::string_view form) {
  if (form == "full") return {Hole::Full, part, 0};
  if (form == "short") return {Hole::Short, part, 0};
  if (form == "members") return {Hole::Members, part, 0};
  const int word = RowOf(kSexed, form, [](const Sexed& row) { return row.Key; });
  return word < 0 ? Hole{} : Hole{Hole::Word, part, word};
}

/// "title:is", which goes by whether the name means one or several.
constexpr Hole ReadThingWord(std::string_view text) {
  const auto colon = text.find(':');
  const Hole thing = ReadThing(Hole::ThingWord, text.substr(0, colon));
  if (thing.Is == Hole::Bad || colon == std::string_view::npos) return {};
  const std::string_view form = text.substr(colon + 1);
  const int word = RowOf(kSexed, form, [](const Sexed& row) { return row.Key; });
  return word < 0 ? Hole{} : Hole{Hole::ThingWord, 0, word, thing.Number};
}

}  // namespace detail

/// What stands between two braces; Bad for a slot that does not exist.
constexpr Hole ReadHole(std::string_view text) {
  if (text == ".") return {Hole::End, 0, 0};
  if (!text.empty() && text[0] == '?') return detail::ReadThing(Hole::If, text.substr(1));
  if (!text.empty() && text[0] == '!') return detail::ReadThing(Hole::IfNot, text.substr(1));
  if (detail::IsPart(text)) return {Hole::Name, text[0], 0};
  if (text.size() > 2 && text[1] == ':' && detail::IsPart(text.substr(0, 1)))
    return detail::ReadForm(text[0], text.substr(2));
  if (text.find(':') != std::string_view::npos) return detail::ReadThingWord(text);
  return detail::ReadThing(Hole::Thing, text);
}

}  // namespace grapplemont
