#include <algorithm>
#include <utility>

#include "show/consequences.h"
#include "show/feudtallies.h"
#include "show/segmentroles.h"

namespace grapplemont {

namespace {

constexpr int kAny = 0;

/// Who attacks whom when a match ends, or is over, like this.
struct Attack {
  Part By;
  Part On;
  int Finish;
  int Aftermath;
};
constexpr Attack kSinglesAttacks[] = {
    {Part::Other1, Part::Winner, kNoContest, kAny},
    {Part::Other1, Part::Winner, kDqThroughInterference, kAny},
    {Part::Other1, Part::Winner, kAny, after1::kRunInOnFirst},
    {Part::Other1, Part::Winner, kAny, after1::kRunInOnBoth},
    {Part::Other1, Part::Winner, kAny, after1::kRunInDestroys},
    {Part::Other1, Part::Loser, kInterference, kAny},
    {Part::Other1, Part::Loser, kNoContest, kAny},
    {Part::Other1, Part::Loser, kAny, after1::kRunInOnSecond},
    {Part::Other1, Part::Loser, kAny, after1::kRunInOnBoth},
    {Part::Other1, Part::Loser, kAny, after1::kRunInDestroys},
    {Part::Other2, Part::Other1, kAny, after1::kSave},
    {Part::Other2, Part::Winner, kInterference, after1::kSave},
    {Part::Other2, Part::Loser, kBotchedInterference, after1::kSave},
    {Part::Other2, Part::Loser, kDqThroughInterference, after1::kSave},
    {Part::Other1, Part::Other2, kAny, after1::kFailedSave},
    {Part::Winner, Part::Other2, kInterference, after1::kFailedSave},
    {Part::Loser, Part::Other2, kBotchedInterference, after1::kFailedSave},
    {Part::Loser, Part::Other2, kDqThroughInterference, after1::kFailedSave},
    {Part::Winner, Part::Other1, kBotchedInterference, kAny},
};
constexpr Attack kTagAttacks[] = {
    {Part::Others12, Part::WinningTeam, kNoContest, kAny},
    {Part::Others12, Part::WinningTeam, kDqThroughInterference, kAny},
    {Part::Others12, Part::LosingTeam, kInterference, kAny},
    {Part::Others12, Part::LosingTeam, kNoContest, kAny},
    {Part::WinningTeam, Part::Others12, kBotchedInterference, kAny},
    {Part::FirstTeam, Part::SecondTeam, kAny, after2::kFirstBeatsSecond},
    {Part::SecondTeam, Part::FirstTeam, kAny, after2::kSecondBeatsFirst},
    {Part::Others12, Part::LosingTeam, kInterference, after2::kAssaultGoesOn},
    {Part::Others12, Part::WinningTeam, kDqThroughInterference, after2::kAssaultGoesOn},
    {Part::WinningTeam, Part::LosingTeam, kAny, after2::kThreeOnTwo},
    {Part::Other1, Part::LosingTeam, kAny, after2::kThreeOnTwo},
    {Part::LosingTeam, Part::Other1, kAny, after2::kAttackRunIn},
    {Part::LosingTeam, Part::Others12, kAny, after2::kAttackRunIns},
    {Part::Others34, Part::Others12, kAny, after2::kSave},
    {Part::Others34, Part::WinningTeam, kInterference, after2::kSave},
    {Part::Others34, Part::LosingTeam, kBotchedInterference, after2::kSave},
    {Part::Others34, Part::LosingTeam, kDqThroughInterference, after2::kSave},
    {Part::Others12, Part::Others34, kAny, after2::kFailedSave},
    {Part::WinningTeam, Part::Others34, kInterference, after2::kFailedSave},
    {Part::LosingTeam, Part::Others34, kBotchedInterference, after2::kFailedSave},
    {Part::LosingTeam, Part::Others34, kDqThroughInterference, after2::kFailedSave},
    {Part::Others34, Part::Worker1, kAny, after2::kRunInOnFirst},
    {Part::Others34, Part::Worker2, kAny, after2::kRunInOnSecond},
    {Part::Others34, Part::Worker3, kAny, after2::kRunInOnThird},
    {Part::Others34, Part::Worker4, kAny, after2::kRunInOnFourth},
    {Part::Others34, Part::FirstTeam, kAny, after2::kRunInOnFirstTeam},
    {Part::Others34, Part::SecondTeam, kAny, after2::kRunInOnSecondTeam},
    {Part::Others34, Part::FirstTeam, kAny, after2::kRunInOnBoth},
    {Part::Others34, Part::SecondTeam, kAny, after2::kRunInOnBoth},
};

bool Fits(const Attack& attack, const Segment& segment) {
  return (attack.Finish == kAny || attack.Finish == segment.Finish) &&
         (attack.Aftermath == kAny || attack.Aftermath == segment.Aftermath);
}

using Pairs = std::vector<std::pair<int, int>>;

/// A pair attacks a pair man by man; one alone is attacked by both, or attacks both.
void AddPairs(Pairs& pairs, const std::vector<int>& by, const std::vector<int>& on) {
  if (by.empty() || on.empty()) return;
  for (std::size_t i = 0; i < std::max(by.size(), on.size()); ++i) {
    const std::pair pair{by[std::min(i, by.size() - 1)], on[std::min(i, on.size() - 1)]};
    // However often he hits the same one, it was one attack.
    if (std::find(pairs.begin(), pairs.end(), pair) == pairs.end()) pairs.push_back(pair);
  }
}

}  // namespace

void TallyAttacks(SegmentRun& run) {
  const Segment& segment = run.Segment;
  Pairs pairs;
  const auto collect = [&](const auto& attacks) {
    for (const Attack& attack : attacks)
      if (Fits(attack, segment))
        AddPairs(pairs, PeopleOf(segment, attack.By), PeopleOf(segment, attack.On));
  };
  if (segment.Style == kSingles) collect(kSinglesAttacks);
  if (segment.Style == kTag) collect(kTagAttacks);
  for (const auto& [attacker, target] : pairs) TallyAttack(run, attacker, target);
}

}  // namespace grapplemont
