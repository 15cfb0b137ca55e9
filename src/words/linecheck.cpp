#include "words/linecheck.h"

#include <algorithm>

#include "records/fields/wording.h"
#include "report/line.h"

namespace grapplemont {

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

}  // namespace

std::string WhyNoLine(std::string_view text, const Heading& heading) {
  if (text.find("  ") != std::string_view::npos) return "two blanks in a row";
  if (heading.IsReport && HasSexedWord(text))
    return "write {a:himself}, with the letter of whoever it is: it goes by sex and number";
  if (heading.IsReport && LetsLoserWin(text)) return "{l} or {L} has lost, and wins here";
  Reading reading(heading);
  ReadHoles(
      text, [&](std::string_view words) { reading.Words(words); },
      [&](std::string_view slot) { reading.Slot(slot); });
  return reading.End();
}

}  // namespace grapplemont
