#include <algorithm>
#include <tuple>
#include <utility>

#include "halls/ledger.h"
#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "records/segmentforms.h"
#include "records/segments.h"
#include "storylines/lineages.h"

// What of the past is counted, and how.

namespace grapplemont {

namespace {

/// A match type is a rough one if a product must be as risky as that.
constexpr int kRoughRisk = 30;
/// So many gates, and so many of the player's shows, stand on the page of a year.
constexpr std::size_t kYearShows = 3;

template <class T>
bool IsOneShow(const T& one, const T& other) {
  return Day(one.On) == Day(other.On) && one.Promotion == other.Promotion;
}

bool IsRough(int style, int type) {
  const MatchTypeRow* row = FindMatchType(style, type);
  return row && row->RiskOver >= kRoughRisk;
}

std::size_t TeamSizeOf(int style) {
  const MatchStyleRow* row = FindMatchStyle(style);
  return row && row->PerSide == 2 ? 2 : 1;
}

/// On the day `on`, in months; 0 for who has no age. A birthday is kept on the first of the month
/// behind the birth month, once what came before it has been counted: the present age is that of
/// the last day that counts.
int MonthsOfAge(const Worker& worker, Day on, Day until) {
  if (worker.Age == 0) return 0;
  const Day last = until - std::chrono::days{1};
  const auto months = [](Day day) { return YearOf(day) * 12 + MonthOf(day); };
  const int sinceBirthday = (MonthOf(last) - worker.BirthMonth - 1 + 12) % 12;
  return worker.Age * 12 + sinceBirthday - (months(last) - months(on));
}

HouseKey HouseIn(const TitleReign& reign) {
  return {reign.Owner, reign.Initials.Str()};
}

constexpr std::string_view kShowNames[] = {"", "television", "an Event", "a house show"};

}  // namespace

void Ledger::CountCards(Day until) {
  const auto& cards = world_.RivalCards();
  for (int number = 1; number <= cards.Count(); ++number) {
    const CardMatch& match = cards[number];
    if (Day(match.On) < Day(State.Counted) || Day(match.On) >= until) continue;
    const bool isLast = number == cards.Count() || !IsOneShow(match, cards[number + 1]) ||
                        cards[number + 1].Show != match.Show;
    Bout bout{.On = match.On,
              .Promotion = match.Promotion,
              .Style = match.Style,
              .Type = match.MatchType,
              .Rating = match.Rating,
              .Winners = match.Winners,
              .Title = match.Title.View(),
              .Changed = match.Changed,
              .IsMain = isLast,
              .Champion = match.Champion};
    for (const Word& uid : match.Worker) bout.People.push_back(uid);
    if (match.Show >= kUnseenTv && match.Show <= kUnseenHouseShow)
      bout.Show = kShowNames[static_cast<std::size_t>(int(match.Show))];
    CountBout(bout);
  }
}

void Ledger::CountHeld(Day until) {
  const auto& held = world_.Bouts();
  for (int number = 1; number <= held.Count(); ++number) {
    const HeldMatch& match = held[number];
    if (Day(match.On) < Day(State.Counted) || Day(match.On) >= until) continue;
    const bool isLast = number == held.Count() || !IsOneShow(match, held[number + 1]) ||
                        bool(held[number + 1].IsEvent) != bool(match.IsEvent);
    Bout bout{.On = match.On,
              .Promotion = match.Promotion,
              .Style = match.Style,
              .Type = match.MatchType,
              .Rating = match.Rating,
              .Winners = match.Winners,
              .Changed = match.Changed,
              .IsMain = isLast,
              .Won = match.Won.View(),
              .Lost = match.Lost.View()};
    if (match.Title != "None") bout.Title = match.Title.View();
    for (const Word& uid : match.Worker) bout.People.push_back(uid);
    bout.Show = kShowNames[match.IsEvent ? kUnseenEvent : kUnseenTv];
    if (!bout.Title.empty() && !bout.Changed) bout.Champion = ChampionOn(match);
    CountBout(bout);
  }
}

int Ledger::ChampionOn(const HeldMatch& match) const {
  const auto& reigns = world_.Reigns();
  for (int number = reigns.Count(); number >= 1; --number) {
    const TitleReign& reign = reigns[number];
    if (reign.Owner == match.Promotion && reign.Title == match.Title &&
        Day(reign.From) <= Day(match.On))
      return reign.Worker;
  }
  return 0;
}

void Ledger::CountBout(const Bout& bout) {
  for (std::size_t place = 0; place < bout.People.size(); ++place)
    if (bout.People[place] != 0) CountFor(bout, place, KeptTitle(bout, place));
  if (TeamSizeOf(bout.Style) == 2) CountPairs(bout);
  OfferMatch(bout);
}

/// The champion came out of it as one, and so did their partner.
bool Ledger::KeptTitle(const Bout& bout, std::size_t place) const {
  if (bout.Title.empty() || bout.Changed || bout.Champion == 0) return false;
  const auto champion = std::ranges::find(bout.People, bout.Champion);
  if (champion == bout.People.end()) return false;
  const std::size_t team = TeamSizeOf(bout.Style);
  return static_cast<std::size_t>(champion - bout.People.begin()) / team == place / team;
}

void Ledger::CountFor(const Bout& bout, std::size_t place, bool kept) {
  const int at = Meet(bout.People[place], bout.On);
  if (at < 0) return;
  const int outcome = bout.Winners == 0 ? 0 : static_cast<int>(place) < bout.Winners ? 1 : -1;
  Career& career = Careers[static_cast<std::size_t>(at)];
  CountRow(career, outcome);
  if (bout.Rating >= kGreatRating) ++career.Great;
  Tenure& tenure = With(at, HouseOf(bout.Promotion), bout.On);
  ++(outcome > 0 ? tenure.Won : outcome < 0 ? tenure.Lost : tenure.Drawn);
  if (!bout.Title.empty()) ++tenure.ForTitles;
  if (bout.IsMain) ++tenure.MainEvents;
  if (IsRough(bout.Style, bout.Type)) ++tenure.Rough;
  if (kept) ++tenure.Defences;
  tenure.Ratings += bout.Rating;
  tenure.Best = std::max<int>(tenure.Best, bout.Rating);
}

void Ledger::CountRow(Career& career, int outcome) {
  const int before = career.Streak;
  career.Streak = outcome == 0 ? 0 : (before > 0) == (outcome > 0) ? before + outcome : outcome;
  career.MostWins = std::max<int>(career.MostWins, career.Streak);
  career.MostLosses = std::max<int>(career.MostLosses, -career.Streak);
}

void Ledger::CountPairs(const Bout& bout) {
  for (std::size_t first = 0; first + 1 < bout.People.size(); first += 2) {
    if (bout.People[first] == 0 || bout.People[first + 1] == 0) continue;
    Partnership* pair = PairOf(bout.People[first], bout.People[first + 1], bout.On);
    if (!pair) continue;
    const bool won = static_cast<int>(first) < bout.Winners;
    ++(bout.Winners == 0 ? pair->Drawn : won ? pair->Won : pair->Lost);
    if (Day(pair->First) == kNoTitleDate) pair->First = bout.On;
    pair->Last = bout.On;
    pair->Promotion = bout.Promotion;
    pair->Initials = HouseOf(bout.Promotion).Initials;
    if (KeptTitle(bout, first)) ++pair->Defences;
  }
}

void Ledger::CountReigns(Day until) {
  const Day from = State.Counted;
  std::map<std::pair<int, std::string_view>, int> images;
  for (const Title& title : world_.Titles()) images[{title.Owner, title.Name.View()}] = title.Image;
  std::vector<Held> held;
  for (const TitleReign& reign : world_.Reigns()) {
    const Day end = reign.End == kReignLasts ? until : std::min(Day(reign.Until), until);
    const int days = std::max(0, static_cast<int>((end - std::max(Day(reign.From), from)).count()));
    const bool begins = Day(reign.From) >= from && Day(reign.From) < until;
    if (IsVacancy(reign) || (!begins && days == 0)) continue;
    const auto image = images.find({reign.Owner, reign.Title.View()});
    for (const int uid : {int(reign.Worker), int(reign.Partner)}) {
      const Day since = std::max(Day(reign.From), from);
      const int place = uid == 0 ? -1 : Meet(uid, since);
      if (place < 0) continue;
      if (begins) BeginReignOf(reign, uid, place, until);
      With(place, HouseIn(reign), since);
      if (days > 0) held.push_back({place, HouseIn(reign), since, end});
      Careers[static_cast<std::size_t>(place)].Renown +=
          days * (image == images.end() ? 0 : image->second);
    }
    if (reign.Worker != 0 && reign.Partner != 0) CountPairReign(reign, begins, days, from, end);
  }
  CountDays(std::move(held));
}

/// A day with two Titles is one day.
void Ledger::CountDays(std::vector<Held> held) {
  std::ranges::sort(held, {},
                    [](const Held& one) { return std::tuple(one.Place, one.House, one.From); });
  const Held* before = nullptr;
  Day counted{};
  for (const Held& one : held) {
    const bool goesOn = before && before->Place == one.Place && before->House == one.House;
    const Day from = goesOn ? std::max(one.From, counted) : one.From;
    counted = std::max(from, one.To);
    if (from < one.To)
      With(one.Place, one.House, one.From).Days += static_cast<int>((one.To - from).count());
    before = &one;
  }
}

void Ledger::CountPairReign(const TitleReign& reign, bool begins, int days, Day from, Day end) {
  Partnership* pair = PairOf(reign.Worker, reign.Partner, from);
  if (!pair) return;
  if (begins) ++pair->Reigns;
  pair->Days += days;
  if (Day(pair->First) == kNoTitleDate) pair->First = std::max(Day(reign.From), from);
  pair->Last = std::max(Day(pair->Last), end);
  pair->Promotion = int(reign.Owner);
  pair->Initials = reign.Initials;
}

void Ledger::BeginReignOf(const TitleReign& reign, int uid, int place, Day until) {
  const HouseKey house = HouseIn(reign);
  ++With(place, house, reign.From).Reigns;
  const Worker* worker = world_.FindWorker(uid);
  const int months = worker ? MonthsOfAge(*worker, reign.From, until) : 0;
  if (months <= 0) return;
  for (const FeatKind kind : {kFeatYoungest, kFeatOldest}) {
    if (!Wants(kind, house, months)) continue;
    Feat feat = NewFeat(kind, reign.From, house, months);
    feat.Career = int(Careers[static_cast<std::size_t>(place)].Number);
    feat.Who = worker->Name;
    feat.What = reign.Title;
    Offer(feat);
  }
}

void Ledger::CountShows(Day until) {
  const auto& history = world_.History();
  int number = history.Count();
  while (number >= 1 && Day(history[number].On) >= Day(State.Counted)) --number;
  while (++number <= history.Count()) {
    const HistoryEntry& show = history[number];
    const bool isShow = show.Kind == kPastEvent || show.Kind == kPastTv;
    if (isShow && !show.CalledOff && Day(show.On) < until) CountShow(show);
  }
}

void Ledger::CountShow(const HistoryEntry& show) {
  const FeatKind reach = show.Kind == kPastEvent ? kFeatBuys : kFeatViewers;
  const std::pair<FeatKind, int> figures[] = {{kFeatGate, show.Attendance}, {reach, show.Viewers}};
  for (const auto& [kind, figure] : figures) {
    Feat feat = NewFeat(kind, show.On, HouseOf(show.Promotion), figure);
    feat.Who = show.Name;
    if (figure > 0) Offer(feat);
  }
  const std::pair<YearLineKind, int> lines[] = {{kYearShow, show.Rating},
                                                {kYearGate, show.Attendance}};
  for (const auto& [kind, figure] : lines)
    OfferLine(NewLine(kind, YearOf(show.On), show.Promotion, figure, show.Name.View(),
                      PlainDate(show.On)),
              kYearShows);
}

void Ledger::CountDeeds(Day until) {
  static constexpr std::pair<int, YearLineKind> kTurns[] = {{kDeedFounded, kYearFounded},
                                                            {kDeedClosed, kYearClosed},
                                                            {kDeedBought, kYearClosed},
                                                            {kDeedRisen, kYearRisen},
                                                            {kDeedFallen, kYearFallen}};
  for (const Deed& deed : world_.Deeds()) {
    if (Day(deed.On) < Day(State.Counted) || Day(deed.On) >= until) continue;
    for (const auto& [kind, tells] : kTurns) {
      if (deed.Kind != kind) continue;
      YearLine line = NewLine(tells, YearOf(deed.On), deed.Promotion, deed.Number, deed.Who.View(),
                              deed.Kind == kDeedBought ? "Bought by " + deed.Other.Str() : "");
      line.Initials = deed.House;
      AddLine(line);
    }
    if (deed.Kind == kDeedEventHeld || deed.Kind == kDeedTvHeld) CountRivalShow(deed);
  }
}

/// Deeds tell of rivals' shows alone, also of one that the player leads since.
void Ledger::CountRivalShow(const Deed& deed) {
  const HouseKey house{deed.Promotion, deed.House.Str()};
  const FeatKind reach = deed.Kind == kDeedEventHeld ? kFeatBuys : kFeatViewers;
  const std::pair<FeatKind, int> figures[] = {{kFeatGate, deed.People}, {reach, deed.Viewers}};
  for (const auto& [kind, figure] : figures) {
    if (figure <= 0 || !Wants(kind, house, figure)) continue;
    Feat feat = NewFeat(kind, deed.On, house, figure);
    feat.Who = deed.Who;
    Offer(feat);
  }
  YearLine gate = NewLine(kYearGate, YearOf(deed.On), deed.Promotion, deed.People, deed.Who.View(),
                          PlainDate(deed.On));
  gate.Initials = deed.House;
  OfferLine(gate, kYearShows);
}

std::vector<Feat> Ledger::FeudsNow() const {
  std::vector<Feat> feuds;
  const auto add = [&](Day since, int promotion, std::string who, std::string against) {
    const auto days = static_cast<int>((world_.Today() - since).count());
    if (days <= 0 || since <= kNoTitleDate) return;
    Feat& feat = feuds.emplace_back(NewFeat(kFeatFeud, since, HouseOf(promotion), days));
    feat.Who = who;
    feat.Against = against;
  };
  for (const Feud& feud : world_.Feuds()) {
    if (feud.Worker1 == 0 || feud.Worker2 == 0) continue;
    const bool pairs = !feud.Singles;
    add(feud.Started, world_.PlayerUid(),
        pairs ? PairName(world_, feud.Worker1, feud.Worker2) : WorkerName(world_, feud.Worker1),
        pairs ? PairName(world_, feud.Worker3, feud.Worker4) : WorkerName(world_, feud.Worker2));
  }
  for (const Grudge& grudge : world_.Grudges())
    add(grudge.Since, grudge.Promotion, WorkerName(world_, grudge.One),
        WorkerName(world_, grudge.Two));
  return feuds;
}

/// Those that are fought out grow with every month.
void Ledger::CountFeuds() {
  const std::vector<Feat> feuds = FeudsNow();
  for (const Feat& feud : feuds) {
    const HouseKey house{feud.Promotion, feud.Initials.Str()};
    if (!Wants(kFeatFeud, house, feud.Number)) continue;
    if (Feat* known = FormerName(feud, feuds)) {
      known->Who = feud.Who;
      known->Against = feud.Against;
    }
    Offer(feud);
  }
}

/// The feud as it is known under a name that one of its sides has given up since: it began on the
/// same day, and nobody who is feuding is called so. Nullptr where it is known by its names or not
/// at all.
Feat* Ledger::FormerName(const Feat& feud, const std::vector<Feat>& all) {
  const auto isCalled = [&](const auto& name) {
    return std::ranges::any_of(
        all, [&](const Feat& one) { return one.Who == name || one.Against == name; });
  };
  const auto held = feats_.find({kFeatFeud, {feud.Promotion, feud.Initials.Str()}});
  if (held == feats_.end()) return nullptr;
  for (const std::size_t at : held->second) {
    Feat& known = Feats[at];
    if (Day(known.On) != Day(feud.On)) continue;
    if ((known.Who == feud.Who && !isCalled(known.Against)) ||
        (known.Against == feud.Against && !isCalled(known.Who)))
      return &known;
  }
  return nullptr;
}

}  // namespace grapplemont
