#pragma once

#include <array>
#include <string_view>
#include <tuple>

#include "records/fields/annals.h"
#include "records/fields/chapters.h"
#include "records/fields/chronicle.h"
#include "records/fields/companies.h"
#include "records/fields/gameinfo.h"
#include "records/fields/halls.h"
#include "records/fields/people.h"
#include "records/fields/storyrecords.h"
#include "records/fields/unseen.h"
#include "records/store/journal.h"
#include "records/store/table.h"

namespace grapplemont {

/// A table for every file of a world, the ten of the data set first and in their fixed order, then
/// those that only a running game has.
using AllTables =
    std::tuple<Records<Title>, Records<Event>, Records<Network>, Records<Promotion>,
               Records<Sponsor>, Records<Stable>, Records<Staff>, Records<Team>, Records<Show>,
               Records<Worker>, Records<GameInfo>, Records<Mail>, TextFile, Records<Feud>,
               Records<Segment>, Records<Incident>, Records<ShowRun>, Records<HistoryEntry>,
               Records<HeldMatch>, Records<MatchTally>, Records<TitleReign>, Records<ReportPart>,
               Records<YearAward>, Records<YearEnd>, Records<Deed>, Records<GuideState>,
               Records<WorkerMonths>, Records<MoodChange>, Records<KeptRow>, Records<ShowNote>,
               Records<ReadMail>, Records<WorldKey>, Records<BoardState>, Records<OwnerWish>,
               Records<MonthPlan>, Records<HouseRules>, Records<CardMatch>, Records<Grudge>,
               Records<RingName>, Records<SaidLine>, Records<TotalsState>, Records<Career>,
               Records<Tenure>, Records<Partnership>, Records<Feat>, Records<YearLine>,
               Records<HallMember>, Records<TellingHabit>, Records<Annal>>;

// What all files of the house would compile again and again is compiled once, in knownfiles.cpp.
// clang-format off
#define GM_EVERY_RECORD(OF) \
  OF(Title) OF(Event) OF(Network) OF(Promotion) OF(Sponsor) OF(Stable) \
  OF(Staff) OF(Team) OF(Show) OF(Worker) OF(GameInfo) OF(Mail) \
  OF(Feud) OF(Segment) OF(Incident) OF(ShowRun) OF(HistoryEntry) OF(HeldMatch) \
  OF(MatchTally) OF(TitleReign) OF(ReportPart) OF(YearAward) OF(YearEnd) OF(Deed) \
  OF(GuideState) OF(WorkerMonths) OF(MoodChange) OF(KeptRow) OF(ShowNote) OF(ReadMail) \
  OF(WorldKey) OF(BoardState) OF(OwnerWish) OF(MonthPlan) OF(HouseRules) OF(CardMatch) \
  OF(Grudge) OF(RingName) OF(SaidLine) OF(TotalsState) OF(Career) OF(Tenure) \
  OF(Partnership) OF(Feat) OF(YearLine) OF(HallMember) OF(TellingHabit) OF(Annal)
// clang-format on
#define GM_ELSEWHERE(T) extern template class Records<T>;
GM_EVERY_RECORD(GM_ELSEWHERE)
#undef GM_ELSEWHERE

/// The names of the ten files that a new game copies and the file check looks for, in their fixed
/// order.
inline constexpr std::array<std::string_view, 10> kDataSet = {
    "belt.dat",    "event.dat", "network.dat", "promos.dat", "sponsor.dat",
    "stables.dat", "staff.dat", "teams.dat",   "tv.dat",     "wrestler.dat"};

/// The files a folder may hold and how long each may be.
const std::vector<KnownFile>& KnownFiles();
/// The same for one of them; 0 for any other name.
std::int64_t MostBytesOf(std::string_view file);

}  // namespace grapplemont
