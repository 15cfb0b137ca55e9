#include "show/overchange.h"

#include <cstdlib>
#include <span>

#include "records/angles.h"
#include "records/keepannals.h"
#include "records/modWresCheck.h"
#include "show/nightbook.h"
#include "show/titlechange.h"
#include "storylines/partners.h"

namespace grapplemont {

int ChangeOver(Worker& worker, int change) {
  const int before = worker.Over;
  worker.Over += change;
  return worker.Over - before;
}

void ReportOver(SegmentRun& run, const Worker& worker, int change, const std::string& why) {
  if (change == 0) return;
  NoteStep(run, kNoteOver, worker, change, worker.Over, why);
  run.Notes += worker.Name.Str() + (change < 0 ? " lost " : " gained ");
  if (run.World.Game().Difficulty == kEasy)
    run.Notes += std::to_string(std::abs(change)) + (change == 1 ? " point of " : " points of ");
  run.Notes += "overness from this ";
  run.Notes += run.FeudEnding               ? "feud ending. "
               : run.Segment.Kind == kMatch ? "match. "
                                            : "segment. ";
}

void ChangeOverAndTell(SegmentRun& run, Worker& worker, int change, const std::string& why) {
  ReportOver(run, worker, ChangeOver(worker, change), why);
}

namespace {

/// What does not become a worker: an aftermath that costs one of this disposition Over.
struct OutOfCharacter {
  int Aftermath;
  std::string_view Disposition;
  bool Drawn;  // a draw of the amount, else the amount
  int Amount;
};
constexpr OutOfCharacter kUnlikeWinner[] = {{after1::kHandshake, "H", true, 5},
                                            {after1::kFirstRefusesHand, "F", true, 5},
                                            {after1::kWinnerRuns, "F", false, 2}};
constexpr OutOfCharacter kUnlikeLoser[] = {{after1::kHandshake, "H", true, 5},
                                           {after1::kSecondRefusesHand, "F", true, 5},
                                           {after1::kLoserRuns, "F", false, 2}};

int PenaltyOf(SegmentRun& run, const Worker& worker, std::span<const OutOfCharacter> rows) {
  int change = 0;
  for (const OutOfCharacter& row : rows)
    if (run.Segment.Aftermath == row.Aftermath && worker.Disposition == row.Disposition)
      change -= row.Drawn ? run.World.RandomDraw(row.Amount) : row.Amount;
  return change;
}

constexpr int kTeamGap = 20;
constexpr int kLuck = 2;  // the draw on which a result counts

/// `result` is 1 for a winner, -1 for a loser: they fall where a winner rises, but a loud crowd
/// lifts either. Draws once.
void ShiftTeamMember(SegmentRun& run, Worker& worker, bool gap, int result, int draw) {
  const bool isLucky = run.World.RandomDraw(draw) == kLuck;
  const bool isClean = run.Segment.Finish == kClean, isLoud = run.Crowd > worker.Over;
  ChangeOverAndTell(run, worker, gap ? result * (isLucky + isClean) + isLoud : 0,
                    result > 0 ? "beat a more popular team" : "lost to a less popular team");
}

void ShiftOverSingles(SegmentRun& run, Worker& winner, Worker& loser) {
  const int winnerOver = winner.Over, loserOver = loser.Over;
  const bool isClean = run.Segment.Finish == kClean;
  const auto isAbove = [&](int gap) { return loserOver > winnerOver + gap; };

  const int penalty = ChangeOver(winner, PenaltyOf(run, winner, kUnlikeWinner));

  const bool isUnlucky = run.World.RandomDraw(5) == kLuck;
  int lost = isAbove(5) && isUnlucky ? -1 : 0;
  if (isAbove(10) && isClean) --lost;
  if (isAbove(10) && run.Crowd > loser.Over) ++lost;
  lost += PenaltyOf(run, loser, kUnlikeLoser);
  ReportOver(run, loser, ChangeOver(loser, lost), "lost to " + winner.Name.Str());

  const bool isLucky = run.World.RandomDraw(5) == kLuck;
  int gained = isAbove(10) && isLucky ? 1 : 0;
  if (isAbove(7) && isClean) ++gained;
  if (isAbove(7) && run.Crowd > winner.Over) ++gained;
  ReportOver(run, winner, ChangeOver(winner, gained) + penalty, "beat " + loser.Name.Str());
}

void ShiftOverTeams(SegmentRun& run, Worker& winner1, Worker& winner2, Worker& loser1,
                    Worker& loser2) {
  const bool gap = loser1.Over + loser2.Over > winner1.Over + winner2.Over + kTeamGap;
  ShiftTeamMember(run, loser1, gap, -1, 8);
  ShiftTeamMember(run, loser2, gap, -1, 6);
  ShiftTeamMember(run, winner2, gap, 1, 5);
  ShiftTeamMember(run, winner1, gap, 1, 5);
}

/// The cast of the angle by its boxes; nullptr for nobody.
struct Cast {
  Worker* One;
  Worker* Two;
  Worker* Three;
};

/// Tells what one has come to be to the other.
void Tell(SegmentRun& run, std::string_view one, std::string_view what, std::string_view other) {
  run.Notes.append(one).append(what).append(other).append(". ");
}

void TakeManager(SegmentRun& run, const Cast& cast) {
  const int manager = cast.One ? int(cast.One->Uid) : 0;
  if (!cast.Two || cast.Two->Manager == manager) return;
  cast.Two->Manager = manager;
  if (cast.One) Tell(run, cast.One->Name.View(), " now manages ", cast.Two->Name.View());
}

void ChangeManager(SegmentRun& run, const Cast& cast) {
  if (cast.Three && cast.Three->Manager != 0) {
    const std::string former = WorkerName(run.World, cast.Three->Manager);
    cast.Three->Manager = 0;
    if (!former.empty()) Tell(run, former, " no longer manages ", cast.Three->Name.View());
  }
  TakeManager(run, cast);
}

void JoinStable(SegmentRun& run, const Cast& cast) {
  if (!cast.One) return;
  cast.One->Stable = run.Segment.Text.View();
  KeepGroup(run.World, kAnnalJoined, run.Segment.Text, cast.One->Uid);
  Tell(run, cast.One->Name.View(), " joined ", run.Segment.Text.View());
}

void LeaveStable(SegmentRun& run, const Cast& cast) {
  if (!cast.One || cast.One->Stable == "None") return;
  Tell(run, cast.One->Name.View(), " is out of ", cast.One->Stable.View());
  cast.One->Stable = "None";
}

/// A Title for one, or for the two.
void Award(SegmentRun& run, const Cast& cast) {
  const bool isForTeams = run.Segment.Style == kAwardTag;
  if (!cast.Two || (isForTeams && !cast.Three)) return;
  Title* title = TitleAtStake(run.World, run.Segment);
  // Somebody may have won it since the show was booked.
  if (!title || title->Holder != 0) return;
  PassTitle(run, *title, cast.Two->Uid, isForTeams ? int(cast.Three->Uid) : 0,
            isForTeams ? " were awarded " : " was awarded ");
}

struct Move {
  int Angle;
  void (*Apply)(SegmentRun&, const Cast&);
};
constexpr Move kMoves[] = {
    {kManagementIssues, ChangeManager},
    {kManagerialDebut, TakeManager},
    {kManagersSurprise, TakeManager},
    {kStableInduction, JoinStable},
    {kStableKickOut, LeaveStable},
    {kAwardSingles, Award},
    {kAwardTag, Award},
};

/// Managers, stables and Titles that the angle moves.
void MoveByAngle(SegmentRun& run) {
  const auto& places = run.Segment.Worker;
  for (const Move& move : kMoves)
    if (run.Segment.Style == move.Angle)
      move.Apply(run, {run.World.FindWorker(places[0]), run.World.FindWorker(places[1]),
                       run.World.FindWorker(places[2])});
}

constexpr int kSensation = 91;
constexpr int kClearlyAbove = 8;
/// Nobody this popular gains by less than a sensation.
constexpr int kAtTheTop = 90;
constexpr int kFarBelow = 20;

int GainFrom(SegmentRun& run, int over, bool isSecondary) {
  const auto draw = [&](int n) {
    return isSecondary ? run.World.RandomDraw(2) - 1 : run.World.RandomDraw(n);
  };
  if (run.Overall <= over) return 0;
  if (run.Overall >= kSensation) return draw(kSensationalTalk);
  return run.Overall > over + kClearlyAbove && over < kAtTheTop ? draw(kGoodTalk) : 0;
}

int LossFrom(SegmentRun& run, int over, bool isSecondary) {
  if (run.Overall >= over - kTalkBelow) return 0;
  if (run.Overall < over - kFarBelow && !isSecondary) return -kPoorTalk - run.World.RandomDraw(4);
  return -kPoorTalk;
}

/// By the final rating. Who only stands by (secondary) gains and loses less.
void TalkOver(SegmentRun& run, int uid, bool isSecondary) {
  Worker* worker = run.World.FindWorker(uid);
  if (!worker) return;
  const int over = worker->Over;
  ChangeOverAndTell(
      run, *worker, GainFrom(run, over, isSecondary) + LossFrom(run, over, isSecondary),
      "a promo of " + std::to_string(run.Overall) + " against an Over of " + std::to_string(over));
}

void AfterInterview(SegmentRun& run) {
  const InterviewStyleRow* style = FindInterviewStyle(run.Segment.Style);
  if (!style) return;
  // Where a manager speaks, the last of the speakers only stands by.
  const bool isManaged = !SeatedAs(run.Segment, Casting::TalkManagers).empty();
  for (int place = 1; place <= style->Speakers; ++place)
    TalkOver(run, UidAt(run.Segment, place), isManaged && place == style->Speakers);
}

void AfterAngle(SegmentRun& run) {
  const Angle* angle = FindAngle(run.Segment.Style);
  if (!angle) return;
  for (int place = 1; place <= kAnglePlaces; ++place) {
    // The one who is impersonated is only shown up.
    if (angle->Number == kImpression && place == 2) continue;
    TalkOver(run, UidAt(run.Segment, place), false);
  }
  if (!HasStableRole(*angle)) return;
  const Worker* leader = StableLeader(run.World, run.Segment.Text);
  // Who is on camera in person has had their share.
  if (leader && !TakesPart(run.Segment, leader->Uid)) TalkOver(run, leader->Uid, false);
}

}  // namespace

void ShiftOver(SegmentRun& run) {
  std::vector<Worker*> people;
  for (const auto& side : {WinnersOf(run.Segment), LosersOf(run.Segment)})
    for (const int uid : side)
      if (Worker* worker = run.World.FindWorker(uid)) people.push_back(worker);
  if (run.Segment.Style == kSingles && people.size() == 2)
    ShiftOverSingles(run, *people[0], *people[1]);
  if (run.Segment.Style == kTag && people.size() == 4)
    ShiftOverTeams(run, *people[0], *people[1], *people[2], *people[3]);
}

void TalkConsequences(SegmentRun& run) {
  if (run.Segment.Kind == kInterview) AfterInterview(run);
  if (run.Segment.Kind != kAngle) return;
  AfterAngle(run);
  MoveByAngle(run);
}

}  // namespace grapplemont
