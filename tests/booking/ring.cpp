#include "booking/ring.h"

#include <gtest/gtest.h>

namespace grapplemont::test {

namespace {

constexpr int kSheetSlots = 11;

}  // namespace

SmallWorld BookingRoster() {
  SmallWorld small;
  small.Promotion("CWA", kGlobal, [](Promotion& p) { p.Risk = 100; });
  for (int i = 1; i <= 12; ++i)
    small.Worker("Man " + std::to_string(i), kMidcard, 60,
                 [](Worker& w) { w.Attitude = 96, w.HighSpots = true; });
  for (int i = 1; i <= 4; ++i)
    small.Worker("Woman " + std::to_string(i), kMidcard, 60,
                 [](Worker& w) { w.Gender = false, w.Attitude = 20, w.Behaviour = 20; });
  return small;
}

Segment MatchOf(const World& world, int style, int type, const std::vector<std::string>& people) {
  Segment match = EmptySegment();
  match.Kind = kMatch;
  match.Style = style;
  match.MatchType = type;
  for (std::size_t i = 0; i < people.size(); ++i) match.Worker[i] = UidOf(world, people[i]);
  return match;
}

BookingPlay::BookingPlay(grapplemont::World world) : GameOnWorld(std::move(world)) {
  Desk.Event([this] {
    for (int slot = 1; slot <= kSheetSlots; ++slot) World().Segments().Append(EmptySegment());
  });
}

void BookingPlay::Book(int slot) {
  OpenWizardAtOnce(Play, slot, false);
}

void BookingPlay::ChooseMatch(std::string_view style, std::string_view type) {
  Next();
  Desk.Pick("lsttype", style);
  Next();
  Desk.Pick("lststyle", type);
  Next();
}

void BookingPlay::ChoosePeople(const std::vector<std::string>& names) {
  for (std::size_t i = 0; i < names.size(); ++i)
    Desk.Pick("lstwres" + std::to_string(i + 1), names[i]);
  Next();
}

void PickAll(ScriptDesk& desk, const Picks& picks) {
  for (const std::string& pick : picks) {
    const auto colon = pick.find(": ");
    desk.Pick(pick.substr(0, colon), pick.substr(colon + 2));
  }
}

void ExpectSegment(const Segment& held, const Segment& expected) {
  const auto* left = reinterpret_cast<const std::byte*>(&held);
  const auto* right = reinterpret_cast<const std::byte*>(&expected);
  for (const Field& field : LayoutOf<Segment>().Fields)
    for (int i = 0; i < field.Count; ++i)
      EXPECT_EQ(FieldShown(field, left, i), FieldShown(field, right, i)) << FieldName(field, i);
  EXPECT_EQ(std::memcmp(&held, &expected, sizeof(Segment)), 0);
}

}  // namespace grapplemont::test
