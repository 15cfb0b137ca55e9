#include "records/segmentparts.h"

#include <algorithm>

#include "words/purposes.h"

namespace grapplemont {

namespace {

std::vector<int> Present(std::initializer_list<int> uids) {
  std::vector<int> people(uids);
  std::erase(people, 0);
  return people;
}

/// In a draw the first side stands where the winners would, the second where the losers would.
std::vector<int> TeamOf(const Segment& segment, bool isWinning) {
  const auto sides = SidesOf(segment);
  std::vector<int> team;
  if (!IsDraw(segment))
    team = isWinning ? WinnersOf(segment) : LosersOf(segment);
  else if (sides.size() == 2)
    team = sides[isWinning ? 0 : 1];
  std::erase(team, 0);
  return team;
}

/// A run-in that goes wrong, or costs its man the match by disqualification, was against the
/// winner.
bool IsAgainstWinner(const Segment& segment) {
  return segment.Finish == kBotchedInterference || segment.Finish == kDqThroughInterference;
}

bool IsForASide(const Segment& segment) {
  return segment.Finish == kInterference || IsAgainstWinner(segment);
}

template <std::size_t N>
PurposeRow FindPurpose(const PurposeRow (&rows)[N], int code) {
  for (const PurposeRow& row : rows)
    if (row.Code == code) return row;
  return {};
}

std::vector<int> FirstOf(const std::vector<int>& team) {
  return team.empty() ? team : std::vector<int>{team.front()};
}

}  // namespace

PurposeRow PurposeOf(const Segment& segment) {
  if (segment.Style == kSingles) return FindPurpose(kSinglesAims, segment.Purpose);
  return segment.Style == kTag ? FindPurpose(kTagAims, segment.Purpose) : PurposeRow();
}

bool IsRunIn(Part part) {
  return part >= Part::Other1;
}

int FallenOf(const Segment& segment) {
  const std::vector<int> losers = LosersOf(segment);
  if (losers.empty()) return 0;
  // The number that stands for no loser may be somebody's uid.
  const bool isNamed = std::find(losers.begin(), losers.end(), int(segment.Loser)) != losers.end();
  return isNamed ? int(segment.Loser) : losers.front();
}

std::vector<int> PeopleOf(const Segment& segment, Part part) {
  const bool isDraw = IsDraw(segment);
  switch (part) {
    case Part::Nobody:
      return {};
    case Part::Winner:
      return isDraw ? FirstOf(TeamOf(segment, true)) : Present({segment.Winner});
    case Part::Loser:
      return isDraw ? FirstOf(TeamOf(segment, false)) : Present({FallenOf(segment)});
    case Part::LosersPartner:
      return Present({PartnerOf(segment, FallenOf(segment))});
    case Part::WinningTeam:
      return TeamOf(segment, true);
    case Part::LosingTeam:
      return TeamOf(segment, false);
    case Part::Attacked:
      if (isDraw) return {};
      return PeopleOf(segment, IsAgainstWinner(segment) ? Part::Winner : Part::Loser);
    case Part::AttackedTeam:
      if (isDraw) return {};
      return TeamOf(segment, IsAgainstWinner(segment));
    case Part::Helped:
      if (isDraw || !IsForASide(segment)) return {};
      return PeopleOf(segment, IsAgainstWinner(segment) ? Part::Loser : Part::Winner);
    case Part::HelpedTeam:
      if (isDraw || !IsForASide(segment)) return {};
      return TeamOf(segment, !IsAgainstWinner(segment));
    case Part::Worker1:
    case Part::Worker2:
    case Part::Worker3:
    case Part::Worker4: {
      const int place = 1 + static_cast<int>(part) - static_cast<int>(Part::Worker1);
      return Present({UidAt(segment, place)});
    }
    case Part::FirstTeam:
      return Present({UidAt(segment, 1), UidAt(segment, 2)});
    case Part::SecondTeam:
      return Present({UidAt(segment, 3), UidAt(segment, 4)});
    case Part::Other1:
    case Part::Other2:
    case Part::Other3:
    case Part::Other4: {
      const int others[] = {segment.Other1, segment.Other2, segment.Other3, segment.Other4};
      return Present({others[static_cast<int>(part) - static_cast<int>(Part::Other1)]});
    }
    case Part::Others12:
      return Present({segment.Other1, segment.Other2});
    case Part::Others34:
      return Present({segment.Other3, segment.Other4});
  }
  return {};
}

}  // namespace grapplemont
