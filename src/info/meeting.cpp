#include "info/meeting.h"

#include <algorithm>

#include "info/fill.h"
#include "info/infowords.h"
#include "records/modWresCheck.h"
#include "roster/workerfacts.h"

namespace grapplemont {

namespace {

constexpr void (*kSubjects[])(Meeting&) = {
    TalkOfMoney,  TalkOfLoans,  TalkOfTelevision, TalkOfEvents, TalkOfMorale,
    TalkOfHealth, TalkOfRoster, TalkOfContracts,  TalkOfFeuds,  TalkOfTitles,
    TalkOfImage,  TalkOfPrices, TalkOfSponsors,   TalkOfStaff,  TalkOfTheYoung};

/// The most talented of the player's in the post; nullptr for an empty one.
const Staff* VoiceOfPost(const World& world, int post) {
  const Staff* best = nullptr;
  for (const Staff& staff : world.AllStaff())
    if (staff.Employer == world.PlayerUid() && staff.Position == post &&
        (!best || staff.Talent > best->Talent))
      best = &staff;
  return best;
}

/// Which of the lines is said: another one from week to week, and the same one all day.
std::size_t ChoiceOf(const World& world, Point point) {
  const auto week = static_cast<std::size_t>((world.Today() - kDayZero).count() / 7);
  return (week + static_cast<std::size_t>(point)) % kWaysToSay;
}

}  // namespace

void Meeting::Say(Point point, const Words& filled, std::optional<Urgency> how) {
  const PointRow& row = RowOf(point);
  const auto lines = LinesUnder(words::Meeting(), static_cast<int>(point));
  Advice advice{row.Is, row.About, how.value_or(row.How), "Maeve", "", "", "", row.Screen};
  advice.Says = FillLine(lines[ChoiceOf(world_, point)], filled);
  if (lines.size() > kWaysToSay) advice.Do = FillLine(lines[kWaysToSay], filled);
  if (row.Post != 0) {
    const Staff* staff = VoiceOfPost(world_, row.Post);
    advice.Speaker = staff ? staff->Name.Str() : std::string(StandInFor(row.Post));
    advice.Post = staff ? PostText(row.Post) : "standing in";
  }
  said_.push_back(std::move(advice));
}

std::vector<Advice> Meeting::Close() {
  std::stable_sort(said_.begin(), said_.end(),
                   [](const Advice& a, const Advice& b) { return a.How < b.How; });
  return std::move(said_);
}

std::vector<Advice> HoldMeeting(const World& world) {
  Meeting meeting(world);
  for (const auto talk : kSubjects) talk(meeting);
  return meeting.Close();
}

std::string SomeOf(const std::vector<const Worker*>& people, std::size_t most) {
  std::string text;
  const std::size_t named = std::min(people.size(), most);
  for (std::size_t i = 0; i < named; ++i) {
    const bool isLast = i + 1 == people.size();
    text += (i == 0 ? "" : isLast ? " and " : ", ") + people[i]->Name.Str();
  }
  if (people.size() > named) text += " and " + std::to_string(people.size() - named) + " more";
  return text;
}

}  // namespace grapplemont
