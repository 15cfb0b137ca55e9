#include "records/history.h"

namespace grapplemont {

namespace {

constexpr Term kKinds[] = {{kPastTv, "", "Television show"},
                           {kPastEvent, "", "Event"},
                           {kPastMonth, "", "Month"},
                           {kPastCamp, "", "Training camp opened or improved"},
                           {kPastTerritory, "", "Development territory opened"}};

#define FIELD(member) GM_FIELD(HistoryEntry, member)

constexpr Field kFields[] = {
    FIELD(On).Means("The day of the show, or the first day after the month."),
    FIELD(Kind).In(kPastTv, kPastTerritory).From(kKinds).Means("What has happened."),
    FIELD(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    FIELD(Name).Means("The show, the Event, the building, or for a month the promotion."),
    FIELD(CalledOff).Means("The show was called off."),
    FIELD(Rating).In(0, 100).Means("The show's rating."),
    FIELD(Viewers).Counts("hundredths").Means("Television rating, or buy rate."),
    FIELD(Attendance).Counts("people").Means("Crowd of the show, or of the month."),
    FIELD(Income).Counts("dollars").Means("What the show or the month brought."),
    FIELD(Costs).Counts("dollars").Means("What the show, the month or the building cost."),
    FIELD(Money).Counts("dollars").Means("Cash afterwards."),
    FIELD(Size).In(kGlobal, kBackyard).From(kSizes).Means("Size class afterwards."),
    FIELD(Image).Counts("percent").Means("Image afterwards."),
};
#undef FIELD

// Fifty years of three shows a week and of thirty promotions' months stay below it.
constexpr RecordLayout kLayout{"HistoryEntry", "history.dat", sizeof(HistoryEntry), 30000, kFields};

}  // namespace

template <>
const RecordLayout& LayoutOf<HistoryEntry>() {
  return kLayout;
}

}  // namespace grapplemont
