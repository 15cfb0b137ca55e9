#include "records/deeds.h"

#include "records/rolling.h"
#include "records/world.h"

namespace grapplemont {

namespace {

constexpr Term kKinds[] = {{kDeedSigned, "", "Signed"},
                           {kDeedStolen, "", "Signed away from another"},
                           {kDeedFired, "", "Fired"},
                           {kDeedLeft, "", "Left"},
                           {kDeedRetiring, "", "Announced the end of a career"},
                           {kDeedRetired, "", "Retired"},
                           {kDeedInjured, "", "Hurt"},
                           {kDeedOnAir, "", "Show on the air"},
                           {kDeedRenewed, "", "Show renewed"},
                           {kDeedOffAir, "", "Show off the air"},
                           {kDeedFounded, "", "Promotion opened"},
                           {kDeedMissed, "", "Repayment missed"},
                           {kDeedWarned, "", "Bankruptcy warning"},
                           {kDeedClosed, "", "Promotion closed"},
                           {kDeedBought, "", "Promotion bought"},
                           {kDeedRisen, "", "Risen a size class"},
                           {kDeedFallen, "", "Fallen a size class"},
                           {kDeedOwner, "", "New owner"},
                           {kDeedOwnerQuit, "", "Owner gone"},
                           {kDeedTvHeld, "", "Television show held"},
                           {kDeedEventHeld, "", "Event held"},
                           {kDeedCalledOff, "", "Show called off"}};

#define FIELD(member) GM_FIELD(Deed, member)

constexpr Field kFields[] = {
    FIELD(On).Means("The day on which it happened."),
    FIELD(Kind).In(kDeedSigned, kDeedCalledOff).From(kKinds).Means("What has happened."),
    FIELD(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone; 0 nobody's."),
    FIELD(House).Means("The promotion's initials then."),
    FIELD(Who).Means("The worker, owner or show, or the promotion's full name."),
    FIELD(Other).Means("Whom he was signed away from, the network, or the injury."),
    FIELD(Number).Means("Months hurt, weeks on the air, size class reached, or a rival's draw."),
    FIELD(Viewers).Counts("hundredths").Means("A show's rating, or its buy rate."),
    FIELD(People).Counts("people").Means("A show's crowd."),
};
#undef FIELD

// Two months of a busy world take about a third of it.
constexpr RecordLayout kLayout{"Deed", "deeds.dat", sizeof(Deed), 3000, kFields};

constexpr int kDropped = 500;

Deed NewDeed(const World& world, DeedKind kind, const Promotion* house, std::string_view who) {
  Deed deed{};
  deed.On = world.Today();
  deed.Kind = kind;
  if (house) {
    deed.Promotion = house->Uid;
    deed.House = house->Initials;
  }
  deed.Who = who;
  return deed;
}

}  // namespace

template <>
const RecordLayout& LayoutOf<Deed>() {
  return kLayout;
}

void NoteDeed(World& world, DeedKind kind, const Promotion* house, std::string_view who,
              std::string_view other, int number) {
  Deed deed = NewDeed(world, kind, house, who);
  deed.Other = other;
  deed.Number = number;
  AppendRolling(world.Deeds(), deed, kDropped);
}

void NoteShow(World& world, DeedKind kind, const Promotion& house, std::string_view show, int draw,
              int viewers, int people) {
  Deed deed = NewDeed(world, kind, &house, show);
  deed.Number = draw;
  deed.Viewers = viewers;
  deed.People = people;
  AppendRolling(world.Deeds(), deed, kDropped);
}

}  // namespace grapplemont
