#pragma once

#include <array>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "records/chronicle.h"
#include "records/companies.h"
#include "records/deeds.h"
#include "records/draws.h"
#include "records/gameinfo.h"
#include "records/history.h"
#include "records/people.h"
#include "records/promotion.h"
#include "records/showrun.h"
#include "records/slot.h"
#include "records/storyrecords.h"
#include "records/table.h"
#include "records/worker.h"

namespace grapplemont {

/// Words of the running session that no file keeps.
struct SessionWords {
  int ShowRating = 0;  // runs up as the sum during a show, holds its rating once it closes; cleared
                       // by the next day
  int ShowFlag = 0;    // Segments summed so far
  int ExtraCost = 0;   // dollars that the extra of the Event just held was charged; cleared with it
  int StartSize = 0;   // the player's Promotion.Size as the day's stages refresh it
  // Who sits at the table of the Event that starts.
  int EventAnnouncer = 0;            // Staff uid; 0 for nobody
  int EventColour = 0;               // Staff uid, or a Worker's; 0 for nobody
  bool EventColourIsWorker = false;  // EventColour is a Worker's uid
};

/// An open folder of the game: a table per file, and the sources of chance. Rules change records in
/// place; what has changed since the last commit is found by comparison.
class World {
 public:
  /// An empty world. Prose draws from a stream of its own, so that a new sentence never moves a
  /// result.
  explicit World(std::unique_ptr<Draws> chance = std::make_unique<SeededDraws>(1),
                 std::unique_ptr<Draws> prose = std::make_unique<SeededDraws>(2));

  Records<Worker>& Workers() { return workers_; }
  const Records<Worker>& Workers() const { return workers_; }
  Records<Promotion>& Promotions() { return promotions_; }
  const Records<Promotion>& Promotions() const { return promotions_; }
  Records<Staff>& AllStaff() { return staff_; }
  const Records<Staff>& AllStaff() const { return staff_; }
  Records<Team>& Teams() { return teams_; }
  const Records<Team>& Teams() const { return teams_; }
  Records<Stable>& Stables() { return stables_; }
  const Records<Stable>& Stables() const { return stables_; }
  Records<Title>& Titles() { return titles_; }
  const Records<Title>& Titles() const { return titles_; }
  Records<Show>& Shows() { return shows_; }
  const Records<Show>& Shows() const { return shows_; }
  Records<Network>& Networks() { return networks_; }
  const Records<Network>& Networks() const { return networks_; }
  Records<Sponsor>& Sponsors() { return sponsors_; }
  const Records<Sponsor>& Sponsors() const { return sponsors_; }
  Records<Event>& Events() { return events_; }
  const Records<Event>& Events() const { return events_; }
  Records<Mail>& News() { return news_; }
  const Records<Mail>& News() const { return news_; }
  Records<Feud>& Feuds() { return feuds_; }
  const Records<Feud>& Feuds() const { return feuds_; }
  Records<Segment>& Segments() { return segments_; }
  const Records<Segment>& Segments() const { return segments_; }
  Records<Incident>& Incidents() { return incidents_; }
  const Records<Incident>& Incidents() const { return incidents_; }
  /// One record while a show is under way, else none.
  Records<ShowRun>& ShowRuns() { return showRuns_; }
  const Records<ShowRun>& ShowRuns() const { return showRuns_; }
  /// The past, oldest first.
  Records<HistoryEntry>& History() { return history_; }
  const Records<HistoryEntry>& History() const { return history_; }
  /// The player's matches, oldest first, and what each worker's add up to.
  Records<HeldMatch>& Bouts() { return bouts_; }
  const Records<HeldMatch>& Bouts() const { return bouts_; }
  Records<MatchTally>& Tallies() { return tallies_; }
  const Records<MatchTally>& Tallies() const { return tallies_; }
  /// The reigns of all Titles, oldest first.
  Records<TitleReign>& Reigns() { return reigns_; }
  const Records<TitleReign>& Reigns() const { return reigns_; }
  /// The words of the last shows, in no order.
  Records<ReportPart>& Reports() { return reports_; }
  const Records<ReportPart>& Reports() const { return reports_; }
  Records<YearAward>& Awards() { return awards_; }
  const Records<YearAward>& Awards() const { return awards_; }
  Records<YearEnd>& YearEnds() { return yearEnds_; }
  const Records<YearEnd>& YearEnds() const { return yearEnds_; }
  /// What the wrestling world has done of late, oldest first.
  Records<Deed>& Deeds() { return deeds_; }
  const Records<Deed>& Deeds() const { return deeds_; }
  Records<GameInfo>& GameInfos() { return gameInfos_; }
  const Records<GameInfo>& GameInfos() const { return gameInfos_; }
  TextFile& Notes() { return notes_; }
  const TextFile& Notes() const { return notes_; }

  /// The state of the game; throws WorldFault in a folder without one, such as the default data.
  GameInfo& Game();
  const GameInfo& Game() const;
  bool HasGame() const { return gameInfos_.Count() > 0; }
  Day Today() const { return Game().Today; }

  // By uid; nullptr for 0 and for a uid that leads nowhere. Constant time for a uid that leads
  // somewhere.
  Worker* FindWorker(int uid) { return Find(workers_, workerIndex_, uid); }
  const Worker* FindWorker(int uid) const { return Find(workers_, workerIndex_, uid); }
  Promotion* FindPromotion(int uid) { return Find(promotions_, promotionIndex_, uid); }
  const Promotion* FindPromotion(int uid) const { return Find(promotions_, promotionIndex_, uid); }
  Staff* FindStaff(int uid) { return Find(staff_, staffIndex_, uid); }
  const Staff* FindStaff(int uid) const { return Find(staff_, staffIndex_, uid); }
  Network* FindNetwork(int uid) { return Find(networks_, networkIndex_, uid); }
  const Network* FindNetwork(int uid) const { return Find(networks_, networkIndex_, uid); }
  Sponsor* FindSponsor(int uid) { return Find(sponsors_, sponsorIndex_, uid); }
  const Sponsor* FindSponsor(int uid) const { return Find(sponsors_, sponsorIndex_, uid); }

  /// The uid of the player's Promotion; 0 in a folder without a game.
  int PlayerUid() const { return HasGame() ? int(Game().PlayerPromotion) : 0; }
  /// The player's Promotion; throws WorldFault when there is none.
  Promotion& Player();
  const Promotion& Player() const;

  /// A whole number from 1 to n; 1 for n under 2.
  int RandomDraw(int n) { return chance_->Draw(n); }
  Draws& Prose() { return *prose_; }
  void SetChance(std::unique_ptr<Draws> chance) { chance_ = std::move(chance); }

  SessionWords Session;

  /// Every file of a world, the ten of the data set first and in their fixed order.
  static constexpr int kTables = 25;
  std::array<Table*, kTables> Tables();
  std::array<const Table*, kTables> Tables() const;

  /// Takes over a folder's files and counts them as committed. Throws WorldFault.
  void Load(const std::map<std::string, Bytes>& files);
  /// What differs from the last commit; the spans hold until the next change.
  std::vector<FileChange> Changes() const;
  void MarkCommitted();
  void Rollback();
  /// "wrestler.dat, record 17, Morale: The value ..." for a field of this world, else the fault's
  /// own text.
  std::string Explain(const FieldOverflow& fault) const;

 private:
  /// Record numbers by uid. An entry is only a guess that the record itself confirms.
  struct UidIndex {
    std::vector<int> Numbers;
  };
  template <class T>
  static int NumberByUid(const Records<T>& records, UidIndex& index, int uid);
  template <class R>
  static auto Find(R& records, UidIndex& index, int uid) -> decltype(&records[1]) {
    const int number = NumberByUid(records, index, uid);
    return number == 0 ? nullptr : &records[number];
  }

  Records<Worker> workers_;
  Records<Promotion> promotions_;
  Records<Staff> staff_;
  Records<Team> teams_;
  Records<Stable> stables_;
  Records<Title> titles_;
  Records<Show> shows_;
  Records<Network> networks_;
  Records<Sponsor> sponsors_;
  Records<Event> events_;
  Records<GameInfo> gameInfos_;
  Records<Mail> news_;
  Records<Feud> feuds_;
  Records<Segment> segments_;
  Records<Incident> incidents_;
  Records<ShowRun> showRuns_;
  Records<HistoryEntry> history_;
  Records<HeldMatch> bouts_;
  Records<MatchTally> tallies_;
  Records<TitleReign> reigns_;
  Records<ReportPart> reports_;
  Records<YearAward> awards_;
  Records<YearEnd> yearEnds_;
  Records<Deed> deeds_;
  TextFile notes_{"notes.dat"};
  mutable UidIndex workerIndex_, promotionIndex_, staffIndex_, networkIndex_, sponsorIndex_;
  std::unique_ptr<Draws> chance_, prose_;
  SessionWords committedSession_;
};

/// The names of the ten files that a new game copies and the file check looks for, in their fixed
/// order.
inline constexpr std::array<std::string_view, 10> kDataSet = {
    "belt.dat",    "event.dat", "network.dat", "promos.dat", "sponsor.dat",
    "stables.dat", "staff.dat", "teams.dat",   "tv.dat",     "wrestler.dat"};

/// The files a folder may hold and how long each may be.
std::vector<KnownFile> KnownFiles();
/// The same for one of them; 0 for any other name.
std::int64_t MostBytesOf(std::string_view file);
/// Reads the known files of a folder; others are left alone. A step that stands beside it counts
/// (datastep.h). Throws DiskError, and WorldFault for a file that is too long or is none (a folder,
/// a link).
std::map<std::string, Bytes> ReadWorldFiles(Disk& disk, const std::string& folder);

/// Every file that the world has, whole: what a slot is made of.
std::vector<NewFile> FilesOf(const World& world);

/// "wrestler.dat, record 17, Bram Okafor, Morale: was 60, is 61" for the first field that differs
/// from what is expected; empty when the worlds are the same. differences.h lists all.
std::string FirstDifference(const World& world, const World& expected);

template <class T>
int World::NumberByUid(const Records<T>& records, UidIndex& index, int uid) {
  if (uid < 1 || uid > 32767) return 0;
  const auto at = static_cast<std::size_t>(uid);
  const auto holds = [&](int number) {
    return number >= 1 && number <= records.Count() && records[number].Uid == uid;
  };
  if (at < index.Numbers.size() && holds(index.Numbers[at])) return index.Numbers[at];
  if (const int last = records.Count(); holds(last) && at < index.Numbers.size())
    return index.Numbers[at] = last;  // just appended
  int found = 0;
  for (int number = 1; number <= records.Count() && found == 0; ++number)
    if (records[number].Uid == uid) found = number;
  if (found == 0) return 0;
  // One was not where the index said: others will have moved with it.
  index.Numbers.assign(32768, 0);
  for (int number = records.Count(); number >= 1; --number)
    if (const int held = records[number].Uid; held >= 1)
      index.Numbers[static_cast<std::size_t>(held)] = number;
  return found;
}

}  // namespace grapplemont
