#include "roster/staff.h"

#include <algorithm>
#include <array>
#include <utility>

#include "records/modWresCheck.h"
#include "records/severing.h"
#include "roster/leaving.h"
#include "roster/talkobjections.h"

namespace grapplemont {

namespace {

/// What promotions of a size mean to staff.
struct Market {
  int TalentCeiling;
  int Worth;   // percent of the full price of talent
  int Moves;   // percent by which a wage changes when they come
  int Months;  // wanted
};
// By size, Global to Backyard.
constexpr std::array<Market, 6> kMarket = {{{100, 100, 10, 24},
                                            {100, 75, 5, 24},
                                            {80, 45, 0, 12},
                                            {60, 20, 0, 12},
                                            {40, 10, -5, 6},
                                            {20, 5, -10, 6}}};

constexpr int kTalentPerThousand = 5;  // at the full price
constexpr int kPatience = 10;          // talent above the ceiling that a present job is kept with
constexpr int kHappy = 61;             // morale
constexpr int kHireLift = 20;          // of morale

/// A tenth for the best, a twentieth for the good, hardly anything for the rest.
int RaiseOf(int talent) {
  return talent >= 80 ? 10 : talent >= 60 ? 5 : 1;
}

std::string HeOrShe(const Staff& staff, const char* rest) {
  return (staff.Gender ? "He" : "She") + std::string(rest);
}

/// Whoever is known for good conduct leaves only for a promotion that is far bigger.
bool IsFarAbove(int size, int employerSize, int backstage) {
  const int steps = backstage > 90 ? 2 : backstage >= 60 ? 1 : 0;
  return employerSize - steps > size;
}

std::string WhyStays(const World& world, const Staff& staff, Decision* why) {
  const Promotion* employer = world.FindPromotion(staff.Employer);
  if (!employer || staff.Morale < kHappy) {
    Weigh(why, true, employer ? "Not content where they work" : "Works for nobody");
    return {};
  }
  if (staff.ContractType == "Wri" && staff.ContractMonths >= 1) {
    Weigh(why, false, "Content, and bound in writing");
    return HeOrShe(staff, " is under a written contract and happy with it.");
  }
  const bool leaves = IsFarAbove(world.Player().Size, employer->Size, staff.Backstage);
  Weigh(why, leaves,
        "Content at " + employer->Initials.Str() +
            ": the better the conduct, the further above it we must stand");
  if (leaves) return {};
  return HeOrShe(staff, " is happy at ") + employer->Initials.Str() +
         " and sees no reason to leave for you.";
}

std::string WhyNoHire(const World& world, const Staff& staff, Decision* why) {
  const bool talks = staff.Loyalty >= 40;
  if (!Weigh(why, talks, talks ? "Thinks well enough of you to talk" : "Thinks little of you"))
    return HeOrShe(staff, " wants nothing to do with you.");
  if (std::string no = WhyStays(world, staff, why); !no.empty()) return no;
  const int ceiling = TalentCeiling(world.Player().Size);
  const bool fits = staff.Talent <= ceiling;
  Weigh(why, fits,
        "Talent " + std::to_string(staff.Talent) +
            ": a promotion of our size gets people of up to " + std::to_string(ceiling));
  return fits ? "" : HeOrShe(staff, " does not think that your promotion is big enough.");
}

/// What is looked at before anybody speaks of money. The words follow "He" or "She".
struct StaffOpening {
  const Staff& Who;

  bool IsContent() const { return Who.Morale > 39 && Who.Loyalty > 39; }
  std::string Told(std::string_view) const { return MonthsText(Who.ContractMonths); }
};

constexpr const char* kWillNotSit = " will not even sit down with you.";
constexpr const char* kWillNotStay = " does not want to talk about staying.";
constexpr Objection<StaffOpening> kStaffOpenings[] = {
    {[](const StaffOpening& o) { return o.Who.ContractMonths > 24 && o.IsContent(); },
     " is happy with the contract as it is.",
     "{left} left, and content: more than 24 are not talked about", "{left} left"},
    {[](const StaffOpening& o) { return o.Who.Morale < 20; }, kWillNotSit,
     "Wants to be anywhere but here"},
    {[](const StaffOpening& o) { return o.Who.Loyalty < 20; }, kWillNotSit,
     "Would never work for you"},
    {[](const StaffOpening& o) { return o.Who.Morale < 40; }, kWillNotStay, "Unhappy here",
     "Not unhappy here"},
    {[](const StaffOpening& o) { return o.Who.Loyalty < 40; }, kWillNotStay, "Thinks little of you",
     "Thinks well enough of you to talk"},
};

std::string WhyNoRenewal(const Staff& staff, Decision* why) {
  const std::string no = FirstObjection(kStaffOpenings, StaffOpening{staff}, why);
  return no.empty() ? no : HeOrShe(staff, no.c_str());
}

struct StaffTalk {
  const Staff& Who;
  const StaffDemands& Wants;
  const ContractOffer& Offer;
  int Size;
  bool IsOwn;

  std::string Told(std::string_view slot) const {
    if (slot == "talent") return std::to_string(Who.Talent);
    if (slot == "months") return MonthsText(Offer.Months);
    // The player's own keep to themselves what they want.
    if (slot == "wanted") return IsOwn ? "what they have in mind" : WageText(Wants.Wage);
    return WageText(slot == "now" ? int(Who.Wage) : Offer.Wage);
  }
};

constexpr Objection<StaffTalk> kStaffObjections[] = {
    {[](const StaffTalk& t) {
       return t.IsOwn && t.Who.Talent > TalentCeiling(t.Size) + kPatience && t.Who.Loyalty < 70;
     },
     "No thanks, it is time for me to move on to a bigger promotion.",
     "Talent {talent} is more than our size keeps, unless they think well of you"},
    {[](const StaffTalk& t) { return t.Wants.Written && !t.Offer.Written; },
     "I want that in writing.",
     "A verbal contract offered: of a promotion of our size they want a written one"},
    {[](const StaffTalk& t) { return !t.Wants.Written && t.Offer.Written; },
     "I do not want to be bound by a written contract.",
     "A written contract offered: of a promotion of our size they want a verbal one",
     "The type of contract is the one they want"},
    {[](const StaffTalk& t) {
       return t.IsOwn && t.Who.Loyalty < 50 && t.Offer.Wage < t.Wants.Wage;
     },
     "After all that i have done here, i want a raise.",
     "{offered} offered is less than {wanted}, and they do not think that well of you"},
    {[](const StaffTalk& t) { return t.IsOwn && t.Offer.Wage < t.Who.Wage; },
     "I am not going to work for less.", "{offered} offered is less than {now} now"},
    {[](const StaffTalk& t) { return t.Offer.Wage < t.Wants.Wage - PercentOf(t.Wants.Wage, 10); },
     "I am worth more than that.", "{offered} offered is more than a tenth below {wanted}",
     "{offered} offered is close enough to {wanted}"},
    {[](const StaffTalk& t) { return t.Wants.Months == 6 && t.Offer.Months > 12; },
     "I do not want to bind myself for so long.",
     "{months} offered: of a promotion of our size they want 12 at most"},
    {[](const StaffTalk& t) { return t.Wants.Months >= 24 && t.Offer.Months < 12; },
     "Half a year is no security. I want a longer contract.",
     "{months} offered: of a promotion of our size they want 12 at least"},
    {[](const StaffTalk& t) {
       return t.Offer.Months > 36 && t.Offer.Wage < t.Wants.Wage + PercentOf(t.Wants.Wage, 20);
     },
     "For so many years i want a fifth on top.",
     "{months} take a fifth on top of {wanted}; {offered} offered", "{months} suit them"},
};

/// What their talent is worth to a promotion of this size, thousands of dollars a month.
int WorthOf(int size, int talent) {
  return PercentOf(talent, BySize(kMarket, size).Worth) / kTalentPerThousand;
}

Score WageWanted(const World& world, const Staff& staff) {
  const int size = world.Player().Size, now = staff.Wage;
  const bool own = WorksForPlayer(world, staff);
  Score wage;
  wage.Add(now, staff.Employer != 0 ? "the wage of the present contract" : "the last wage");
  if (own)
    wage.Add(PercentOf(now, RaiseOf(staff.Talent)), "a raise by the talent");
  else
    wage.Add(PercentOf(now, BySize(kMarket, size).Moves), "what a promotion of our size can pay");
  wage.Become(std::max<int>(wage, WorthOf(size, staff.Talent)),
              "a talent of " + std::to_string(staff.Talent) + " is worth as much to us");
  if (!own && staff.Employer != 0)
    wage.Become(PercentOf(wage, 120), "a fifth more for leaving a job");
  wage.Become(std::clamp<int>(wage, 0, kHighestStaffWage), "nobody asks for less or more");
  return wage;
}

}  // namespace

bool IsEndless(const Staff& staff) {
  return staff.Unsackable || staff.ContractMonths == kNoEnd;
}

std::string WhyNoStaffTalks(const Staff& staff) {
  if (staff.Position == kOwner) return staff.Name + " owns promotions, and is not for hire.";
  if (staff.Employer != 0 && IsEndless(staff))
    return staff.Name + " is unsackable: the agreement has no end, and nothing to talk about.";
  return {};
}

int TalentCeiling(int size) {
  return BySize(kMarket, size).TalentCeiling;
}

StaffDemands StaffDemandsOf(const World& world, const Staff& staff) {
  const int size = world.Player().Size;
  Score wage = WageWanted(world, staff);
  const int thousands = wage;
  return {BySize(kMarket, size).Months, size < kCult, thousands, std::move(wage)};
}

std::string WhyNoStaffOffer(const World& world, const Staff& staff, Decision* why) {
  return WorksForPlayer(world, staff) ? WhyNoRenewal(staff, why) : WhyNoHire(world, staff, why);
}

std::string JudgeStaffOffer(const World& world, const Staff& staff, const StaffDemands& demands,
                            const ContractOffer& offer, Decision* why) {
  return FirstObjection(
      kStaffObjections,
      StaffTalk{staff, demands, offer, world.Player().Size, WorksForPlayer(world, staff)}, why);
}

void HireStaff(World& world, Staff& staff, const ContractOffer& offer) {
  DismissStaff(world, staff);
  staff.Employer = world.PlayerUid();
  staff.Unsackable = false;
  staff.Morale += kHireLift;
  PutInto(staff, offer);
}

std::string FiringQuestion(const World& world, const Staff& staff) {
  switch (PartingOf(staff)) {
    case Parting::BuyOut:
      return "Buying out the contract of " + staff.Name.Str() + " will cost $" +
             std::to_string(BuyOutCost(world, staff)) + ". Proceed?";
    case Parting::Verbal:
      return "Nothing is in writing, and " + staff.Name.Str() + " can be let go for free. Proceed?";
    case Parting::Gladly:
      break;
  }
  return staff.Name + " is glad to leave. Proceed?";
}

void FireStaff(World& world, Staff& staff) {
  const Parting parting = PartingOf(staff);
  if (parting == Parting::BuyOut) BuyOut(world, staff);
  if (parting == Parting::Verbal) staff.Loyalty -= 20;
  DismissStaff(world, staff);
  staff.ContractType = "Non";
}

namespace {

int OwnShows(const World& world) {
  return static_cast<int>(std::ranges::count_if(
      world.Shows(), [&](const Show& s) { return s.Owner == world.PlayerUid(); }));
}

template <class Test>
int CountOwn(const World& world, Test test) {
  return static_cast<int>(std::ranges::count_if(
      world.Workers(), [&](const Worker& w) { return WorksForPlayer(world, w) && test(w); }));
}

int AnnouncersWanted(const World& world) {
  return OwnShows(world) > 0 ? 1 : 0;
}
/// For everybody to recover at full speed.
int MedicsWanted(const World& world) {
  const int workers = CountOwn(world, [](const Worker&) { return true; });
  return workers >= 56 ? 3 : workers >= 31 ? 2 : 0;
}
int WritersWanted(const World& world) {
  return WritersNeeded(OwnShows(world));
}
/// To keep the wrestlers out of trouble.
int AgentsWanted(const World& world) {
  const int wrestlers =
      CountOwn(world, [](const Worker& w) { return w.Position < kDevelopmentDeal; });
  if (wrestlers > 80) return 5;
  if (wrestlers > 60) return 4;
  if (wrestlers > 40) return 3;
  return wrestlers > 25 ? 2 : wrestlers > 0 ? 1 : 0;
}
int TrainersWanted(const World& world) {
  return world.Player().CampName == "None" ? 0 : 1;
}
int NoneWanted(const World&) {
  return 0;
}

struct Post {
  int Code;
  const char* Plural;
  int (*Need)(const World& world);
  const char* Lack;  // what comes of too few, behind "Hire 2 more, or "
};
constexpr std::array<Post, 7> kPosts = {{
    {kAnnouncer, "Announcers", AnnouncersWanted, "nobody calls the shows"},
    {kReferee, "Referees", NoneWanted, ""},
    {kProduction, "Production", NoneWanted, ""},
    {kMedical, "Medical", MedicsWanted, "the roster recovers slowly"},
    {kWriter, "Writers", WritersWanted, "angles have to wait"},
    {kRoadAgent, "Road Agents", AgentsWanted, "there will be more trouble behind the scenes"},
    {kTrainer, "Trainers", TrainersWanted, "nobody teaches in the training camp"},
}};

const Post& PostOf(int code) {
  return *std::ranges::find_if(kPosts, [=](const Post& post) { return post.Code == code; });
}

}  // namespace

int WritersNeeded(int shows) {
  // By shows from none to more than three.
  constexpr std::array<int, 5> kNeeded = {1, 2, 4, 6, 10};
  return kNeeded[static_cast<std::size_t>(std::clamp(shows, 0, 4))];
}

PostCount PostCountOf(const World& world, int post) {
  const auto isThere = [&](const Staff& staff) {
    return WorksForPlayer(world, staff) && staff.Position == post;
  };
  return {post, static_cast<int>(std::ranges::count_if(world.AllStaff(), isThere)),
          PostOf(post).Need(world)};
}

std::vector<PostCount> PostCounts(const World& world) {
  std::vector<PostCount> posts;
  for (const Post& post : kPosts) posts.push_back(PostCountOf(world, post.Code));
  return posts;
}

std::string PostLines(const std::vector<PostCount>& posts) {
  std::string lines;
  for (const PostCount& post : posts) {
    lines += (lines.empty() ? "" : "\n") + std::string(PostOf(post.Post).Plural) + " " +
             std::to_string(post.Have);
    if (post.Need > 0) lines += " (" + std::to_string(post.Need) + " needed)";
  }
  return lines;
}

std::string PostAdvice(const std::vector<PostCount>& posts) {
  std::string advice;
  for (const PostCount& post : posts)
    if (IsShort(post))
      advice += (advice.empty() ? "" : " ") + std::string(PostOf(post.Post).Plural) + ": hire " +
                std::to_string(post.Need - post.Have) + " more, or " + PostOf(post.Post).Lack + ".";
  return advice.empty() ? "Every post has the hands it needs." : advice;
}

}  // namespace grapplemont
