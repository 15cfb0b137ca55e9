#include <initializer_list>

#include "booking/offers.h"

namespace grapplemont {

namespace {

/// A set of match types.
using Types = unsigned;
constexpr Types Only(std::initializer_list<int> types) {
  Types set = 0;
  for (const int type : types) set |= 1u << type;
  return set;
}
constexpr Types AllBut(std::initializer_list<int> types) {
  return ~Only(types);
}
constexpr Types kEvery = ~0u;

/// An entry of the list of a match with a winner, and the types that have it.
struct FinishRow {
  int Finish;
  Types In;
};
constexpr FinishRow kSinglesList[] = {
    {kClean, AllBut({kHighIncident})},
    {kInterference, AllBut({kHighIncident})},
    {kBotchedInterference, AllBut({kHighIncident})},
    {kCountOut, Only({kPlainSingles})},
    {kDqThroughInterference, Only({kPlainSingles})},
    {kCheating, AllBut({kSubmission, kCage, kTexasDeath, kLastManStanding, kLadder, kTables,
                        kBraAndPanties, kIQuit, kHighIncident, kBuckNaked})},
    {kSickBump, Only({kLadder, kIQuit, kHellInACell, kHighIncident, kBarbedWire, kDeathMatch})},
};
constexpr FinishRow kTagList[] = {
    {kClean, kEvery},
    {kCountOut, Only({kPlainTag})},
    {kDqThroughInterference, Only({kPlainTag})},
    {kInterference, kEvery},
    {kBotchedInterference, kEvery},
    {kCheating, Only({kPlainTag, kTagHardcore})},
    {kMiscommunication, AllBut({kTagCage, kTagLadder})},
    {kPartnerTurns, AllBut({kTagCage, kTagLadder})},
    {kSickBump, Only({kTagLadder})},
};

bool MayTurn(const World& world, int uid) {
  const Worker* worker = world.FindWorker(uid);
  return worker && worker->TurnPending;
}

/// The last three codes of the style are those of a draw.
std::vector<int> DrawsOf(const Segment& match) {
  if (match.Style == kSingles || match.Style == kTag)
    return {kDoubleDq, kDoubleCountOut, kNoContest};
  const int last = FinishesOf(match.Style).back().Code;
  return {last - 2, last - 1, last};
}

/// Whoever is ready to turn may do so whether anybody wins or not.
std::vector<int> TeamFinishes(const World& world, const Segment& match) {
  std::vector<int> offered;
  if (!IsDraw(match)) offered = {kClean, kCheapVictory};
  int code = kFirstTurns;
  for (const int uid : PeopleOf(match)) {
    if (MayTurn(world, uid)) offered.push_back(code);
    ++code;
  }
  if (!IsDraw(match)) return offered;
  for (const int draw : DrawsOf(match)) offered.push_back(draw);
  return offered;
}

}  // namespace

std::vector<int> OfferedFinishes(const World& world, const Segment& match) {
  if (FinishesOf(match.Style).empty()) return {};
  if (match.Style != kSingles && match.Style != kTag) return TeamFinishes(world, match);
  if (IsDraw(match)) return DrawsOf(match);
  std::vector<int> offered;
  const auto list = match.Style == kSingles ? std::span<const FinishRow>(kSinglesList) : kTagList;
  for (const FinishRow& row : list) {
    const bool turns = match.Style == kTag && row.Finish == kPartnerTurns;
    if ((row.In >> match.MatchType & 1) == 0) continue;
    if (!turns || MayTurn(world, PartnerOf(match, match.Loser))) offered.push_back(row.Finish);
  }
  return offered;
}

}  // namespace grapplemont
