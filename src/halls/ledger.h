#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "records/world.h"

// What the past adds up to. The files hold it up to the first of the month; whoever reads a ledger
// counts what has happened since on top of them, with the same rules, and keeps nothing.

namespace grapplemont {

/// Over from which somebody counts as being at the top; the rating that makes a match a great one.
inline constexpr int kTopOver = 80, kGreatRating = 90;

/// A promotion for good: the uid of one that has closed is given again.
struct HouseKey {
  int Uid = 0;
  std::string Initials;

  friend auto operator<=>(const HouseKey&, const HouseKey&) = default;
};
/// Whether it is this promotion; uid 0 stands for the world, and any is of it.
inline bool IsOf(const HouseKey& house, int uid, std::string_view initials) {
  return house.Uid == 0 || (house.Uid == uid && house.Initials == initials);
}

class Ledger {
 public:
  /// As the files have it. Where their state is missing nothing of them counts, and the first count
  /// takes what the rest of the game's past still holds.
  explicit Ledger(const World& world);

  /// Matches, reigns, shows and deeds from the day counted last on, until the day before `until`.
  void CountUntil(Day until);
  /// Everybody's contract, Over and injuries. Requires the first of a month, once.
  void CountMonth();
  /// What a year did to everybody's Over, by what is known of its beginning; the awards of `today`.
  void CountYear();
  /// Puts it into the world's files, what has changed of them; prunes what they could not hold.
  void Keep(World& world);

  /// Lets go of the careers that have gone and were least, of the pairs that have met least, of
  /// most feats of promotions that have closed, and of the oldest years, until every file has room
  /// for another year. Afterwards the ledger can only be kept.
  void Prune();

  const World& Of() const { return world_; }
  /// The first day that something is known of: before State.Since where the files still told of it
  /// when counting began.
  Day KnownFrom() const;
  /// The promotion that has the uid, else the last one that had it.
  HouseKey HouseOf(int promotionUid) const;
  /// Whether the promotion has not closed.
  bool Stands(const HouseKey& house) const;
  TotalsState State{};
  std::vector<Career> Careers;  // by their numbers
  std::vector<Tenure> Tenures;
  std::vector<Partnership> Pairs;
  std::vector<Feat> Feats;
  std::vector<YearLine> Lines;

  /// The place in Careers of a number or of a worker's uid; -1 for none.
  int PlaceOf(int career) const;
  int PlaceOfUid(int uid) const;
  /// Keeps the line if it is among the `most` highest of its kind and year.
  void OfferLine(const YearLine& line, std::size_t most);
  /// Puts it behind those of its year.
  void AddLine(const YearLine& line);
  YearLine NewLine(YearLineKind kind, int year, int promotionUid, int number, std::string_view who,
                   std::string_view what = {}) const;

 private:
  /// A match, whoever showed it.
  struct Bout {
    Day On{};
    int Promotion = 0, Style = 0, Type = 0, Rating = 0, Winners = 0;
    std::vector<int> People = {};  // uids, the winners first
    std::string_view Title = {};   // empty for none
    bool Changed = false, IsMain = false;
    int Champion = 0;                      // who came with the Title
    std::string_view Show = {};            // what it was part of
    std::string_view Won = {}, Lost = {};  // as they were called; empty: by their names
  };

  void Begin();
  void Index();
  int Meet(int uid, Day on);  // the place of their career, which begins if there is none
  int ElectedAs(std::string_view name) const;
  Tenure& With(int career, const HouseKey& house, Day on);
  Day SeenOn(Day on) const;
  Partnership* PairOf(int uid, int otherUid, Day on);

  void CountCards(Day until);
  void CountHeld(Day until);
  void CountBout(const Bout& bout);
  void CountFor(const Bout& bout, std::size_t place, bool kept);
  void CountRow(Career& career, int outcome);
  void CountPairs(const Bout& bout);
  bool KeptTitle(const Bout& bout, std::size_t place) const;
  int ChampionOn(const HeldMatch& match) const;
  void OfferMatch(const Bout& bout);

  /// Somebody's days with a Title, the last one not included.
  struct Held {
    int Place = 0;
    HouseKey House = {};
    Day From{}, To{};
  };
  void CountReigns(Day until);
  void CountDays(std::vector<Held> held);
  void BeginReignOf(const TitleReign& reign, int uid, int place, Day until);
  void CountPairReign(const TitleReign& reign, bool begins, int days, Day from, Day end);
  void CountShows(Day until);
  void CountShow(const HistoryEntry& show);
  void CountDeeds(Day until);
  void CountRivalShow(const Deed& deed);
  void CountFeuds();
  std::vector<Feat> FeudsNow() const;
  Feat* FormerName(const Feat& feud, const std::vector<Feat>& all);

  static Feat NewFeat(FeatKind kind, Day on, const HouseKey& house, int number);
  bool Wants(int kind, const HouseKey& house, int number) const;
  void Offer(const Feat& feat);
  std::size_t LinesAbove(const YearLine& line) const;

  bool Fits() const;
  void PruneCareers();
  void PruneTenures();
  void PrunePairs();
  void PruneFeats();
  void PruneLines();

  const World& world_;
  bool isFirst_ = false;                        // nothing was counted before
  bool isPruned_ = false;                       // records have moved
  std::vector<int> byUid_;                      // places in Careers
  std::vector<int> lastTenure_, tenureBefore_;  // a career's tenures, the latest first
  std::unordered_map<long long, int> pairs_;    // places in Pairs
  std::map<std::pair<int, HouseKey>, std::vector<std::size_t>> feats_;  // by kind and promotion
};

/// The past up to yesterday, counted on top of what the files hold.
Ledger PastOf(const World& world);

/// The step of the first of a month: what the last one brought goes into the files. Comes before
/// anybody retires.
void CountThePast(World& world);

}  // namespace grapplemont
