#include <gtest/gtest.h>

#include "booking/screens/bookingscreens.h"
#include "booking/wizard/segmentcheck.h"
#include "records/segments.h"
#include "support/gameonworld.h"
#include "talkcompany.h"

namespace grapplemont::test {
namespace {

constexpr int kSlot = 3;
constexpr int kRecord = 143;

World WithSheet(World world) {
  for (int slot = 1; slot <= 11; ++slot) world.Segments().Append(EmptySegment());
  world.MarkCommitted();
  return world;
}

/// The bytes of a record of match.dat: words and texts at the places where the format has them.
struct Bytes143 {
  Bytes143(int kind, int style, int purpose, const std::vector<int>& workers,
           const std::string& text = "None", const std::string& title = "None") {
    Word(2, kind);
    Word(4, style);
    Word(8, purpose);
    Text(28, 20, title);
    for (std::size_t place = 0; place < workers.size(); ++place)
      Word(58 + 2 * place, workers[place]);
    Text(118, 25, text);
  }
  std::string Held = std::string(kRecord, '\0');

 private:
  void Word(std::size_t at, int value) {
    Held[at] = static_cast<char>(value & 0xff);
    Held[at + 1] = static_cast<char>(value >> 8);
  }
  void Text(std::size_t at, std::size_t size, const std::string& text) {
    Held.replace(at, size, text + std::string(size - text.size(), ' '));
  }
};

std::string RecordOf(const World& world, int slot) {
  const Bytes file = BytesOf(world).at("match.dat");
  const auto first = file.begin() + (slot - 1) * kRecord;
  return std::string(reinterpret_cast<const char*>(&*first), kRecord);
}

struct Pick {
  const char* Control;
  const char* Text;
};
struct Screen {
  std::string Name;
  std::vector<Pick> Picks;
};

/// What a player does on the steps behind the kind of Segment, and the record that comes of it.
struct Booking {
  const char* Kind;
  std::vector<Screen> Screens;
  Bytes143 Expected;
  std::vector<std::string> Summary;
  bool IsEvent = false;
};

Booking Talk(const char* style, std::vector<Pick> speakers, std::vector<Pick> targets,
             const char* purpose, const std::string& suffix, Bytes143 expected,
             std::vector<std::string> summary) {
  const bool team = std::string(style).starts_with("Tag");
  return {"Interview",
          {{"frmIVType", {{"lsttype", style}}},
           {"frmIV" + suffix, std::move(speakers)},
           {team ? "frmIV2opp" : "frmIV1opp", std::move(targets)},
           {"frmIVPurpose", {{"cmbwinner", purpose}}}},
          std::move(expected),
          std::move(summary)};
}

Booking Scene(const char* angle, std::vector<Pick> cast, Bytes143 expected, std::string summary,
              std::string people) {
  return {"Angle",
          {{"frmAngleType", {{"lstangle", angle}}}, {"frmAnglePeople", std::move(cast)}},
          std::move(expected),
          {"Segment Type = Angle", "Angle = " + summary, "Participants = " + people}};
}

/// Books through the wizard as a player does, Next after Next, and completes.
void Book(GameOnWorld& play, const Booking& booking) {
  ScriptDesk& desk = play.Desk;
  desk.Open(MakefrmBookSheet(play.Play, kSlot, booking.IsEvent));
  desk.Click("cmdbook(0)");
  desk.Pick("lststyle", booking.Kind);
  desk.Click("cmdnext");
  for (const Screen& screen : booking.Screens) {
    ASSERT_EQ(desk.TopName(), screen.Name);
    for (const Pick& pick : screen.Picks) desk.Pick(pick.Control, pick.Text);
    desk.Click("cmdnext");
  }
  ASSERT_EQ(desk.TopName(), "frmBookSheet");
  for (std::size_t row = 0; row < booking.Summary.size(); ++row)
    EXPECT_EQ(desk.Text("txtdesc(" + std::to_string(row) + ")"), booking.Summary[row]);
  EXPECT_EQ(RecordOf(play.World(), kSlot), Bytes143(0, 0, 0, {}).Held) << "not completed yet";
  desk.Click("cmdcomplete");
  EXPECT_TRUE(desk.Empty());
}

void ExpectRecords(const std::vector<Booking>& bookings) {
  for (const Booking& booking : bookings) {
    SCOPED_TRACE(booking.Summary.empty() ? "" : booking.Summary[1] + booking.Summary.back());
    GameOnWorld play(WithSheet(TalkCompany()));
    Book(play, booking);
    play.Reopen();
    EXPECT_EQ(RecordOf(play.World(), kSlot), booking.Expected.Held);
    EXPECT_EQ(WhyNotBookable(play.World(), play.World().Segments()[kSlot], {booking.IsEvent}),
              std::vector<std::string>());
    for (const int other : {kSlot - 1, kSlot + 1})
      EXPECT_EQ(RecordOf(play.World(), other), Bytes143(0, 0, 0, {}).Held);
  }
}

TEST(Wizard, BooksTheFourStylesOfInterviews) {
  ExpectRecords({
      Talk("Single Worker", {{"lstwres1", "Bob Bold"}}, {{"lstopp1", "Cal Cold"}}, "Verbal Attack",
           "1", {2, 1, 1, {3, 4}},
           {"Segment Type = Interview", "Interview Style = Single Worker",
            "Participants = Bob Bold", "Targets = Cal Cold", "Purpose = Verbal Attack"}),
      Talk("Tag Team", {{"lstwres1", "Bob Bold"}, {"lstwres2", "Dan Dark"}},
           {{"lstopp1", "Cal Cold"}, {"lstopp2", "Eve East"}}, "Hype Upcoming Match", "2",
           {2, 2, 2, {3, 5, 4, 6}},
           {"Segment Type = Interview", "Interview Style = Tag Team",
            "Participants = Bob Bold \\ Dan Dark", "Targets = Cal Cold \\ Eve East",
            "Purpose = Hype Upcoming Match"}),
      Talk(
          "Single Worker With Manager", {{"lstwres1", "Bob Bold"}, {"lstwres2", "Max Mouth"}}, {},
          "Self Promotion", "1m", {2, 3, 5, {3, 1, 0}},
          {"Segment Type = Interview", "Interview Style = Single Worker With Manager",
           "Participants = Bob Bold With Max Mouth", "Targets = None", "Purpose = Self Promotion"}),
      Talk("Tag Team With Manager",
           {{"lstwres1", "Max Mouth"}, {"lstwres2", "Bob Bold"}, {"lstwres3", "Cal Cold"}},
           {{"lstopp1", "Dan Dark"}}, "None", "2m", {2, 4, 6, {1, 3, 4, 5, 0}},
           {"Segment Type = Interview", "Interview Style = Tag Team With Manager",
            "Participants = Law and Order With Max Mouth", "Targets = Dan Dark", "Purpose = None"}),
      Talk("Single Worker", {{"lstwres1", "Dan Dark"}}, {{"lstopp1", "Cal Cold"}}, "Turn", "1",
           {2, 1, 3, {5, 4}}, {}),
  });
}

TEST(Wizard, BooksAnglesOfEveryShape) {
  ExpectRecords({
      Scene("Walking", {{"cmb1", "Bob Bold"}}, {3, 36, 0, {3}}, "Walking", "Bob Bold"),
      Scene("I'm Not Moving", {{"cmb1", "Bob Bold"}, {"cmb2", "Cal Cold"}}, {3, 9, 0, {3, 4}},
            "Sit In", "Bob Bold, Cal Cold"),
      Scene("Weakest Link", {{"cmb1", "Cal Cold"}, {"cmb2", "Bob Bold"}, {"cmb3", "Eve East"}},
            {3, 47, 0, {4, 3, 6}}, "Weakest Link", "Cal Cold, Bob Bold, Eve East"),
      Scene(
          "Double Trouble",
          {{"cmb1", "Bob Bold"}, {"cmb2", "Cal Cold"}, {"cmb3", "Dan Dark"}, {"cmb4", "Eve East"}},
          {3, 46, 0, {3, 4, 5, 6}}, "Double Trouble", "Bob Bold, Cal Cold, Dan Dark, Eve East"),
      Scene("Ambush", {{"cmb1", "Bob Bold"}, {"cmb2", "Cal Cold"}, {"cmb4", "Dan Dark"}},
            {3, 3, 0, {3, 4, 0, 5}}, "Ambush", "Bob Bold, Cal Cold, Dan Dark"),
      Scene("Get The Table", {{"cmb1", "Bob Bold"}, {"cmb3", "Cal Cold"}}, {3, 12, 0, {3, 0, 4, 0}},
            "Get The Table", "Bob Bold, Cal Cold"),
      Scene("Management Issues",
            {{"cmb1", "Max Mouth"}, {"cmb2", "Dan Dark"}, {"cmb3", "Bob Bold"}},
            {3, 7, 0, {1, 5, 3}}, "Management Issues", "Max Mouth, Dan Dark, Bob Bold"),
      Scene("Manager's Surprise", {{"cmb1", "Max Mouth"}, {"cmb2", "New Nora"}}, {3, 49, 0, {1, 9}},
            "Manager's Surprise", "Max Mouth, New Nora"),
      Scene("Managerial Debut", {{"cmb1", "Mo Fresh"}, {"cmb2", "Tide Two"}}, {3, 38, 0, {12, 11}},
            "Managerial Debut", "Mo Fresh, Tide Two"),
      Scene("Catfight!", {{"cmb1", "Eve East"}, {"cmb2", "Fay Fair"}}, {3, 35, 0, {6, 7}},
            "Catfight!", "Eve East, Fay Fair"),
      Scene("Getting Groinal", {{"cmb1", "Cal Cold"}, {"cmb2", "Eve East"}}, {3, 16, 0, {4, 6, 0}},
            "Getting Groinal", "Cal Cold, Eve East"),
      Scene(
          "Tag Debut Attack",
          {{"cmb1", "New Noel"}, {"cmb2", "New Nora"}, {"cmb3", "Bob Bold"}, {"cmb4", "Cal Cold"}},
          {3, 59, 0, {8, 9, 3, 4}}, "Tag Debut Attack", "New Noel, New Nora, Bob Bold, Cal Cold"),
      Scene("Heel Turn", {{"cmb1", "Dan Dark"}, {"cmb2", "Cal Cold"}}, {3, 6, 0, {5, 4}},
            "Heel Turn", "Dan Dark, Cal Cold"),
      Scene("Hype Video For Stable", {{"cmb1", "The Tide"}}, {3, 62, 0, {}, "The Tide"},
            "Hype Video For Stable", "The Tide"),
      Scene("Kidnap", {{"cmb1", "The Tide"}, {"cmb2", "Bob Bold"}}, {3, 76, 0, {3}, "The Tide"},
            "Kidnap", "The Tide"),
      Scene("Stable Duo Destruction",
            {{"cmb1", "The Tide"}, {"cmb2", "Bob Bold"}, {"cmb3", "Cal Cold"}},
            {3, 55, 0, {3, 4}, "The Tide"}, "Stable Duo Destruction",
            "Bob Bold, Cal Cold, The Tide"),
      Scene("Stable Induction", {{"cmb1", "Bob Bold"}, {"cmb2", "The Tide"}},
            {3, 50, 0, {3}, "The Tide"}, "Stable Induction", "Bob Bold, The Tide"),
      Scene(
          "Black Wedding",
          {{"cmb1", "Bob Bold"}, {"cmb2", "Eve East"}, {"cmb3", "The Tide"}, {"cmb4", "Cal Cold"}},
          {3, 78, 0, {3, 6, 0, 4}, "The Tide"}, "Black Wedding",
          "Bob Bold, Eve East, Cal Cold, The Tide"),
      Scene("Award Singles Title",
            {{"cmb1", "Com Boss"}, {"cmb2", "Open Crown"}, {"cmb3", "Bob Bold"}},
            {3, 71, 0, {2, 3}, "None", "Open Crown"}, "Award Singles Title", "Com Boss, Bob Bold"),
      Scene(
          "Award Tag Team Titles",
          {{"cmb1", "Com Boss"}, {"cmb2", "Open Pair"}, {"cmb3", "Bob Bold"}, {"cmb4", "Cal Cold"}},
          {3, 72, 0, {2, 3, 4}, "None", "Open Pair"}, "Award Tag Team Titles",
          "Com Boss, Bob Bold, Cal Cold"),
      Scene("Abuse Of Power", {{"cmb1", "Com Boss"}, {"cmb2", "Bob Bold"}}, {3, 10, 0, {2, 3}},
            "Abuse of Power", "Com Boss, Bob Bold"),
  });
}

TEST(Wizard, LetsNonWrestlersStandInAtAnEvent) {
  Booking walk = Scene("Walking", {{"cmb1", "Com Boss"}}, {3, 36, 0, {2}}, "Walking", "Com Boss");
  walk.IsEvent = true;
  ExpectRecords({walk});
}

}  // namespace
}  // namespace grapplemont::test
