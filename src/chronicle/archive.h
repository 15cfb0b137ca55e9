#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "records/world.h"

// The records of the past, put in order by whom they are about: chapters are written from this.

namespace grapplemont {

/// A record of the world that proves what is told.
struct Proof {
  const RecordLayout* Of = nullptr;
  int Number = 0;
  friend bool operator==(const Proof&, const Proof&) = default;
};
template <class T>
Proof ProofBy(const World& world, const T& record) {
  return {&LayoutOf<T>(), world.Of<T>().NumberOf(record)};
}

/// What a chapter can be about.
enum class About { Worker, Title, Feud, Promotion, Year };
inline constexpr int kKindsOfChapter = static_cast<int>(About::Year) + 1;

/// Whom or what.
struct Subject {
  About Is = About::Worker;
  int Number = 0;    // a worker's or promotion's uid, a Title's owner, a feud's record, the year
  std::string Name;  // how it is called
  int Weight = 0;    // how much there is to tell; the heaviest come first
};

/// All reigns of one Title, the oldest first.
struct CrownLine {
  int Owner = 0;
  std::string Title, Initials;
  std::vector<const TitleReign*> Reigns;
};
/// One of them.
struct HeldCrown {
  const CrownLine* Of = nullptr;
  std::size_t At = 0;
  const TitleReign& Reign() const { return *Of->Reigns[At]; }
  /// nullptr for none, and for a vacancy.
  const TitleReign* Before() const;
  const TitleReign* After() const;
};

/// A feud. Of rivals' ones only the end is kept, which says since when it had lasted.
struct FeudPast {
  const Annal* Begun = nullptr;
  const Annal* Ended = nullptr;  // nullptr while it lasts
  const Annal& First() const { return Begun ? *Begun : *Ended; }
};

class Archive {
 public:
  explicit Archive(const World& world);
  const World& Of() const { return world_; }

  /// People are known by their uids; who has left the world, by the number of the annals' record
  /// that says so, below 0. 0 for whoever cannot be told apart.
  int PersonOf(int uid, std::string_view name, Day on) const;

  using Events = std::vector<const Annal*>;
  const Events& EventsOfPerson(int person) const { return At(byPerson_, person); }
  const Events& EventsOfHouse(int promotion) const { return At(byHouse_, promotion); }
  const Events& EventsOfYear(int year) const { return At(byYear_, year); }
  const std::vector<HeldCrown>& CrownsOf(int person) const { return At(crowns_, person); }
  const std::vector<const YearAward*>& AwardsOf(int person) const { return At(awards_, person); }
  const std::vector<const MatchTally*>& TalliesOf(int person) const { return At(tallies_, person); }
  const std::vector<const HeldMatch*>& BoutsOf(int person) const { return At(bouts_, person); }
  const std::vector<const HistoryEntry*>& PastOfHouse(int promotion) const {
    return At(history_, promotion);
  }
  const CrownLine* LineOf(int owner, const std::string& title) const;
  /// By the Title itself: the reigns are brought up to it at the end of a day.
  bool Lasts(const TitleReign& reign) const;
  /// Of all Titles, in the order of owners and names.
  const std::map<std::pair<int, std::string>, CrownLine>& Lines() const { return lines_; }
  const std::vector<FeudPast>& Feuds() const { return feuds_; }

  /// "CWA": also of a promotion that is gone; empty for an unknown one.
  std::string HouseName(int promotion) const;
  std::string FullHouseName(int promotion) const;

  /// All of whom there is something to tell, the heaviest first; years in their order.
  std::vector<Subject> Subjects(About kind) const;

 private:
  template <class T>
  static const T& At(const std::map<int, T>& all, int key) {
    static const T kNone;
    const auto found = all.find(key);
    return found == all.end() ? kNone : found->second;
  }
  void FindTheGone();
  void SortAnnals();
  void SortReigns();
  void SortTheRest();
  void PairFeuds();
  int WeightOf(int person) const;
  void AddWorkers(std::vector<Subject>& subjects) const;
  void AddTitles(std::vector<Subject>& subjects) const;
  void AddFeuds(std::vector<Subject>& subjects) const;
  void AddHouses(std::vector<Subject>& subjects) const;
  void AddYears(std::vector<Subject>& subjects) const;

  const World& world_;
  std::map<std::string, std::vector<std::pair<Day, int>>, std::less<>> gone_;
  std::map<int, Events> byPerson_, byHouse_, byYear_;
  std::map<std::pair<int, std::string>, CrownLine> lines_;
  std::map<int, std::vector<HeldCrown>> crowns_;
  std::map<int, std::vector<const YearAward*>> awards_;
  std::map<int, std::vector<const MatchTally*>> tallies_;
  std::map<int, std::vector<const HeldMatch*>> bouts_;
  std::map<int, std::vector<const HistoryEntry*>> history_;
  std::vector<FeudPast> feuds_;
  std::map<int, std::pair<std::string, std::string>> houses_;  // initials and full name
  int firstYear_ = 0, lastYear_ = 0;
};

}  // namespace grapplemont
