#include "records/showrun.h"

namespace grapplemont {

namespace {

constexpr Term kStages[] = {
    {kNoShow, "", "None"}, {kShowRuns, "", "Under way"}, {kShowClosed, "", "Closed"}};

#define FIELD(member) GM_FIELD(ShowRun, member)

constexpr Field kFields[] = {
    FIELD(Stage).In(kNoShow, kShowClosed).From(kStages).Means("How far the show has come."),
    FIELD(IsEvent).Means("A monthly Event; else a television show."),
    FIELD(Current).In(0, 11).Means("Record of match.dat told last; 0 before the first."),
    FIELD(PreviousCrowd).In(0, 100).Means("Crowd reaction of the last match told."),
    FIELD(LastOverall).In(0, 100).Means("Overall rating of the Segment told last."),
    FIELD(FlatNight).Means("Nothing quite comes off tonight: matches lose a tenth."),
    GM_NUMBERED(ShowRun, FeudTouched).Means("The show has used the feud of this slot."),
    FIELD(ShowSum).Means("Ratings and charges added up; at the close the show's rating."),
    FIELD(ShowSegments).Means("How many ratings stand in the sum."),
    FIELD(Announcer).In(0, 32767).LeadsTo(Refers::Staff).Means("Primary announcer."),
    FIELD(Colour).In(0, 32767).Means("Colour commentator: staff, or a worker."),
    FIELD(ColourIsWorker).Means("The colour commentator is a worker."),
    FIELD(AnnouncerCharge).Means("What the primary announcer cost the sum."),
    FIELD(ColourCharge).Means("What the colour commentator cost the sum."),
    FIELD(ProductionCharge).Means("What poor production cost the sum."),
    FIELD(ExtraBonus).Means("What an Event's extra added to the sum."),
    FIELD(ExtraCost).Counts("dollars").Means("What an Event's extra cost."),
};
#undef FIELD

constexpr RecordLayout kLayout{"ShowRun", "showrun.dat", sizeof(ShowRun), 1, kFields};

}  // namespace

template <>
const RecordLayout& LayoutOf<ShowRun>() {
  return kLayout;
}

}  // namespace grapplemont
