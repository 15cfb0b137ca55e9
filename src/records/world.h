#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "records/fields/outside.h"
#include "records/store/knownfiles.h"
#include "records/store/numbersbykey.h"
#include "records/store/slot.h"

namespace grapplemont {

/// Words of the running session that no file keeps.
struct SessionWords {
  int ShowRating = 0;  // runs up as the sum during a show, holds its rating once it closes; cleared
                       // by the next day
  int ShowFlag = 0;    // Segments summed so far
  int ExtraCost = 0;   // dollars that the extra of the Event just held was charged; cleared with it
  int StartSize = 0;   // the player's Promotion.Size as the day's stages refresh it
  // Who sits at the table of the Event that starts, and what it has beside its card, as chosen on
  // its sheet.
  int EventAnnouncer = 0;            // Staff uid; 0 for nobody
  int EventColour = 0;               // Staff uid, or a Worker's; 0 for nobody
  bool EventColourIsWorker = false;  // EventColour is a Worker's uid
  int EventExtra = 0;                // its place among the player's extras, from 1; 0 for none
  bool CountsNoPast = false;         // nobody will read the halls of this world
  /// The reigns, and a checksum of the Titles, when they were last seen to agree.
  struct Agreed {
    unsigned Changes;
    int Count;
    std::uint64_t Titles;
    bool operator==(const Agreed&) const = default;
  };
  std::optional<Agreed> Reigns = {};
};

/// An open folder of the game: a table per file, and the sources of chance. Rules change records in
/// place; what has changed since the last commit is found by comparison.
class World {
 public:
  /// An empty world. Prose draws from a stream of its own, so that a new sentence never moves a
  /// result, and so does what the world does behind the player's back: a new habit of rivals moves
  /// no show.
  explicit World(std::unique_ptr<Draws> chance = std::make_unique<SeededDraws>(1),
                 std::unique_ptr<Draws> prose = std::make_unique<SeededDraws>(2),
                 std::unique_ptr<Draws> life = std::make_unique<SeededDraws>(3));
  World(World&&) noexcept;
  World& operator=(World&&) noexcept;
  ~World();

  template <class T>
  Records<T>& Of() {
    return std::get<Records<T>>(tables_);
  }
  template <class T>
  const Records<T>& Of() const {
    return std::get<Records<T>>(tables_);
  }
  Records<Worker>& Workers() { return Of<Worker>(); }
  const Records<Worker>& Workers() const { return Of<Worker>(); }
  Records<Promotion>& Promotions() { return Of<Promotion>(); }
  const Records<Promotion>& Promotions() const { return Of<Promotion>(); }
  Records<Staff>& AllStaff() { return Of<Staff>(); }
  const Records<Staff>& AllStaff() const { return Of<Staff>(); }
  Records<Team>& Teams() { return Of<Team>(); }
  const Records<Team>& Teams() const { return Of<Team>(); }
  Records<Stable>& Stables() { return Of<Stable>(); }
  const Records<Stable>& Stables() const { return Of<Stable>(); }
  Records<Title>& Titles() { return Of<Title>(); }
  const Records<Title>& Titles() const { return Of<Title>(); }
  Records<Show>& Shows() { return Of<Show>(); }
  const Records<Show>& Shows() const { return Of<Show>(); }
  Records<Network>& Networks() { return Of<Network>(); }
  const Records<Network>& Networks() const { return Of<Network>(); }
  Records<Sponsor>& Sponsors() { return Of<Sponsor>(); }
  const Records<Sponsor>& Sponsors() const { return Of<Sponsor>(); }
  Records<Event>& Events() { return Of<Event>(); }
  const Records<Event>& Events() const { return Of<Event>(); }
  Records<Mail>& News() { return Of<Mail>(); }
  const Records<Mail>& News() const { return Of<Mail>(); }
  Records<Feud>& Feuds() { return Of<Feud>(); }
  const Records<Feud>& Feuds() const { return Of<Feud>(); }
  Records<Segment>& Segments() { return Of<Segment>(); }
  const Records<Segment>& Segments() const { return Of<Segment>(); }
  Records<Incident>& Incidents() { return Of<Incident>(); }
  const Records<Incident>& Incidents() const { return Of<Incident>(); }
  /// One record while a show is under way, else none.
  Records<ShowRun>& ShowRuns() { return Of<ShowRun>(); }
  const Records<ShowRun>& ShowRuns() const { return Of<ShowRun>(); }
  /// The past, oldest first.
  Records<HistoryEntry>& History() { return Of<HistoryEntry>(); }
  const Records<HistoryEntry>& History() const { return Of<HistoryEntry>(); }
  /// The player's matches, oldest first, and what each worker's add up to.
  Records<HeldMatch>& Bouts() { return Of<HeldMatch>(); }
  const Records<HeldMatch>& Bouts() const { return Of<HeldMatch>(); }
  Records<MatchTally>& Tallies() { return Of<MatchTally>(); }
  const Records<MatchTally>& Tallies() const { return Of<MatchTally>(); }
  /// The reigns of all Titles, oldest first.
  Records<TitleReign>& Reigns() { return Of<TitleReign>(); }
  const Records<TitleReign>& Reigns() const { return Of<TitleReign>(); }
  /// The words of the last shows, in no order.
  Records<ReportPart>& Reports() { return Of<ReportPart>(); }
  const Records<ReportPart>& Reports() const { return Of<ReportPart>(); }
  /// When the reports' lines were last said.
  Records<SaidLine>& Said() { return Of<SaidLine>(); }
  const Records<SaidLine>& Said() const { return Of<SaidLine>(); }
  Records<YearAward>& Awards() { return Of<YearAward>(); }
  const Records<YearAward>& Awards() const { return Of<YearAward>(); }
  Records<YearEnd>& YearEnds() { return Of<YearEnd>(); }
  const Records<YearEnd>& YearEnds() const { return Of<YearEnd>(); }
  /// What the wrestling world has done lately, oldest first.
  Records<Deed>& Deeds() { return Of<Deed>(); }
  const Records<Deed>& Deeds() const { return Of<Deed>(); }
  /// One record where the game has a guide, else none.
  Records<GuideState>& Guides() { return Of<GuideState>(); }
  const Records<GuideState>& Guides() const { return Of<GuideState>(); }
  /// One record where the game has a key, else none.
  Records<WorldKey>& Keys() { return Of<WorldKey>(); }
  const Records<WorldKey>& Keys() const { return Of<WorldKey>(); }
  /// One record once the board has said something, else none.
  Records<BoardState>& Boards() { return Of<BoardState>(); }
  const Records<BoardState>& Boards() const { return Of<BoardState>(); }
  /// What the owners have wished, oldest first.
  Records<OwnerWish>& Wishes() { return Of<OwnerWish>(); }
  const Records<OwnerWish>& Wishes() const { return Of<OwnerWish>(); }
  /// One record where a month of a small promotion has been planned, else none.
  Records<MonthPlan>& MonthPlans() { return Of<MonthPlan>(); }
  const Records<MonthPlan>& MonthPlans() const { return Of<MonthPlan>(); }
  /// What rivals' last shows consisted of, oldest first.
  Records<CardMatch>& RivalCards() { return Of<CardMatch>(); }
  const Records<CardMatch>& RivalCards() const { return Of<CardMatch>(); }
  /// Who is after whom at a rival's, in no order.
  Records<Grudge>& Grudges() { return Of<Grudge>(); }
  const Records<Grudge>& Grudges() const { return Of<Grudge>(); }
  /// The names that people have given up, oldest first.
  Records<RingName>& RingNames() { return Of<RingName>(); }
  const Records<RingName>& RingNames() const { return Of<RingName>(); }
  /// What has happened in the wrestling world, kept for good (records/keepannals.h).
  Records<Annal>& Annals() { return Of<Annal>(); }
  const Records<Annal>& Annals() const { return Of<Annal>(); }
  /// How everybody stood on the firsts of twelve months, a record a worker.
  Records<WorkerMonths>& Months() { return Of<WorkerMonths>(); }
  const Records<WorkerMonths>& Months() const { return Of<WorkerMonths>(); }
  /// What has moved the morale of the player's people, oldest first.
  Records<MoodChange>& Moods() { return Of<MoodChange>(); }
  const Records<MoodChange>& Moods() const { return Of<MoodChange>(); }
  /// The last cards that were held, and drafts.
  Records<KeptRow>& KeptRows() { return Of<KeptRow>(); }
  const Records<KeptRow>& KeptRows() const { return Of<KeptRow>(); }
  /// What the last shows moved, in the order in which it happened.
  Records<ShowNote>& ShowNotes() { return Of<ShowNote>(); }
  const Records<ShowNote>& ShowNotes() const { return Of<ShowNote>(); }
  /// What is known of each mail, worked out once (records/readmail.h).
  struct MailMarks {
    unsigned Changes = 0;      // of the news, when it was worked out
    std::vector<int> Keys;     // the number that tells it from all others
    unsigned Readings = 0;     // the changes of what was read
    int Read = 0;              // records of that
    std::vector<bool> IsRead;  // by those
  };
  MailMarks& KnownMails() const { return mailMarks_; }
  /// The records that remember a line (report/saidlines.h), those that count a worker's matches,
  /// and the matches themselves (records/pastmatches.h).
  NumbersByKey& LineNumbers() const { return lineNumbers_; }
  NumbersByKey& TallyNumbers() const { return tallyNumbers_; }
  NumbersByKeys& MatchNumbers() const { return matchNumbers_; }
  /// What of the news the player has read (records/readmail.h).
  Records<ReadMail>& ReadMails() { return Of<ReadMail>(); }
  const Records<ReadMail>& ReadMails() const { return Of<ReadMail>(); }
  Records<GameInfo>& GameInfos() { return Of<GameInfo>(); }
  const Records<GameInfo>& GameInfos() const { return Of<GameInfo>(); }
  TextFile& Notes() { return std::get<TextFile>(tables_); }
  const TextFile& Notes() const { return std::get<TextFile>(tables_); }

  /// Calls `visit` with the Records of every file.
  template <class Visit>
  void ForEachFile(Visit visit) {
    const auto one = [&]<class Kept>(Kept& table) {
      if constexpr (!std::is_same_v<Kept, TextFile>) visit(table);
    };
    std::apply([&](auto&... table) { (one(table), ...); }, tables_);
  }

  /// The state of the game; throws WorldFault in a folder without one, such as the default data.
  GameInfo& Game() { return GameInfos()[OneGame()]; }
  const GameInfo& Game() const { return GameInfos()[OneGame()]; }
  bool HasGame() const { return GameInfos().Count() > 0; }
  Day Today() const { return Game().Today; }

  // By uid; nullptr for 0 and for a uid that leads nowhere. Constant time for a uid that leads
  // somewhere.
  Worker* FindWorker(int uid) { return Find<Worker>(*this, uid); }
  const Worker* FindWorker(int uid) const { return Find<Worker>(*this, uid); }
  Promotion* FindPromotion(int uid) { return Find<Promotion>(*this, uid); }
  const Promotion* FindPromotion(int uid) const { return Find<Promotion>(*this, uid); }
  Staff* FindStaff(int uid) { return Find<Staff>(*this, uid); }
  const Staff* FindStaff(int uid) const { return Find<Staff>(*this, uid); }
  Network* FindNetwork(int uid) { return Find<Network>(*this, uid); }
  const Network* FindNetwork(int uid) const { return Find<Network>(*this, uid); }
  Sponsor* FindSponsor(int uid) { return Find<Sponsor>(*this, uid); }
  const Sponsor* FindSponsor(int uid) const { return Find<Sponsor>(*this, uid); }

  /// The uid of the player's Promotion; 0 in a folder without a game.
  int PlayerUid() const { return HasGame() ? int(Game().PlayerPromotion) : 0; }
  /// The player's Promotion; throws WorldFault when there is none.
  Promotion& Player();
  const Promotion& Player() const;

  /// A whole number from 1 to n; 1 for n under 2.
  int RandomDraw(int n) { return chance_->Draw(n); }
  Draws& Prose() { return *prose_; }
  /// Chance for careers, stories and habits that no rule of the player's promotion knows.
  Draws& Life() { return *life_; }
  /// Draws that are the same whenever this game asks for them: for what is worked out when it is
  /// looked at, or has always been so. The numbers tell one subject from another.
  SeededDraws Fate(std::string_view purpose, std::initializer_list<int> subject) const;
  void SetChance(std::unique_ptr<Draws> chance) { chance_ = std::move(chance); }
  /// The source that prose drew from until now; it draws from this one then.
  std::unique_ptr<Draws> ExchangeProse(std::unique_ptr<Draws> prose) {
    return std::exchange(prose_, std::move(prose));
  }
  void SetLife(std::unique_ptr<Draws> life) { life_ = std::move(life); }

  SessionWords Session;

  /// Every file of a world, the ten of the data set first and in their fixed order.
  static constexpr int kTables = std::tuple_size_v<AllTables>;
  std::array<Table*, kTables> Tables();
  std::array<const Table*, kTables> Tables() const;

  /// Takes over a folder's files and counts them as committed. Throws WorldFault.
  void Load(const std::map<std::string, Bytes>& files);
  /// Becomes a copy of another world that was never committed. The draws stay its own. A world that
  /// is copied into again and again uses its memory again; others may copy from the same one at the
  /// same time.
  void CopyFrom(const World& other);
  /// What differs from the last commit; the spans hold until the next change.
  std::vector<FileChange> Changes() const;
  void MarkCommitted() { MarkCommitted(Changes()); }
  /// The same where Changes() has just given these.
  void MarkCommitted(const std::vector<FileChange>& changes);
  void Rollback();
  /// "wrestler.dat, record 17, Morale: The value ..." for a field of this world, else the fault's
  /// own text.
  std::string Explain(const FieldOverflow& fault) const;

 private:
  /// The number of the one record of gameinfo.dat.
  int OneGame() const {
    if (!HasGame()) ThrowNoGame();
    return 1;
  }
  [[noreturn]] static void ThrowNoGame();

  /// Record numbers by uid. An entry is only a guess that the record itself confirms.
  template <class T>
  struct UidIndex {
    std::vector<int> Numbers;
  };
  template <class T>
  static int NumberByUid(const Records<T>& records, UidIndex<T>& index, int uid);
  template <class T, class Self>
  static auto Find(Self& self, int uid) -> decltype(&self.template Of<T>()[1]) {
    auto& records = self.template Of<T>();
    const int number = NumberByUid(records, std::get<UidIndex<T>>(self.indices_), uid);
    return number == 0 ? nullptr : &records[number];
  }

  AllTables tables_;
  mutable std::tuple<UidIndex<Worker>, UidIndex<Promotion>, UidIndex<Staff>, UidIndex<Network>,
                     UidIndex<Sponsor>>
      indices_;
  mutable MailMarks mailMarks_;
  mutable NumbersByKey lineNumbers_, tallyNumbers_;
  mutable NumbersByKeys matchNumbers_;
  std::unique_ptr<Draws> chance_, prose_, life_;
  SessionWords committedSession_;
};

/// Reads the known files of a folder; others are left alone. A step that stands beside it counts
/// (datastep.h). Throws DiskError, and WorldFault for what is too long or not a file (a folder,
/// a link).
std::map<std::string, Bytes> ReadWorldFiles(Disk& disk, const std::string& folder);

/// Every file that the world has, whole: what a slot is made of.
std::vector<NewFile> FilesOf(const World& world);

/// "wrestler.dat, record 17, Bram Okafor, Morale: was 60, is 61" for the first field that differs
/// from what is expected; empty when the worlds are the same. differences.h lists all.
std::string FirstDifference(const World& world, const World& expected);

template <class T>
int World::NumberByUid(const Records<T>& records, UidIndex<T>& index, int uid) {
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
