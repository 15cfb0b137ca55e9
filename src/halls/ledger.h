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

class Ledger {
 public:
  /// As the files have it. A game without them begins with its first day.
  explicit Ledger(const World& world);

  /// Matches, reigns, shows and deeds from the day counted last on, until the day before `until`.
  void CountUntil(Day until);
  /// Everybody's contract, Over and injuries. Requires the first of a month, once.
  void CountMonth();
  /// What a year did to everybody's Over, by what is known of its beginning; the awards of `today`.
  void CountYear();
  /// Puts it into the world's files.
  void Keep(World& world);

  /// Lets go of the careers that have gone and were least, of the pairs that have met least, and of
  /// most feats of promotions that have closed. Afterwards the ledger can only be kept.
  void Prune();

  const World& Of() const { return world_; }
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

  int Meet(int uid, Day on);  // the place of their career, which begins if there is none
  Tenure& With(int career, int promotionUid, Day on);
  Day SeenOn(Day on) const;
  Partnership* PairOf(int uid, int otherUid, Day on);
  std::string InitialsOf(int promotionUid) const;

  void CountCards(Day until);
  void CountHeld(Day until);
  void CountBout(const Bout& bout);
  void CountFor(const Bout& bout, std::size_t place, bool kept);
  void CountRow(Career& career, int outcome);
  void CountPairs(const Bout& bout);
  bool KeptTitle(const Bout& bout, std::size_t place) const;
  int ChampionOn(const HeldMatch& match) const;
  void OfferMatch(const Bout& bout);

  void CountReigns(Day until);
  void BeginReignOf(const TitleReign& reign, int uid, int place);
  void CountPairReign(const TitleReign& reign, bool begins, int days, Day from, Day end);
  void CountShows(Day until);
  void CountShow(const HistoryEntry& show);
  void CountDeeds(Day until);
  void CountRivalShow(const Deed& deed);
  void CountFeuds();
  void NoteFeud(Day since, int promotion, std::string_view who, std::string_view against);

  Feat NewFeat(FeatKind kind, Day on, int promotionUid, int number) const;
  bool Wants(int kind, int promotionUid, int number) const;
  void Offer(const Feat& feat);
  void SortLines();
  std::size_t LinesAbove(const YearLine& line) const;

  const World& world_;
  Day began_{};                                 // what the files had been counted to
  std::vector<int> byUid_;                      // places in Careers
  std::vector<int> lastTenure_, tenureBefore_;  // a career's tenures, the latest first
  std::unordered_map<long long, int> pairs_;    // places in Pairs
  std::map<std::pair<int, int>, std::vector<std::size_t>> feats_;  // by kind and promotion
};

/// The past up to yesterday, counted on top of what the files hold.
Ledger PastOf(const World& world);

/// The step of the first of a month: what the last one brought goes into the files. Comes before
/// anybody retires.
void CountThePast(World& world);

}  // namespace grapplemont
