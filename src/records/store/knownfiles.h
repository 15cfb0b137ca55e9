#pragma once

#include <tuple>

#include "records/fields/chronicle.h"
#include "records/fields/companies.h"
#include "records/fields/gameinfo.h"
#include "records/fields/people.h"
#include "records/fields/storyrecords.h"
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
               Records<ReadMail>>;

/// The files a folder may hold and how long each may be.
const std::vector<KnownFile>& KnownFiles();
/// The same for one of them; 0 for any other name.
std::int64_t MostBytesOf(std::string_view file);

}  // namespace grapplemont
