#include "records/storyrecords.h"

namespace grapplemont {

namespace {

#define FIELD(record, member) GM_FIELD(record, member)
#define WORKER(record, member) FIELD(record, member).In(0, 32767).LeadsTo(Refers::Worker)

constexpr Field kFeudFields[] = {
    FIELD(Feud, Singles).Means("A feud of two; else of two teams."),
    WORKER(Feud, Worker1).Means("The first party."),
    WORKER(Feud, Worker2).Means("The second party; in a tag feud the first one's partner."),
    WORKER(Feud, Worker3).Means("One of the second team."),
    WORKER(Feud, Worker4).Means("The other of the second team."),
    FIELD(Feud, Clean1).Means("Clean wins of side one."),
    FIELD(Feud, Dirty1).Means("Dirty wins of side one."),
    FIELD(Feud, Interference1).Means("Verbal attacks by side one."),
    FIELD(Feud, Sneak1).Means("Sneak attacks by side one."),
    FIELD(Feud, Clean2).Means("Clean wins of side two."),
    FIELD(Feud, Dirty2).Means("Dirty wins of side two."),
    FIELD(Feud, Interference2).Means("Verbal attacks by side two."),
    FIELD(Feud, Sneak2).Means("Sneak attacks by side two."),
    FIELD(Feud, Heat).Counts("percent").Means("Heat."),
    FIELD(Feud, Started).Means("The day it began."),
};
constexpr RecordLayout kFeudLayout{"Feud", "feudinfo.dat", sizeof(Feud), kFeuds, kFeudFields};

constexpr Field kSegmentFields[] = {
    FIELD(Segment, Rating).Counts("percent").Means("Overall rating once it has been run."),
    FIELD(Segment, Kind).In(0, 3).From(kSegmentKinds).Means("Match, interview, angle, or empty."),
    FIELD(Segment, Style).In(0, 79).Means("Style of a match or interview; number of an angle."),
    FIELD(Segment, MatchType).In(0, 32767).Means("Type of a match, within its style."),
    FIELD(Segment, Purpose).In(0, 32767).Means("What it is to achieve."),
    WORKER(Segment, Winner).Means("The winner; 0 for a draw."),
    FIELD(Segment, Loser).In(0, 32767).Means("Who takes the fall; 1 when nobody does."),
    WORKER(Segment, Place3).Means("Second one eliminated."),
    WORKER(Segment, Place4).Means("Third one eliminated."),
    WORKER(Segment, Place5).Means("Fourth one eliminated."),
    WORKER(Segment, Place6).Means("Fifth one eliminated."),
    WORKER(Segment, Place7).Means("Sixth one eliminated."),
    WORKER(Segment, Place8).Means("Seventh one eliminated."),
    FIELD(Segment, Finish).In(0, 32767).Means("How it ends."),
    FIELD(Segment, TitleName).LeadsTo(Refers::Title).Means("The Title at stake, or None."),
    WORKER(Segment, Other1).Means("First run-in."),
    WORKER(Segment, Other2).Means("Second run-in, or who saves."),
    WORKER(Segment, Other3).Means("First run-in afterwards."),
    WORKER(Segment, Other4).Means("Second run-in afterwards."),
    FIELD(Segment, Aftermath).In(0, 32767).Means("What follows."),
    GM_NUMBERED(Segment, Worker)
        .In(0, 32767)
        .LeadsTo(Refers::Worker)
        .Means("Those taking part, side by side."),
    FIELD(Segment, Text).Means("A stable or a further name, or None."),
};
constexpr RecordLayout kSegmentLayout{"Segment", "match.dat", sizeof(Segment), 11, kSegmentFields};

constexpr Field kMailFields[] = {
    FIELD(Mail, From).Means("Sender."),
    FIELD(Mail, Date).Means("Day it came, dd/mm/yy."),
    FIELD(Mail, Body).InLines().Means("Text."),
};
constexpr RecordLayout kMailLayout{"Mail", "news.dat", sizeof(Mail), 20000, kMailFields};

constexpr Field kIncidentFields[] = {
    FIELD(Incident, Type).In(0, 6).From(kIncidents).Means("What happened."),
    FIELD(Incident, Uid)
        .In(0, 32767)
        .Means("The worker it happened to, or the promotion that offers a job."),
};
constexpr RecordLayout kIncidentLayout{"Incident", "incident.tmp", sizeof(Incident), 10,
                                       kIncidentFields};

}  // namespace

template <>
const RecordLayout& LayoutOf<Feud>() {
  return kFeudLayout;
}
template <>
const RecordLayout& LayoutOf<Segment>() {
  return kSegmentLayout;
}
template <>
const RecordLayout& LayoutOf<Mail>() {
  return kMailLayout;
}
template <>
const RecordLayout& LayoutOf<Incident>() {
  return kIncidentLayout;
}

}  // namespace grapplemont
