#include "booking/wizard/segmentcheck.h"

#include <gtest/gtest.h>

#include "records/angles.h"
#include "records/segments.h"
#include "support/scripteddraws.h"
#include "talkcompany.h"

namespace grapplemont::test {
namespace {

using Faults = std::vector<std::string>;
using Alter = Change<Segment>;

Segment Told(int kind, int style, const std::vector<int>& workers) {
  Segment segment = EmptySegment();
  segment.Kind = kind;
  segment.Style = style;
  std::copy(workers.begin(), workers.end(), segment.Worker.begin());
  return segment;
}

/// Max Mouth speaks for Bob Bold and Cal Cold, about Dan Dark.
Segment Interview() {
  Segment interview = Told(kInterview, kManagedTeamTalk, {1, 3, 4, 5, 0});
  interview.Purpose = kVerbalAttack;
  return interview;
}

/// Bob Bold, Eve East, The Tide, and Cal Cold for the save.
Segment Wedding() {
  Segment wedding = Told(kAngle, kBlackWedding, {3, 6, 0, 4});
  wedding.Text = "The Tide";
  return wedding;
}

Faults FaultsOf(const World& world, Segment segment, const Alter& alter,
                const BookingView& view = {}) {
  if (alter) alter(segment);
  return WhyNotBookable(world, segment, view);
}

TEST(WhyNotTalk, FindsWhatNoInterviewOfTheWizardHolds) {
  const World world = TalkCompany();
  EXPECT_EQ(FaultsOf(world, Interview(), {}), Faults());
  const std::pair<Alter, Faults> kCases[] = {
      {[](Segment& s) { s.Style = 5; }, {"There is no interview style 5."}},
      {[](Segment& s) { s.Worker[1] = 2; },
       {"Com Boss cannot be interviewed.",
        "The manager selected does not manage both the chosen workers!"}},
      {[](Segment& s) { s.Worker[0] = 5; },
       {"Dan Dark cannot speak for anybody.", "You must select a valid manager!",
        "Dan Dark cannot be a target."}},
      {[](Segment& s) { s.Worker[3] = 3; }, {"Bob Bold cannot be a target."}},
      {[](Segment& s) { s.Worker[3] = 999; }, {"Worker 999 cannot be a target."}},
      {[](Segment& s) { s.Worker[4] = 5; }, {"Please select two different people!"}},
      {[](Segment& s) { s.Worker[3] = 0; }, {"The interview cannot have purpose 1."}},
      {[](Segment& s) { s.Purpose = kSelfPromotion; }, {"The interview cannot have purpose 5."}},
      {[](Segment& s) { s.Purpose = kTalkTurn; }, {"The interview cannot have purpose 3."}},
      {[](Segment& s) { s.Purpose = 0; }, {"The interview cannot have purpose 0."}},
      {[](Segment& s) { s.TitleName = "Open Crown"; },
       {"An interview is for no Title and has no text."}},
      {[](Segment& s) { s.Winner = 3; }, {"The Segment holds what only a match has."}},
      {[](Segment& s) { s.Kind = kEmptySegment; }, {"Nothing is booked."}},
  };
  World mute = TalkCompany();
  Named(mute.Workers(), "Com Boss").Speaks = false;
  for (const auto& [alter, faults] : kCases)
    EXPECT_EQ(FaultsOf(mute, Interview(), alter), faults) << faults[0];
}

TEST(WhyNotTalk, FindsWhatNoAngleOfTheWizardHolds) {
  const World world = TalkCompany();
  EXPECT_EQ(FaultsOf(world, Wedding(), {}), Faults());
  EXPECT_EQ(FaultsOf(world, Wedding(), [](Segment& s) { s.Worker[3] = 0; }), Faults());
  const std::string left = "The angle holds something that none of its roles is for.";
  const std::pair<Alter, Faults> kCases[] = {
      {[](Segment& s) { s.Style = 80; }, {"There is no angle 80."}},
      {[](Segment& s) { s.Style = kCelebrity; },
       {"The angle \"Sam's Angle\" is not offered today.", left}},
      {[](Segment& s) { s.Worker[0] = 7; }, {"Fay Fair cannot be cast as \"Groom\"."}},
      {[](Segment& s) { s.Worker[1] = 3; },
       {"Bob Bold cannot be cast as \"Bride\".",
        "Please do not select the same worker more than once!"}},
      {[](Segment& s) { s.Worker[3] = 2; }, {"Com Boss cannot be cast as \"Saved By\"."}},
      {[](Segment& s) { s.Text = "The Ebb"; },
       {"The Ebb cannot be cast as \"Stable\".",
        "Sorry, there need to be at least 2 active members of the stable!"}},
      {[](Segment& s) { s.Text = "None"; }, {"Please make a selection for \"Stable\"!"}},
      {[](Segment& s) { s.Worker[2] = 5; }, {left}},
      {[](Segment& s) { s.TitleName = "Open Crown"; }, {left}},
      {[](Segment& s) { s.Purpose = 1; }, {left}},
      {[](Segment& s) { s.Finish = 1; }, {"The Segment holds what only a match has."}},
  };
  for (const auto& [alter, faults] : kCases)
    EXPECT_EQ(FaultsOf(world, Wedding(), alter), faults) << faults[0];
}

TEST(WhyNotTalk, LooksAtTheWritersAndTheView) {
  World world = TalkCompany();
  EXPECT_EQ(FaultsOf(world, Wedding(), [](Segment& s) { s.Worker[3] = 2; }, {true}), Faults())
      << "non-wrestlers may stand in at an Event";
  EXPECT_EQ(FaultsOf(world, Wedding(), {}, {false, "Blue"}).size(), 3u);
  Named(world.AllStaff(), "Writer Two").Employer = 0;
  EXPECT_EQ(FaultsOf(world, Wedding(), {}), Faults{"There are not enough writers for an angle."});
}

TEST(WhyNotTalk, TakesAnyBytes) {
  const World world = TalkCompany();
  SeededDraws draws(7);
  for (int i = 0; i < 2000; ++i) {
    Segment segment;
    for (std::size_t at = 0; at < sizeof(segment); ++at)
      reinterpret_cast<unsigned char*>(&segment)[at] =
          static_cast<unsigned char>(draws.Draw(256) - 1);
    segment.Kind = i % 4;
    if (i % 3 != 0) segment.Style = draws.Draw(81) - 1;
    EXPECT_FALSE(WhyNotBookable(world, segment, {}).empty());
  }
}

}  // namespace
}  // namespace grapplemont::test
