#include "show/resultover.h"

#include "show/consequences.h"
#include "show/overreport.h"

namespace grapplemont {

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

template <std::size_t N>
int PenaltyOf(SegmentRun& run, const Worker& worker, const OutOfCharacter (&rows)[N]) {
  int change = 0;
  for (const OutOfCharacter& row : rows)
    if (run.Segment.Aftermath == row.Aftermath && worker.Disposition == row.Disposition)
      change -= row.Drawn ? run.World.RandomDraw(row.Amount) : row.Amount;
  return change;
}

constexpr int kTeamGap = 20;
constexpr int kLuck = 2;  // the draw on which a result counts

/// `result` is 1 for a winner, -1 for a loser: he falls where a winner rises, but a loud crowd
/// lifts either. Draws once.
void ShiftTeamMember(SegmentRun& run, Worker& worker, bool gap, int result, int draw) {
  const bool isLucky = run.World.RandomDraw(draw) == kLuck;
  const bool isClean = run.Segment.Finish == kClean, isLoud = run.Crowd > worker.Over;
  ChangeOverAndTell(run, worker, gap ? result * (isLucky + isClean) + isLoud : 0);
}

}  // namespace

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
  ReportOver(run, loser, ChangeOver(loser, lost), true);

  const bool isLucky = run.World.RandomDraw(5) == kLuck;
  int gained = isAbove(10) && isLucky ? 1 : 0;
  if (isAbove(7) && isClean) ++gained;
  if (isAbove(7) && run.Crowd > winner.Over) ++gained;
  ReportOver(run, winner, ChangeOver(winner, gained) + penalty, true);
}

void ShiftOverTeams(SegmentRun& run, Worker& winner1, Worker& winner2, Worker& loser1,
                    Worker& loser2) {
  const bool gap = loser1.Over + loser2.Over > winner1.Over + winner2.Over + kTeamGap;
  ShiftTeamMember(run, loser1, gap, -1, 8);
  ShiftTeamMember(run, loser2, gap, -1, 6);
  ShiftTeamMember(run, winner2, gap, 1, 5);
  ShiftTeamMember(run, winner1, gap, 1, 5);
}

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

}  // namespace grapplemont
