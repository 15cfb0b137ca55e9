#include "records/keepannals.h"
#include "records/modVar.h"
#include "records/segmentparts.h"
#include "show/legend.h"
#include "show/nightbook.h"
#include "show/overchange.h"
#include "show/showfeuds.h"
#include "storylines/feuds.h"

namespace grapplemont {

namespace {

/// How a feud that has ended went, as its people remember it. Nobody writes about a plain one.
enum class FeudStory { Plain, Comeback, Long, Rout };

/// From this Attitude on the mild words are chosen; a team speaks with its first member's.
constexpr int kMild = 61;

struct Words {
  Wording Mild;
  Wording Loud;
};

/// What a side writes.
struct FeudMail {
  FeudStory Story;
  bool FromWinners;
  Words Single;
  std::string_view TeamMild, TeamLoud;
};

constexpr Words kHelpedALot = {
    {"That feud was excellent, it has really helped me. ",
     "That feud was excellent, brother, it has really helped the Maulster. "},
    {"That last feud rocked, it has helped my career a lot! ",
     "That last feud rocked, brother, Maulamania is running wilder than ever! "}};
constexpr Wording kWasGreat = {"The last feud was great, thanks. ",
                               "The last feud was great, thanks, brother. "};
constexpr Wording kExcellent = {
    "My last feud was excellent, it has helped me a lot. ",
    "My last feud was excellent, brother, it has helped the Maulster a lot. "};
constexpr Wording kHated = {
    "I hated the last feud, it has done a lot of damage to my image. ",
    "I hated the last feud, brother, it has done a lot of damage to the Maulster's image. "};

constexpr FeudMail kMails[] = {
    {FeudStory::Comeback, true, kHelpedALot, "Great feud, thanks for booking it. ",
     "That last feud ruled, we hope the next one is just as good! "},
    {FeudStory::Comeback,
     false,
     {kWasGreat, kWasGreat},
     "Great feud, that helped both us and our opponents get over. ",
     "Great feud, that helped both us and our opponents get over. "},
    {FeudStory::Long,
     true,
     {kExcellent, kExcellent},
     "That last feud was well booked, thank you. ",
     "The previous feud was excellent. "},
    {FeudStory::Rout,
     false,
     {kHated, kHated},
     "That last feud sucked, we were much better off before. ",
     "That last feud sucked, we were much better off before. "},
};

/// The mails of the sides that won and lost the last match.
void WriteAboutFeud(World& world, FeudStory story, const FeudSide& winners,
                    const FeudSide& losers) {
  for (const FeudMail& mail : kMails) {
    if (mail.Story != story) continue;
    const FeudSide& side = mail.FromWinners ? winners : losers;
    const Worker* speaker = world.FindWorker(side.First);
    if (!speaker) continue;
    const bool isMild = speaker->Attitude >= kMild;
    const std::string_view text = side.IsTeam()
                                      ? (isMild ? mail.TeamMild : mail.TeamLoud)
                                      : (isMild ? mail.Single.Mild : mail.Single.Loud).By(*speaker);
    AddNews(world, SideName(world, side), text);
  }
}

/// Fewer events than these, and nobody has noticed the feud.
constexpr int kNoticed = 4;
constexpr int kBlowOff = 2;  // for the winners, and off the losers
constexpr int kNoCheapWins = -3;

/// An ended feud as its rules look at it: Y won the last match, X lost it.
struct Ended {
  bool IsTeams;
  int X, Y;    // tallies
  int CheapX;  // cheap wins
  int CleanY;  // clean wins
};

/// The first that fits is paid and written about.
struct EndRule {
  bool (*Fits)(const Ended&);
  FeudPayout Pays;
  FeudStory Story;
};
constexpr int kFarAhead = 5;
constexpr EndRule kEndRules[] = {
    {[](const Ended& e) {
       return e.X > e.Y + kFarAhead && e.Y == 1 && e.CleanY == 1 && e.CheapX >= 4;
     },
     {7, 7},
     FeudStory::Comeback},
    {[](const Ended& e) { return e.X + e.Y > (e.IsTeams ? 13 : 12); }, {4, 7}, FeudStory::Long},
    {[](const Ended& e) { return e.X == e.Y && !e.IsTeams; }, {4, 4}, FeudStory::Plain},
    {[](const Ended& e) { return e.X == e.Y; }, {3, 3}, FeudStory::Plain},
    {[](const Ended& e) { return e.Y > e.X + kFarAhead; }, {-7, 4}, FeudStory::Rout},
    {[](const Ended& e) { return e.X > e.Y + kFarAhead; }, {3, 3}, FeudStory::Plain},
};

Ended Look(const Feud& feud, bool firstWon) {
  const FeudScore score = FeudWins(feud);
  if (firstWon) return {!feud.Singles, score.Two, score.One, feud.Dirty2, feud.Clean1};
  return {!feud.Singles, score.One, score.Two, feud.Dirty1, feud.Clean2};
}

const EndRule* RuleOf(const Ended& ended) {
  for (const EndRule& rule : kEndRules)
    if (rule.Fits(ended)) return &rule;
  return nullptr;
}

void Pay(SegmentRun& run, const FeudSide& side, int change) {
  for (const int uid : {side.First, side.Second})
    if (Worker* worker = run.World.FindWorker(uid))
      ChangeOverAndTell(run, *worker, change, "how the feud ended");
}

/// Both sides by the record as it stands, the match that ends it included.
void PayOff(SegmentRun& run, const Feud& feud, bool firstWon) {
  const FeudSides sides = SidesOf(feud);
  const FeudPayout payout = PayoutOf(feud, firstWon);
  Pay(run, sides.One, firstWon ? payout.Winners : payout.Losers);
  Pay(run, sides.Two, firstWon ? payout.Losers : payout.Winners);
  if (const EndRule* rule = RuleOf(Look(feud, firstWon)))
    WriteAboutFeud(run.World, rule->Story, firstWon ? sides.One : sides.Two,
                   firstWon ? sides.Two : sides.One);
}

}  // namespace

FeudPayout PayoutOf(const Feud& feud, bool firstWon) {
  const EndRule* rule = RuleOf(Look(feud, firstWon));
  FeudPayout payout = rule ? rule->Pays : FeudPayout{};
  payout.Losers -= kBlowOff;
  payout.Winners += kBlowOff;
  if (feud.Dirty1 != 0 || feud.Dirty2 != 0) return payout;
  return {payout.Losers + kNoCheapWins, payout.Winners + kNoCheapWins};
}

int FeudEndedBy(const World& world, const Segment& segment) {
  if (segment.Kind != kMatch || PurposeOf(segment).Does != Aim::EndsFeud) return 0;
  return FeudSlotOf(world, segment, segment.Style == kTag);
}

void EndFeudByMatch(SegmentRun& run) {
  const int slot = FeudEndedBy(run.World, run.Segment);
  if (slot == 0) return;
  MarkSlot(run, slot);
  Feud& feud = run.World.Feuds()[slot];
  const FeudScore score = FeudWins(feud);
  const std::string name = FeudText(run.World, feud);
  const int heat = feud.Heat;
  run.FeudEnding = true;
  // Without a winner there is no blow-off to pay for.
  if (const int side = FeudSideOf(feud, run.Segment.Winner);
      side != 0 && score.One + score.Two >= kNoticed)
    PayOff(run, feud, side == 1);
  const int winners = FeudSideOf(feud, run.Segment.Winner);
  KeepFeud(run.World, winners == 0 ? kAnnalFeudCold : kAnnalFeudOver, feud, winners == 2);
  for (Word* worker : {&feud.Worker1, &feud.Worker2, &feud.Worker3, &feud.Worker4}) *worker = 0;
  run.FeudEnding = false;
  NoteFact(run, {kNoteFeudEnd, name}, 0, heat,
           score.One + score.Two < kNoticed ? "ended before anybody had noticed it"
                                            : "ended by this match");
}

}  // namespace grapplemont
