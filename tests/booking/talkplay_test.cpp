#include <gtest/gtest.h>

#include "booking/ring.h"
#include "booking/wizard/segmentcheck.h"
#include "talkcompany.h"

namespace grapplemont::test {
namespace {

/// What a player does on the steps behind the kind of Segment, what the wizard says of the people,
/// and the record that comes of it. Workers have the uids of their order in the company.
struct Booking {
  const char* Kind;
  std::vector<Picks> Steps;
  const char* People;
  int Style;
  std::vector<int> Workers;
  int Purpose = 0;
  const char* Text = "None";
  const char* Title = "None";
};

const Booking kBookings[] = {
    Booking("Interview",
            {{"lsttype: Single Worker"},
             {"lstwres1: Bob Bold"},
             {"lstopp1: Cal Cold"},
             {"cmbwinner: Verbal Attack"}},
            "Bob Bold", kSingleTalk, {3, 4}, kVerbalAttack),
    Booking("Interview",
            {{"lsttype: Tag Team"},
             {"lstwres1: Bob Bold", "lstwres2: Dan Dark"},
             {"lstopp1: Cal Cold", "lstopp2: Eve East"},
             {"cmbwinner: Hype Upcoming Match"}},
            "Bob Bold \\ Dan Dark", kTeamTalk, {3, 5, 4, 6}, kHypeMatch),
    Booking("Interview",
            {{"lsttype: Single Worker With Manager"},
             {"lstwres1: Bob Bold", "lstwres2: Max Mouth"},
             {},
             {"cmbwinner: Self Promotion"}},
            "Bob Bold With Max Mouth", kManagedTalk, {3, 1}, kSelfPromotion),
    Booking("Interview",
            {{"lsttype: Tag Team With Manager"},
             {"lstwres1: Max Mouth", "lstwres2: Bob Bold", "lstwres3: Cal Cold"},
             {"lstopp1: Dan Dark"},
             {}},
            "Law and Order With Max Mouth", kManagedTeamTalk, {1, 3, 4, 5}, kTalkNone),
    Booking("Angle", {{"lstangle: Walking"}, {"cmb1: Bob Bold"}}, "Bob Bold", kWalking, {3}),
    Booking("Angle",
            {{"lstangle: Double Trouble"},
             {"cmb1: Bob Bold", "cmb2: Cal Cold", "cmb3: Dan Dark", "cmb4: Eve East"}},
            "Bob Bold, Cal Cold, Dan Dark, Eve East", 46, {3, 4, 5, 6}),
    Booking("Angle", {{"lstangle: Ambush"}, {"cmb1: Bob Bold", "cmb2: Cal Cold", "cmb4: Dan Dark"}},
            "Bob Bold, Cal Cold, Dan Dark", kAmbush, {3, 4, 0, 5}),
    Booking("Angle", {{"lstangle: Managerial Debut"}, {"cmb1: Mo Fresh", "cmb2: Tide Two"}},
            "Mo Fresh, Tide Two", kManagerialDebut, {12, 11}),
    Booking("Angle", {{"lstangle: Heel Turn"}, {"cmb1: Dan Dark", "cmb2: Cal Cold"}},
            "Dan Dark, Cal Cold", kHeelTurnAngle, {5, 4}),
    Booking("Angle", {{"lstangle: Kidnap"}, {"cmb1: The Tide", "cmb2: Bob Bold"}}, "The Tide",
            kKidnap, {3}, 0, "The Tide"),
    Booking("Angle",
            {{"lstangle: Black Wedding"},
             {"cmb1: Bob Bold", "cmb2: Eve East", "cmb3: The Tide", "cmb4: Cal Cold"}},
            "Bob Bold, Eve East, Cal Cold, The Tide", kBlackWedding, {3, 6, 0, 4}, 0, "The Tide"),
    Booking("Angle",
            {{"lstangle: Award Singles Title"},
             {"cmb1: Com Boss", "cmb2: Open Crown", "cmb3: Bob Bold"}},
            "Com Boss, Bob Bold", kAwardSingles, {2, 3}, 0, "None", "Open Crown"),
    Booking("Angle",
            {{"lstangle: Award Tag Team Titles"},
             {"cmb1: Com Boss", "cmb2: Open Pair", "cmb3: Bob Bold", "cmb4: Cal Cold"}},
            "Com Boss, Bob Bold, Cal Cold", kAwardTag, {2, 3, 4}, 0, "None", "Open Pair"),
};

TEST(Wizard, BooksInterviewsAndAnglesOfEveryShape) {
  for (const Booking& booking : kBookings) {
    SCOPED_TRACE(booking.Steps[0][0]);
    BookingPlay play(TalkCompany());
    play.Book(3);
    play.Desk.Pick("lststyle", booking.Kind);
    play.Next();
    for (const Picks& picks : booking.Steps) {
      PickAll(play.Desk, picks);
      play.Next();
    }
    ASSERT_EQ(play.Desk.TopName(), "frmBookSheet");
    EXPECT_EQ(play.Desk.Text("txtdesc(2)"), std::string("Participants = ") + booking.People);
    EXPECT_EQ(play.Slot(3).Kind, kEmptySegment) << "not completed yet";
    play.Complete();
    play.Reopen();
    Segment expected = EmptySegment();
    expected.Kind = booking.Kind == std::string("Angle") ? kAngle : kInterview;
    expected.Style = booking.Style;
    expected.Purpose = booking.Purpose;
    std::copy(booking.Workers.begin(), booking.Workers.end(), expected.Worker.begin());
    expected.Text = booking.Text;
    expected.TitleName = booking.Title;
    ExpectSegment(play.Slot(3), expected);
    EXPECT_EQ(WhyNotBookable(play.World(), play.Slot(3), {}), std::vector<std::string>());
  }
}

}  // namespace
}  // namespace grapplemont::test
