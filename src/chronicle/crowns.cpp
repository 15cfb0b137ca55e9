#include <algorithm>
#include <map>

#include "chronicle/scribe.h"
#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "storylines/lineages.h"

// The chapter of a Title.

namespace grapplemont {

namespace {

constexpr std::size_t kToldEach = 2;    // changes of a year that are told one by one
constexpr std::size_t kFewReigns = 12;  // and of a Title without a long past
constexpr std::size_t kNamed = 6;

using Reigns = std::vector<HeldCrown>;

class CrownStory {
 public:
  CrownStory(Scribe& scribe, const Archive& archive, const CrownLine& line)
      : scribe_(scribe), archive_(archive), world_(archive.Of()), line_(line) {
    for (std::size_t at = 0; at < line.Reigns.size(); ++at)
      if (!IsVacancy(*line.Reigns[at])) held_.push_back({&line, at});
  }

  void Write() {
    Present();
    Records();
    scribe_.Break();
    std::map<int, Reigns> years;
    for (const HeldCrown& held : held_) years[YearOf(held.Reign().From)].push_back(held);
    const bool few = held_.size() <= kFewReigns;
    for (const auto& [year, reigns] : years) {
      scribe_.BreakBefore(reigns.front().Reign().From);
      const bool dated = year > YearOf(kNoTitleDate);
      if (few || reigns.size() <= kToldEach || !dated)
        TellEach(reigns);
      else
        TellYear(year, reigns);
    }
    Bars();
  }

 private:
  Telling Of(Tells what) const {
    return {
        .Of = what, .Title = CrownName(world_, line_), .House = archive_.HouseName(line_.Owner)};
  }

  const Title* Stands() const {
    for (const Title& title : world_.Titles())
      if (title.Owner == line_.Owner && title.Name == line_.Title) return &title;
    return nullptr;
  }

  void Present() {
    const Title* title = Stands();
    Telling telling = Of(title ? Tells::CrownStands : Tells::CrownGone);
    telling.By = {title ? ProofBy(world_, *title) : ProofBy(world_, *line_.Reigns.back())};
    if (title) telling.Count = PercentText(title->Image);
    scribe_.Tell(telling);
    if (title)
      scribe_.Written().Figures.push_back({Figure::Kind::Plate, world_.Titles().NumberOf(*title),
                                           line_.Title, title->Image, !title->Singles});
    for (const Annal* event : archive_.EventsOfHouse(line_.Owner))
      if (event->Kind == kAnnalTitle && event->What == line_.Title) {
        Telling made = Of(Tells::CrownMade);
        made.On = event->On;
        made.By = {ProofBy(world_, *event)};
        scribe_.Tell(made);
      }
    if (!held_.empty() && archive_.Lasts(held_.back().Reign()))
      TellReign(scribe_, archive_, held_.back());
  }

  void Records() {
    const auto days = [&](const HeldCrown& held) { return DaysOf(held.Reign(), world_.Today()); };
    if (held_.size() < 3) return;
    const HeldCrown& longest = *std::ranges::max_element(held_, {}, days);
    const TitleReign& reign = longest.Reign();
    if (Day(reign.From) > kNoTitleDate && days(longest) > 0) {
      // Of the one that lasts, the days have just been said.
      Telling telling = Of(archive_.Lasts(reign) ? Tells::CrownLongestYet : Tells::CrownLongest);
      telling.F = HolderOf(world_, reign);
      telling.On = reign.From;
      telling.Count = DaysText(days(longest));
      telling.By = {ProofBy(world_, reign)};
      telling.Runs = true;
      scribe_.Tell(telling);
    }
    MostOften();
  }

  void MostOften() {
    std::map<std::string, Reigns> byHolder;
    for (const HeldCrown& held : held_) byHolder[held.Reign().Holder.Str()].push_back(held);
    const auto count = [](const auto& holder) { return holder.second.size(); };
    const auto most = std::ranges::max_element(byHolder, {}, count);
    const auto alike = std::ranges::count(byHolder, most->second.size(), count);
    if (most->second.size() < 2 || alike > 1) return;
    Telling telling = Of(Tells::CrownMost);
    telling.F = HolderOf(world_, most->second.back().Reign());
    telling.Count = TimesText(static_cast<int>(most->second.size()));
    for (const HeldCrown& held : most->second) telling.By.push_back(ProofBy(world_, held.Reign()));
    scribe_.Tell(telling);
  }

  /// The one that lasts has been told.
  void TellEach(const Reigns& reigns) {
    for (const HeldCrown& held : reigns)
      if (!archive_.Lasts(held.Reign())) TellReign(scribe_, archive_, held);
  }

  void TellYear(int year, const Reigns& reigns) {
    Telling telling = Of(Tells::CrownYear);
    telling.Year = year;
    telling.Count = TimesText(static_cast<int>(reigns.size()));
    std::vector<std::string> names;
    for (const HeldCrown& held : reigns) {
      telling.By.push_back(ProofBy(world_, held.Reign()));
      std::string name = HolderOf(world_, held.Reign()).Name;
      if (const auto bar = name.find(" \\ "); bar != name.npos) name.replace(bar, 3, " with ");
      if (std::ranges::find(names, name) == names.end()) names.push_back(std::move(name));
    }
    const std::size_t others = names.size() > kNamed ? names.size() - kNamed : 0;
    if (others > 0) {
      names.resize(kNamed);
      names.push_back(others == 1 ? "one more" : std::to_string(others) + " more");
    }
    telling.Tally = AndJoined(names);
    scribe_.Tell(telling);
  }

  /// The lengths of the last reigns.
  void Bars() {
    constexpr std::size_t kShown = 40;
    Figure figure{Figure::Kind::Bars, 0, "Days of the reigns"};
    for (std::size_t i = held_.size() - std::min(held_.size(), kShown); i < held_.size(); ++i) {
      const TitleReign& reign = held_[i].Reign();
      const int days = DaysOf(reign, world_.Today());
      if (days < 0) continue;
      if (figure.Values.empty()) figure.Captions.push_back(MonthYear(reign.From));
      figure.Values.push_back(days);
    }
    if (figure.Values.size() < 2) return;
    figure.Captions.push_back("today");
    scribe_.Written().Figures.push_back(std::move(figure));
  }

  Scribe& scribe_;
  const Archive& archive_;
  const World& world_;
  const CrownLine& line_;
  Reigns held_;
};

}  // namespace

void WriteCrown(Scribe& scribe, const Archive& archive, const Subject& subject) {
  if (const CrownLine* line = archive.LineOf(subject.Number, subject.Name))
    CrownStory(scribe, archive, *line).Write();
}

}  // namespace grapplemont
