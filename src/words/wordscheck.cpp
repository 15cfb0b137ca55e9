#include "words/wordscheck.h"

#include <algorithm>
#include <map>

#include "records/fields/wording.h"
#include "report/line.h"

namespace grapplemont {

namespace {

std::string NoSuchHeading(const WordsFile& file, const std::string& name) {
  std::vector<std::string_view> names;
  for (const Heading& heading : file.Headings) names.push_back(heading.Name);
  return "there is no heading \"" + name + "\" in this file" + DidYouMean(name, names);
}

/// "4 lines; 3 are needed"; empty where the number is right.
std::string WrongCount(int count, const Heading& heading) {
  if (count >= heading.Least && count <= heading.Most) return {};
  const bool isLess = count < heading.Least;
  const std::string bound = heading.Least == heading.Most ? "" : isLess ? "at least " : "at most ";
  return std::to_string(count) + " lines under this heading; needed are " + bound +
         std::to_string(isLess ? heading.Least : heading.Most);
}

}  // namespace

const Heading* FindHeading(const WordsFile& file, std::string_view name) {
  const auto found = std::find_if(file.Headings.begin(), file.Headings.end(),
                                  [&](const Heading& heading) { return heading.Name == name; });
  return found == file.Headings.end() ? nullptr : &*found;
}

void WordsCheck::Report(const std::string& path, int line, const std::string& what) {
  mistakes_.push_back(root_ + "/" + path + ":" + std::to_string(line) + ": " + what);
}

void WordsCheck::Check(const WordsFile& file, const WordsText& text) {
  for (const NumberedLine& mistake : text.Mistakes) Report(file.Path, mistake.Number, mistake.Text);
  std::map<std::string, int> seen;
  for (const WordSection& section : text.Sections) {
    const auto& [line, name] = section.Heading;
    const Heading* heading = FindHeading(file, name);
    const auto [first, isNew] = seen.emplace(name, line);
    if (!heading)
      Report(file.Path, line, NoSuchHeading(file, name));
    else if (!isNew)
      Report(file.Path, line,
             "this heading stands already in line " + std::to_string(first->second));
    else
      CheckSection(file, section, *heading);
  }
  for (const Heading& heading : file.Headings)
    if (!seen.contains(heading.Name))
      Report(file.Path, text.Last, "the heading \"" + heading.Name + "\" is missing");
}

void WordsCheck::CheckSection(const WordsFile& file, const WordSection& section,
                              const Heading& heading) {
  const std::string count = WrongCount(static_cast<int>(section.Lines.size()), heading);
  if (!count.empty()) Report(file.Path, section.Heading.Number, count);
  for (const NumberedLine& line : section.Lines) {
    const std::string why = WhyNoLine(line.Text, heading);
    if (!why.empty()) Report(file.Path, line.Number, why);
    CheckIsNew(file, line, heading);
  }
}

/// A voice never repeats itself; elsewhere two headings may share words.
void WordsCheck::CheckIsNew(const WordsFile& file, const NumberedLine& line,
                            const Heading& heading) {
  const std::string& whole = heading.IsReport ? file.Module : heading.Name;
  const std::string place = file.Path + ":" + std::to_string(line.Number);
  const std::string_view text = heading.IsReport ? ReadTags(line.Text).Text : line.Text;
  const auto [first, isNew] = said_.emplace(whole + "\n" + std::string(text), place);
  if (!isNew) Report(file.Path, line.Number, "the same line stands in " + first->second);
}

namespace {

std::string InBraces(std::string_view slot) {
  return "{" + std::string(slot) + "}";
}

/// "{who} and {house}".
std::string ListOf(const std::vector<std::string>& slots) {
  std::string text;
  for (std::size_t i = 0; i < slots.size(); ++i)
    text += (i == 0 ? "" : i + 1 == slots.size() ? " and " : ", ") + InBraces(slots[i]);
  return text.empty() ? "nothing in braces" : text;
}

std::vector<std::string> LettersOf(std::string_view parts) {
  std::vector<std::string> letters;
  for (const char part : parts) letters.emplace_back(1, part);
  return letters;
}

/// "; there are down, hold and so on".
std::string TagsKnown() {
  std::string text;
  for (const std::string_view tag : kLineTags)
    text += (text.empty() ? "; there are " : ", ") + std::string(tag);
  return text;
}

/// What may not stand behind the slot of who has lost, and what not before it.
constexpr std::string_view kBehindLosers[] = {
    " wins",   " win{",   " defeats ",      " beats {",       " has won",
    " has it", " retain", " gets the duke", " is the winner", " gets the hand"};
constexpr std::string_view kBeforeLosers[] = {"inner : ", "Winner ", "Win for ", "Music for ",
                                              "goes to "};

bool LetsLoserWin(std::string_view text) {
  for (const std::string_view slot : {"{l}", "{l:full}", "{l:short}", "{L}", "{L:members}"})
    for (auto at = text.find(slot); at != text.npos; at = text.find(slot, at + 1)) {
      const auto before = text.substr(0, at), behind = text.substr(at + slot.size());
      if (std::any_of(std::begin(kBehindLosers), std::end(kBehindLosers),
                      [&](auto claim) { return behind.starts_with(claim); }) ||
          std::any_of(std::begin(kBeforeLosers), std::end(kBeforeLosers),
                      [&](auto claim) { return before.ends_with(claim); }))
        return true;
    }
  return false;
}

/// "{n} contracts" is wrong for one.
std::string WhyNotForOne(std::string_view text) {
  for (const std::string_view slot : {"{n} ", "{wins} ", "{feuds} ", "{faces} ", "{heels} "})
    for (auto at = text.find(slot); at != text.npos; at = text.find(slot, at + 1)) {
      auto behind = text.substr(at + slot.size());
      if (behind.starts_with("of ours ")) behind.remove_prefix(8);
      const auto word = behind.substr(0, behind.find_first_of(" ,.:;"));
      if (word == "are" || word == "have" || (word.size() > 2 && word.ends_with('s')))
        return "one or many: write " + std::string(slot.substr(0, slot.size() - 2)) + ":one form|" +
               std::string(word) + "}";
    }
  return "";
}

/// The second verb of "{F} take{F:s} a bow and goes", which has to go by number as well; empty for
/// none.
std::string_view VerbLeftAlone(std::string_view text) {
  constexpr std::string_view kEndings[] = {":s}", ":es}", ":ies}"};
  constexpr std::string_view kJoints[] = {" and ", " or ", " but ", " then "};
  constexpr std::string_view kNoVerbs[] = {"his", "its", "this", "as", "less", "always", "perhaps"};
  for (const std::string_view ending : kEndings)
    for (auto at = text.find(ending); at != text.npos; at = text.find(ending, at + 1)) {
      if (at == 0 || text[at - 1] < 'A' || text[at - 1] > 'Z') continue;
      auto clause = text.substr(at + ending.size());
      clause = clause.substr(0, clause.find_first_of("{.!?;\""));
      for (const std::string_view joint : kJoints) {
        const auto from = clause.find(joint);
        if (from == clause.npos) continue;
        auto word = clause.substr(from + joint.size());
        word = word.substr(0, word.find_first_of(" ,:"));
        const bool isVerb =
            std::find(std::begin(kNoVerbs), std::end(kNoVerbs), word) == std::end(kNoVerbs);
        if (word.size() > 2 && word.ends_with('s') && isVerb) return word;
      }
    }
  return {};
}

/// "himself" is right for half of all workers.
bool HasSexedWord(std::string_view text) {
  return text.find(" himself") != text.npos || text.find(" herself") != text.npos;
}

/// Reads one line from slot to slot and keeps the first fault.
class Reading {
 public:
  explicit Reading(const Heading& heading) : heading_(heading) {}

  void Words(std::string_view words) {
    if (words.find('{') != std::string_view::npos) Fault("a brace is not closed");
    if (words.find('}') != std::string_view::npos) Fault("a brace closes nothing");
  }

  void Slot(std::string_view slot) {
    const auto& known = heading_.Slots;
    if (const auto counted = ReadCounted(slot); counted && !heading_.IsReport) slot = counted->Name;
    if (heading_.IsReport)
      ReportSlot(slot, ReadHole(slot));
    else if (std::find(known.begin(), known.end(), slot) == known.end())
      Fault("there is no slot " + InBraces(slot) + " here; there is " + ListOf(known));
  }

  std::string End() {
    if (within_) Fault("a condition is not closed: {.} is missing");
    for (const char part : heading_.Must)
      if (named_.find(part) == std::string::npos)
        Fault("every line here names " + ListOf(LettersOf(heading_.Must)));
    return fault_;
  }

 private:
  void ReportSlot(std::string_view slot, const Hole& hole) {
    const bool begins = hole.Is == Hole::If || hole.Is == Hole::IfNot, ends = hole.Is == Hole::End;
    if (hole.Is == Hole::Bad) Fault("there is no slot " + InBraces(slot));
    if (hole.Part != 0 && heading_.Parts.find(hole.Part) == std::string::npos)
      Fault(InBraces(slot) + " is nobody here; lines may name " +
            ListOf(LettersOf(heading_.Parts)));
    if (begins && within_) Fault("a condition stands inside another");
    if (ends && !within_) Fault("{.} ends no condition");
    if (begins || ends) within_ = begins;
    if (hole.Part != 0) named_ += hole.Part;
  }

  void Fault(std::string text) {
    if (fault_.empty()) fault_ = std::move(text);
  }

  const Heading& heading_;
  std::string fault_, named_;
  bool within_ = false;
};

std::string WhyNotSaid(std::string_view text, const Heading& heading) {
  if (text.find("  ") != std::string_view::npos) return "two blanks in a row";
  if (heading.IsReport && HasSexedWord(text))
    return "write {a:himself}, with the letter of whoever it is: it goes by sex and number";
  if (heading.IsReport && LetsLoserWin(text)) return "{l} or {L} has lost, and wins here";
  if (const auto verb = VerbLeftAlone(text); heading.IsReport && !verb.empty())
    return "\"" + std::string(verb) +
           "\" goes by number as the verb before it does: end it in braces";
  if (std::string why = WhyNotForOne(text); !heading.IsReport && !why.empty()) return why;
  Reading reading(heading);
  ReadHoles(
      text, [&](std::string_view words) { reading.Words(words); },
      [&](std::string_view slot) { reading.Slot(slot); });
  return reading.End();
}

}  // namespace

/// Every way in which it can be said has to be sound.
std::string WhyNoLine(std::string_view line, const Heading& heading) {
  if (!heading.IsReport) return WhyNotSaid(line, heading);
  const TaggedLine read = ReadTags(line);
  if (!read.Sound) return "there is no such tag" + TagsKnown();
  if (heading.IsRated && (read.Tags & kLevelTags) == 0)
    return "a line that judges says for which ratings: <low>, <mid high>, or all three";
  std::string why = WhyNoWays(read.Text);
  for (int way = 0; why.empty() && way < WaysToSay(read.Text); ++way)
    why = WhyNotSaid(SaidIn(read.Text, way), heading);
  return why;
}

}  // namespace grapplemont
