#include "records/fields/storyrecords.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "records/fields/vocabulary.h"

namespace grapplemont {

namespace {

#define PARTY(record, member) GM_FIELD(record, member).LeadsTo(Refers::Worker)

constexpr Field kFeudFields[] = {
    GM_FIELD(Feud, Singles).Means("A feud of two; else of two teams."),
    PARTY(Feud, Worker1).Means("The first party."),
    PARTY(Feud, Worker2).Means("The second party; in a tag feud the first one's partner."),
    PARTY(Feud, Worker3).Means("One of the second team."),
    PARTY(Feud, Worker4).Means("The other of the second team."),
    GM_FIELD(Feud, Clean1).Means("Clean wins of side one."),
    GM_FIELD(Feud, Dirty1).Means("Dirty wins of side one."),
    GM_FIELD(Feud, Interference1).Means("Verbal attacks by side one."),
    GM_FIELD(Feud, Sneak1).Means("Sneak attacks by side one."),
    GM_FIELD(Feud, Clean2).Means("Clean wins of side two."),
    GM_FIELD(Feud, Dirty2).Means("Dirty wins of side two."),
    GM_FIELD(Feud, Interference2).Means("Verbal attacks by side two."),
    GM_FIELD(Feud, Sneak2).Means("Sneak attacks by side two."),
    GM_FIELD(Feud, Heat).Counts("percent").Means("Heat."),
    GM_FIELD(Feud, Started).Means("The day it began."),
};

constexpr Field kSegmentFields[] = {
    GM_FIELD(Segment, Rating).Counts("percent").Means("Overall rating once it has been run."),
    GM_FIELD(Segment, Kind)
        .In(0, 3)
        .From(kSegmentKinds)
        .Means("Match, interview, angle, or empty."),
    GM_FIELD(Segment, Style).In(0, 79).Means("Style of a match or interview; number of an angle."),
    GM_FIELD(Segment, MatchType).In(0, 32767).Means("Type of a match, within its style."),
    GM_FIELD(Segment, Purpose).In(0, 32767).Means("What it is to achieve."),
    PARTY(Segment, Winner).Means("The winner; 0 for a draw."),
    GM_FIELD(Segment, Loser).In(0, 32767).Means("Who takes the fall; 1 when nobody does."),
    PARTY(Segment, Place3).Means("Second one eliminated."),
    PARTY(Segment, Place4).Means("Third one eliminated."),
    PARTY(Segment, Place5).Means("Fourth one eliminated."),
    PARTY(Segment, Place6).Means("Fifth one eliminated."),
    PARTY(Segment, Place7).Means("Sixth one eliminated."),
    PARTY(Segment, Place8).Means("Seventh one eliminated."),
    GM_FIELD(Segment, Finish).In(0, 32767).Means("How it ends."),
    GM_FIELD(Segment, TitleName).LeadsTo(Refers::Title).Means("The Title at stake, or None."),
    PARTY(Segment, Other1).Means("First run-in."),
    PARTY(Segment, Other2).Means("Second run-in, or who saves."),
    PARTY(Segment, Other3).Means("First run-in afterwards."),
    PARTY(Segment, Other4).Means("Second run-in afterwards."),
    GM_FIELD(Segment, Aftermath).In(0, 32767).Means("What follows."),
    GM_NUMBERED(Segment, Worker).LeadsTo(Refers::Worker).Means("Those taking part, side by side."),
    GM_FIELD(Segment, Text).Means("A stable or a further name, or None."),
};

/// A Segment's, which stand first in the record, and what the row belongs to.
constexpr auto kKeptFields = [] {
  constexpr Field kMore[] = {
      GM_FIELD(KeptRow, Show).Means("The show or Event."),
      GM_FIELD(KeptRow, IsEvent).Means("An Event; else a television show."),
      GM_FIELD(KeptRow, IsDraft).Means("For a show to come; else of the last one that was held."),
      GM_FIELD(KeptRow, Row).In(1, 11).Means("Row of the sheet."),
      GM_FIELD(KeptRow, On).Means("The day of the show."),
  };
  std::array<Field, std::size(kSegmentFields) + std::size(kMore)> fields{};
  std::copy(std::begin(kMore), std::end(kMore),
            std::copy(std::begin(kSegmentFields), std::end(kSegmentFields), fields.begin()));
  return fields;
}();

constexpr Field kMailFields[] = {
    GM_FIELD(Mail, From).Means("Sender."),
    GM_FIELD(Mail, Date).Means("Day it came, dd/mm/yy."),
    GM_FIELD(Mail, Body).InLines().Means("Text."),
};

constexpr Field kReadMailFields[] = {
    GM_FIELD(ReadMail, Key).Means("Made from sender, date and text of a mail that was read."),
};

constexpr Field kIncidentFields[] = {
    GM_FIELD(Incident, Type).In(0, 6).From(kIncidents).Means("What happened."),
    GM_FIELD(Incident, Uid)
        .In(0, 32767)
        .Means("The worker it happened to, or the promotion that offers a job."),
};

}  // namespace

GM_LAYOUT(Feud, "feudinfo.dat", kFeuds, kFeudFields)
GM_LAYOUT(Segment, "match.dat", 11, kSegmentFields)
// A card of every show and Event, and a draft beside it.
GM_LAYOUT(KeptRow, "cards.dat", 600, kKeptFields)
GM_LAYOUT(Mail, "news.dat", 20000, kMailFields)
GM_LAYOUT(ReadMail, "mailread.dat", 20000, kReadMailFields)
GM_LAYOUT(Incident, "incident.tmp", 10, kIncidentFields)

}  // namespace grapplemont
