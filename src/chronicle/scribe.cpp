#include "chronicle/scribe.h"

#include <algorithm>
#include <cctype>
#include <numeric>

#include "records/fields/companies.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "report/pasttold.h"
#include "report/teller.h"
#include "storylines/lineages.h"

namespace grapplemont {

namespace {

constexpr std::size_t kLongParagraph = 5, kParagraph = 3;

bool IsOneOf(const Somebody& who) {
  return who.Sex == kMan || who.Sex == kWoman;
}

/// The name as the record has it, led back to who bears it today.
Somebody Known(const World& world, int uid, std::string_view name, AnnalSex sex) {
  const Worker* worker = world.FindWorker(uid);
  if (!worker) return {0, std::string(name), sex};
  return {worker->Name == name ? uid : 0, std::string(name), worker->Gender ? kMan : kWoman};
}

/// "Okafor and Marsh" of "Okafor \ Marsh".
std::string PairInProse(std::string name) {
  if (const auto bar = name.find(" \\ "); bar != name.npos) name.replace(bar, 3, " and ");
  return name;
}

}  // namespace

Scribe::Scribe(const Archive& archive, const Subject& subject, int voice)
    : archive_(archive), voice_(voice) {
  seed_ = static_cast<int>(subject.Is) * 100000 + subject.Number;
  for (const char letter : subject.Name) seed_ = (seed_ * 31 + letter) % 1000003;
}

std::string_view Scribe::Choose(Tells of) {
  const int band = static_cast<int>(of);
  const auto lines = ReadLinesOf(voice_, Family::Chapter, band);
  auto& [order, said] = orders_[band];
  if (order.empty()) {
    order.resize(lines.size());
    std::iota(order.begin(), order.end(), 0);
    SeededDraws draws = archive_.Of().Fate("chapter", {seed_, band});
    for (std::size_t i = order.size(); i > 1; --i)
      std::swap(order[i - 1], order[static_cast<std::size_t>(draws.Draw(static_cast<int>(i)) - 1)]);
  }
  const auto count = static_cast<int>(order.size());
  return lines[static_cast<std::size_t>(order[static_cast<std::size_t>(said++ % count)])].Text;
}

void Scribe::Cast(char part, const Somebody& who) {
  cast_.Set(part, nullptr);
  if (who.Name.empty()) return;
  if (who.Sex == kSeveral) {
    cast_.Of(part).Name = PairInProse(who.Name);
    return;
  }
  Person* person = who.Uid != 0 ? cast_.Find(archive_.Of(), who.Uid) : nullptr;
  cast_.Set(part, person ? person : cast_.Called(who.Name, who.Sex != kWoman));
}

std::string Scribe::WhenText(const Telling& telling) {
  if (telling.Year != 0) return "in " + std::to_string(telling.Year);
  if (!telling.On) return {};
  const Day on = *telling.On;
  const bool sameYear = last_ && YearOf(*last_) == YearOf(on);
  const bool sameMonth = sameYear && MonthOf(*last_) == MonthOf(on);
  last_ = on;
  if (sameMonth) return "that same month";
  return "in " + (sameYear ? std::string(MonthName(MonthOf(on))) : MonthYear(on));
}

std::string Scribe::Again(const Telling& telling, std::string line) {
  const std::string& name = telling.F.Name;
  const bool goesOn = !chapter_.Paragraphs.empty() && !chapter_.Paragraphs.back().empty();
  const bool again = goesOn && IsOneOf(telling.F) && (name == alone_ || name == next_);
  saidHe_ = again && !saidHe_ && line.starts_with("{F} ");
  if (saidHe_) line.replace(0, 3, "{F:he}");
  return line;
}

bool Scribe::LeavesItToThis(const Telling& telling) {
  const bool follows = telling.Of == Tells::CrownWon && !next_.empty() && telling.F.Name == next_ &&
                       telling.Title == title_;
  if (!follows) return false;
  const auto last = std::ranges::find_if(chapter_.Paragraphs.rbegin(), chapter_.Paragraphs.rend(),
                                         [](const auto& paragraph) { return !paragraph.empty(); });
  std::string& words = last->back().Words;
  words.resize(nextsFrom_);
  while (words.ends_with(' ')) words.pop_back();
  next_.clear();
  return true;
}

void Scribe::Tell(const Telling& telling) {
  if (LeavesItToThis(telling)) alone_.clear();
  Cast('F', telling.F);
  Cast('S', telling.S);
  Cast('X', telling.X);
  cast_.Set('G', nullptr);
  cast_.Of('G').Name = telling.G;
  cast_.Set(Item::Title, telling.Title);
  cast_.Set(Item::Promotion, telling.House);
  cast_.Set(Item::Count, telling.Count);
  cast_.Set(Item::Tally, telling.Tally);
  cast_.Set(Item::Feud, telling.Feud);
  cast_.Set(Item::When, WhenText(telling));
  cast_.Set(Item::Since, telling.On ? MonthYear(*telling.On) : std::string());
  std::string words;
  std::vector<std::size_t> ends;
  Fill(cast_, Again(telling, std::string(Choose(telling.Of))), words, ends);
  while (words.ends_with(' ')) words.pop_back();
  if (words.empty()) return;
  alone_ = telling.S.Name.empty() && telling.X.Name.empty() ? telling.F.Name : std::string();
  next_ = ends.size() > 1 ? telling.X.Name : std::string();
  nextsFrom_ = ends.size() > 1 ? ends[ends.size() - 2] : 0;
  title_ = telling.Title;
  if (telling.Runs) last_.reset();
  if (chapter_.Paragraphs.empty()) chapter_.Paragraphs.emplace_back();
  chapter_.Paragraphs.back().push_back({std::move(words), telling.By});
}

void Scribe::Break() {
  if (chapter_.Paragraphs.empty() || chapter_.Paragraphs.back().empty()) return;
  chapter_.Paragraphs.emplace_back();
  last_.reset();
}

void Scribe::BreakBefore(Day on) {
  if (chapter_.Paragraphs.empty()) return;
  const std::size_t length = chapter_.Paragraphs.back().size();
  const bool later = last_ && YearOf(on) != YearOf(*last_);
  if (length >= kLongParagraph || (length >= kParagraph && later)) Break();
}

Somebody PersonToday(const World&, const Worker& worker) {
  return {worker.Uid, worker.Name.Str(), worker.Gender ? kMan : kWoman};
}

Somebody HolderOf(const World& world, const TitleReign& reign) {
  const std::string holder = reign.Holder.Str();
  const bool several = reign.Partner != 0 || holder.find(" \\ ") != holder.npos;
  if (several) return {0, holder, kSeveral};
  return Known(world, reign.Worker, holder, kNobodysSex);
}

Somebody FirstOf(const World& world, const Annal& event) {
  if (event.Sex == kSeveral || event.Who[1] != 0) return {0, event.Name.Str(), kSeveral};
  return Known(world, event.Who[0], event.Name, static_cast<AnnalSex>(int(event.Sex)));
}

Somebody SecondOf(const World& world, const Annal& event) {
  if (event.Whom[1] != 0 || event.Sex == kSeveral) return {0, event.Other.Str(), kSeveral};
  return Known(world, event.Whom[0], event.Other, kNobodysSex);
}

std::string DaysText(int days) {
  return days <= 0 ? "less than a day" : CountText(days) + (days == 1 ? " day" : " days");
}

std::string TimesText(int times) {
  return times == 1 ? "once" : times == 2 ? "twice" : CountText(times) + " times";
}

std::string AndJoined(const std::vector<std::string>& parts) {
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i)
    text += (i == 0 ? "" : i + 1 == parts.size() ? " and " : ", ") + parts[i];
  return text;
}

std::string PercentText(int percent) {
  return std::to_string(percent) + " percent";
}

std::string CrownName(const World& world, const CrownLine& line) {
  const Title* title = FindTitle(world, line.Title);
  const bool singles =
      title ? bool(title->Singles)
            : std::ranges::none_of(line.Reigns, [](auto* reign) { return reign->Partner != 0; });
  return TitleInProse(line.Title, singles);
}

std::string SmallSize(int size) {
  std::string text(SizeText(size));
  for (char& letter : text)
    letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
  return text;
}

Chapter WriteChapter(const Archive& archive, const Subject& subject, int voice) {
  static constexpr void (*kKinds[])(Scribe&, const Archive&, const Subject&) = {
      WriteLife, WriteCrown, WriteFeud, WriteHouse, WriteYear};
  Scribe scribe(archive, subject, voice);
  kKinds[static_cast<int>(subject.Is)](scribe, archive, subject);
  Chapter& chapter = scribe.Written();
  std::erase_if(chapter.Paragraphs, [](const auto& paragraph) { return paragraph.empty(); });
  if (chapter.Heading.empty()) chapter.Heading = subject.Name;
  return std::move(chapter);
}

}  // namespace grapplemont
