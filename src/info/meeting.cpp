#include "info/meeting.h"

#include <algorithm>

#include "business/development.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/postings.h"
#include "roster/staff.h"
#include "roster/talks.h"
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

People FitWrestlers(const World& world) {
  return Ours(world, [](const Worker& w) { return IsOnRoster(w) && w.Status == "Nor"; });
}

std::string SomeOf(const People& people, std::size_t most) {
  std::string text;
  const std::size_t named = std::min(people.size(), most);
  for (std::size_t i = 0; i < named; ++i) {
    const bool isLast = i + 1 == people.size();
    text += (i == 0 ? "" : isLast ? " and " : ", ") + people[i]->Name.Str();
  }
  if (people.size() > named) text += " and " + std::to_string(people.size() - named) + " more";
  return text;
}

void SayOf(Meeting& meeting, Point point, const People& people, std::size_t most,
           const Meeting::Words& more) {
  if (people.empty()) return;
  Meeting::Words words = {{"n", Number(people.size())}, {"names", SomeOf(people, most)}};
  words.insert(words.end(), more.begin(), more.end());
  meeting.Say(point, words);
}

// The meeting on contracts, on who is hurt, on the young, and on the staff itself.

namespace {

constexpr int kSoonMonths = 3;
constexpr int kWornOut = 40, kTired = 60;
constexpr int kTeaches = 41;  // the least talent of a booker who has anything to teach
constexpr int kSomeNames = 4;
constexpr int kHalfAYear = 6, kYear = 12;  // months

bool EndsWithin(int left, int from, int until) {
  return left != kNoEnd && left >= from && left <= until;
}

/// For how many months they would sign if everything else were at least as they want it.
bool WouldSign(const World& world, const Worker& worker, int months) {
  const RenewalTerms terms = RenewalTermsOf(world, worker);
  ContractOffer best{kHighestWage, months, terms.Written, true};
  return JudgeRenewal(worker, terms, best).Accepted;
}
bool SignsForHalfAYear(const World& world, const Worker& worker) {
  return WouldSign(world, worker, kHalfAYear) && !WouldSign(world, worker, kYear);
}

}  // namespace

bool MovesOn(const World& world, const Worker& worker) {
  return !WouldSign(world, worker, kHalfAYear) && !WouldSign(world, worker, kYear);
}

namespace {

/// Whose contracts end after that many months, and who will talk about another.
People Ending(const World& world, int from, int until) {
  return Ours(world, [&](const Worker& w) {
    return EndsWithin(w.ContractMonths, from, until) && !w.RetiringSoon && !(w.Status == "Hom") &&
           WhyNoRenewal(w).empty();
  });
}

void TalkOfEndings(Meeting& meeting, Point point, int from, int until) {
  const World& world = meeting.Of();
  People ending = Ending(world, from, until);
  std::erase_if(ending, [&](const Worker* w) { return MovesOn(world, *w); });
  if (ending.empty()) return;
  People brief = ending;
  std::erase_if(brief, [&](const Worker* w) { return !SignsForHalfAYear(world, *w); });
  const Worker& first = *ending.front();
  const std::string briefly =
      brief.empty() ? "" : " For 6 months and not a day more: " + SomeOf(brief, kSomeNames) + ".";
  SayOf(meeting, point, ending, kSomeNames,
        {{"who", first.Name.Str()},
         {"wage", Dollars(RenewalTermsOf(world, first).Wage * 1000LL)},
         {"brief", briefly}});
}

void TalkOfThoseWhoMoveOn(Meeting& meeting) {
  const World& world = meeting.Of();
  People leaving = Ending(world, 1, kSoonMonths);
  std::erase_if(leaving, [&](const Worker* w) { return !MovesOn(world, *w); });
  SayOf(meeting, Point::MovingOn, leaving, kSomeNames);
}

void TalkOfTheUnwilling(Meeting& meeting) {
  const People unwilling = Ours(meeting.Of(), [](const Worker& w) {
    return EndsWithin(w.ContractMonths, 1, kSoonMonths) && !w.RetiringSoon &&
           !(w.Status == "Hom") && !WhyNoRenewal(w).empty();
  });
  if (unwilling.empty()) return;
  const Worker& first = *unwilling.front();
  SayOf(meeting, Point::WillNotSign, unwilling, 3,
        {{"who", first.Name.Str()},
         {"morale", Number(first.Morale)},
         {"loyalty", Number(first.Loyalty)}});
}

void TalkOfStaffContracts(Meeting& meeting) {
  std::vector<std::string> names;
  for (const Staff& staff : meeting.Of().AllStaff())
    if (staff.Employer == meeting.Player().Uid && staff.Position != kOwner &&
        EndsWithin(staff.ContractMonths, 1, kSoonMonths))
      names.push_back(staff.Name.Str());
  if (!names.empty())
    meeting.Say(Point::StaffContracts, {{"n", Number(names.size())}, {"names", Joined(names)}});
}

void TalkOfAbsent(Meeting& meeting, Point point, const People& absent) {
  if (absent.empty()) return;
  const Worker& first = LeastOf(absent, &Worker::StatusMonths);
  SayOf(meeting, point, absent, kSomeNames,
        {{"return", (absent.size() == 1 ? "Back" : first.Name + " is back first,") + " in " +
                        Counted(first.StatusMonths, "month") + "."}});
}

void TalkOfCondition(Meeting& meeting, Point point, int from, int below) {
  const People people = Ours(meeting.Of(), [=](const Worker& w) {
    return IsOnRoster(w) && w.Status == "Nor" && w.Condition >= from && w.Condition < below;
  });
  if (people.empty()) return;
  const Worker& worst = LeastOf(people, &Worker::Condition);
  SayOf(meeting, point, people, kSomeNames,
        {{"who", worst.Name.Str()}, {"condition", Number(worst.Condition)}});
}

/// Why nobody learns anything from this teacher; empty when somebody does.
std::string WhyNoLessons(const World& world, int staffUid, const char* nobody) {
  const Staff* staff = world.FindStaff(staffUid);
  if (!staff) return nobody;
  return staff->Talent < kTeaches ? staff->Name.Str() + " has nothing to teach, with a talent of " +
                                        std::to_string(staff->Talent)
                                  : "";
}

void TalkOfTerritory(Meeting& meeting) {
  const World& world = meeting.Of();
  const Promotion& player = meeting.Player();
  const People pupils =
      HasSite(player, Site::Territory) ? PeopleAt(world, Site::Territory) : People();
  if (pupils.empty()) return;
  const std::string territory = player.DevName.Str();
  if (const std::string why = WhyNoLessons(world, player.DevBooker, "nobody books it");
      !why.empty())
    meeting.Say(Point::TerritoryIdle,
                {{"n", Number(pupils.size())}, {"territory", territory}, {"why", why}});
  People grown = pupils;
  std::erase_if(grown, [](const Worker* w) { return w->Over < w->Potential; });
  SayOf(meeting, Point::TerritoryOutgrown, grown, 3, {{"territory", territory}});
}

void TalkOfCamp(Meeting& meeting) {
  const World& world = meeting.Of();
  const Promotion& player = meeting.Player();
  if (!HasSite(player, Site::Camp)) return;
  const std::string camp = player.CampName.Str();
  const People trainees = PeopleAt(world, Site::Camp);
  if (trainees.empty()) return meeting.Say(Point::CampEmpty, {{"camp", camp}});
  if (!world.FindStaff(player.HeadTrainer))
    meeting.Say(
        Point::CampIdle,
        {{"n", Number(trainees.size())}, {"camp", camp}, {"why", "nobody is the head of it"}});
  People learned = trainees;
  std::erase_if(learned, [](const Worker* w) { return SkillTier(*w) == 0; });
  if (learned.empty()) return;
  const Worker& best = *learned.front();
  meeting.Say(Point::CampLearned,
              {{"names", SomeOf(learned)}, {"skill", Number(BestSkillOf(best))}});
}

}  // namespace

void TalkOfContracts(Meeting& meeting) {
  TalkOfEndings(meeting, Point::ContractsEnd, 1, 1);
  TalkOfEndings(meeting, Point::ContractsSoon, 2, kSoonMonths);
  TalkOfTheUnwilling(meeting);
  TalkOfThoseWhoMoveOn(meeting);
  TalkOfStaffContracts(meeting);
  SayOf(meeting, Point::Retiring,
        Ours(meeting.Of(), [](const Worker& w) { return bool(w.RetiringSoon); }));
}

void TalkOfHealth(Meeting& meeting) {
  const World& world = meeting.Of();
  TalkOfAbsent(meeting, Point::Injured,
               Ours(world, [](const Worker& w) { return w.Status == "Inj"; }));
  TalkOfAbsent(meeting, Point::Suspended,
               Ours(world, [](const Worker& w) { return w.Status == "Sus" || w.Status == "Reh"; }));
  TalkOfCondition(meeting, Point::WornOut, 0, kWornOut);
  TalkOfCondition(meeting, Point::Tired, kWornOut, kTired);
}

void TalkOfTheYoung(Meeting& meeting) {
  TalkOfTerritory(meeting);
  TalkOfCamp(meeting);
}

void TalkOfStaff(Meeting& meeting) {
  std::vector<std::string> empty;
  for (const PostCount& post : PostCounts(meeting.Of())) {
    const std::string name(PostText(post.Post));
    if (post.Have < post.Need)
      meeting.Say(Point::PostShort, {{"post", name},
                                     {"n", Number(post.Have)},
                                     {"need", Number(post.Need)},
                                     {"remedy", PostAdvice({post})}});
    else if (post.Have == 0 && post.Post != kReferee)  // who has nothing to say here
      empty.push_back(name);
  }
  if (!empty.empty()) meeting.Say(Point::PostEmpty, {{"posts", Joined(empty)}});
}

}  // namespace grapplemont
