#include "roster/talks.h"

#include <algorithm>

#include "records/fields/wording.h"
#include "roster/talkobjections.h"

namespace grapplemont {

std::string_view ContractCodeOf(bool written) {
  return written ? "Wri" : "Non";
}
std::string_view ContractWord(bool written) {
  return written ? "Written" : "Verbal";
}

std::string WageText(int thousands) {
  return thousands == 0 ? "$0" : "$" + std::to_string(thousands) + ",000";
}

std::string MonthsText(int months) {
  return Counted(std::max(months, 1), "month");
}

int MonthlyWage(const Worker& worker) {
  const bool paid =
      worker.Employer != 0 && worker.ContractMonths != kNoEnd && worker.Status != "Hom";
  return paid ? 1000 * worker.Wage : 0;
}

int MonthlyWage(const Staff& staff) {
  const bool paid =
      staff.Employer != 0 && staff.Position != kOwner && staff.ContractMonths != kNoEnd;
  return paid ? 1000 * staff.Wage : 0;
}

WageBill WagesOf(const World& world, int promotionUid) {
  WageBill bill;
  for (const Worker& worker : world.Workers())
    if (worker.Employer == promotionUid) bill.Workers += MonthlyWage(worker);
  for (const Staff& staff : world.AllStaff())
    if (staff.Employer == promotionUid) bill.Staff += MonthlyWage(staff);
  return bill;
}

namespace {

constexpr int kHighestOver = 100;

/// The lowest Over that claims the positions from Main Event 1 down to Jobber 6.
using Claims = std::array<int, 6>;
constexpr int kNotThere = kHighestOver + 1;
constexpr int kAnyOver = -32768;
// By size, Global to Backyard.
constexpr std::array<Claims, 6> kClaims = {{
    {91, 81, 71, 51, 31, kAnyOver},
    {86, 71, 61, 46, 21, kAnyOver},
    {66, 56, 41, 31, 11, kAnyOver},
    {56, 41, 31, 26, 11, kAnyOver},
    {36, 21, 11, 6, kAnyOver, kNotThere},
    {26, 11, kAnyOver, kNotThere, kNotThere, kNotThere},
}};

int PositionWanted(int size, const Worker& worker) {
  if (worker.Position == kNonWrestler || worker.Position == kManager) return worker.Position;
  if (worker.Over > kHighestOver) return worker.Behaviour < 40 ? kMainEvent : 0;
  const Claims& claims = BySize(kClaims, size);
  const auto claim = std::ranges::find_if(claims, [&](int over) { return worker.Over >= over; });
  return kMainEvent + static_cast<int>(claim - claims.begin());
}

/// From this age up a big promotion is asked for this many months.
struct AgeMonths {
  int From, Months;
};
constexpr std::array<AgeMonths, 6> kBigMonths = {
    {{40, 24}, {35, 36}, {30, 48}, {25, 36}, {17, 24}, {-32768, 12}}};
constexpr std::array<AgeMonths, 3> kMiddleMonths = {{{38, 12}, {25, 24}, {-32768, 12}}};

template <std::size_t N>
int MonthsAt(const std::array<AgeMonths, N>& rows, int age) {
  for (const AgeMonths& row : rows)
    if (age >= row.From) return row.Months;
  return rows.back().Months;
}

int MonthsWanted(int size, const Worker& worker) {
  if (size <= kNational) return MonthsAt(kBigMonths, worker.Age);
  if (size >= kSmall || worker.Over >= 61) return 6;
  return MonthsAt(kMiddleMonths, worker.Age);
}

Score WageWanted(int size, const Worker& worker) {
  const int now = worker.Wage;
  Score wage;
  wage.Add(now, worker.Employer != 0 ? "the wage of the present contract" : "the last wage");
  if (size == kGlobal && worker.Age < 40)
    wage.Add(PercentOf(now, 10), "a Global promotion can pay");
  if (size == kNational && worker.Age < 40)
    wage.Add(PercentOf(now, 5), "a National promotion can pay");
  if (size == kSmall && now >= 7) wage.Add(-PercentOf(now, 5), "a Small promotion has less");
  if (size == kBackyard && now >= 3)
    wage.Add(-PercentOf(now, 10), "a Backyard has next to nothing");
  if (worker.Employer != 0) wage.Become(PercentOf(wage, 120), "a fifth more for leaving a job");
  wage.Become(std::min<int>(wage, kHighestWage), "nobody earns more");
  return wage;
}

bool WantsControl(const Worker& worker) {
  const bool isStar = worker.Attitude < 50 && worker.Age >= 31 && worker.Age <= 49 &&
                      worker.Over >= 91 && worker.Wage >= 250;
  return isStar || (worker.CreativeControl && worker.Age < 50);
}

bool WantsWritten(int size, const Worker& worker) {
  return size < kCult || (size == kCult && worker.Over <= 50);
}

Score RenewalWage(const Worker& worker) {
  const int position = worker.Position;
  const int percent = position < kMidcard ? 10 : position <= kLowerMidcard ? 5 : 1;
  Score wage;
  wage.Add(worker.Wage, "the wage of the present contract");
  wage.Add(PercentOf(worker.Wage, percent),
           std::to_string(percent) + "% by the place on the card: the higher, the more");
  wage.Become(std::clamp<int>(wage, 1, kHighestWage), "nobody asks for less or more");
  return wage;
}

}  // namespace

Demands ContractDemands(const World& world, const Worker& worker) {
  const int size = world.Player().Size;
  Score wage = WageWanted(size, worker);
  const int thousands = wage;
  return {PositionWanted(size, worker), MonthsWanted(size, worker),
          WantsWritten(size, worker),   thousands,
          WantsControl(worker),         std::move(wage)};
}

namespace {

struct Talk {
  const Worker& Who;
  const RenewalTerms& Wants;
  const ContractOffer& Offer;

  int Over() const { return Who.Over; }
  int Now() const { return Who.Wage; }
  int Offered() const { return Offer.Wage; }
  /// Less than it takes to have one's way about control.
  bool IsNoPrice() const { return Offered() < PercentOf(Wants.Wage, 120); }
  bool IsShort() const { return Offer.Months < 13; }
  bool IsEarner() const { return Now() >= 100; }
  bool IsDisloyal() const { return Who.Loyalty < 50; }
  bool IsAlms() const { return Offered() < 5; }

  std::string Told(std::string_view slot) const {
    if (slot == "over") return std::to_string(Over());
    if (slot == "months") return MonthsText(Offer.Months);
    return WageText(slot == "now" ? Now() : Offered());
  }
};

constexpr Objection<Talk> kObjections[] = {
    {[](const Talk& t) { return t.Wants.Size == kBackyard && t.Over() >= 21; },
     "No thanks, i think i should move on to a bigger promotion.",
     "Popularity {over}: from 21 on a Backyard promotion is too small"},
    {[](const Talk& t) { return t.Wants.Size == kSmall && t.Over() >= 41; },
     "No thanks, i want to move to a bigger promotion.",
     "Popularity {over}: from 41 on a Small promotion is too small"},
    {[](const Talk& t) { return t.Wants.Size == kRegional && t.Over() >= 56; },
     "No thanks, i feel i'm ready to try and join one of the big promotions.",
     "Popularity {over}: from 56 on a Regional promotion is too small",
     "Popularity {over}: our size will do"},
    {[](const Talk& t) {
       return t.Wants.Size >= kRegional && t.Over() >= 46 && t.Offer.Months != 6;
     },
     "This contract is too long.",
     "{months} offered: from a popularity of 46 on, 6 months with a promotion of our size"},
    {[](const Talk& t) {
       return t.Who.CreativeControl && !t.Offer.CreativeControl && t.IsNoPrice();
     },
     "I do not want to give up my creative control.",
     "Creative control goes only for a fifth more than they have in mind; {offered} offered"},
    {[](const Talk& t) {
       return t.Who.Age >= 31 && t.Who.Age <= 49 && t.Now() >= 250 && t.Who.Attitude < 40 &&
              t.Over() > 90 && !t.Offer.CreativeControl && t.IsNoPrice();
     },
     "I want a creative control clause in my contract.",
     "A star of that age and temper wants creative control, or a fifth more than they have in "
     "mind"},
    {[](const Talk& t) { return t.Wants.Written && !t.Offer.Written; },
     "I want a written contract.",
     "A verbal contract offered: of a promotion of our size they want a written one"},
    {[](const Talk& t) { return !t.Wants.Written && t.Offer.Written; },
     "I do not want a written contract.",
     "A written contract offered: of a promotion of our size they want a verbal one",
     "The type of contract is the one they want"},
    {[](const Talk& t) { return t.IsDisloyal() && t.Offered() < t.Wants.Wage; },
     "I think i deserve a small pay increase.",
     "{offered} offered is less than they have in mind, and they do not think that well of you"},
    {[](const Talk& t) { return t.IsDisloyal() && t.Offered() < t.Now(); },
     "I do not accept this pay reduction.",
     "{offered} offered is less than {now} now, and they do not think that well of you"},
    {[](const Talk& t) { return t.Wants.Wage > t.Offered() && t.IsShort(); },
     "I do not accept these conditions.",
     "{offered} offered is less than they have in mind, and {months} are too short for that"},
    {[](const Talk& t) { return t.Now() > t.Offered() && t.IsShort(); },
     "I do not accept these conditions.",
     "{offered} offered is less than {now} now, and {months} are too short for that"},
    {[](const Talk& t) { return t.Wants.Wage > t.Offered() + 10; }, "I think i deserve more money.",
     "{offered} offered is more than $10,000 below what they have in mind"},
    {[](const Talk& t) { return t.Now() > t.Offered() + 10; },
     "I do not accept this pay reduction.",
     "{offered} offered is more than $10,000 below {now} now"},
    {[](const Talk& t) { return (t.Now() > 19 && t.Offered() < 20) || t.IsAlms(); },
     "I do not accept this pay reduction.",
     "{offered} offered is too little for anybody who earns {now}", nullptr,
     [](const Talk& t) { return t.IsAlms(); }},
    {[](const Talk& t) { return t.Offer.Months > 36 && t.Offered() <= t.Wants.Wage + 20; },
     "I want a substantial pay increase if i am to sign for this amount of time.",
     "{months} take over $20,000 more than they have in mind; {offered} offered"},
    {[](const Talk& t) { return t.Offered() < t.Wants.Wage && !t.IsEarner(); },
     "Under these conditions, i'd want more money to sign.",
     "{offered} offered is less than they have in mind, which nobody below $100,000 takes"},
    {[](const Talk& t) { return t.Offered() < t.Now() && !t.IsEarner(); },
     "I do not want a pay reduction under these conditions.",
     "{offered} offered is less than {now} now, which nobody below $100,000 takes",
     "{offered} for {months} will do"},
};

/// What is looked at before anybody speaks of money. The words follow the name.
struct Opening {
  const Worker& Who;

  bool IsContent() const { return Who.Morale > 39 && Who.Loyalty > 39; }
  std::string Told(std::string_view slot) const {
    return slot == "left" ? MonthsText(Who.ContractMonths) : std::to_string(Who.Morale);
  }
};

constexpr const char* kContentWords = " is happy with the current contract.";
constexpr const char* kRefusesWords = " refuses to even begin negotiations with you.";
constexpr const char* kUnwillingWords = " does not want to negotiate.";
constexpr Objection<Opening> kOpenings[] = {
    {[](const Opening& o) { return o.Who.ContractMonths > 24 && o.IsContent(); }, kContentWords,
     "{left} left, and content: more than 24 are not talked about", "{left} left"},
    {[](const Opening& o) { return o.Who.Status == "Hom"; }, kRefusesWords, "Sits at home"},
    {[](const Opening& o) { return o.Who.Loyalty < 20; }, kRefusesWords,
     "Would never work for you"},
    {[](const Opening& o) { return o.Who.Morale < 20; }, kRefusesWords,
     "Morale {morale}: below 20 they do not even sit down"},
    {[](const Opening& o) { return o.Who.Morale < 40; }, kUnwillingWords,
     "Morale {morale}: below 40 they do not talk", "Morale {morale}: from 40 on they talk"},
    {[](const Opening& o) { return o.Who.Loyalty < 40; }, kUnwillingWords, "Thinks little of you",
     "Thinks well enough of you to talk"},
};

}  // namespace

std::string WhyNoRenewal(const Worker& worker, Decision* why) {
  const std::string no = FirstObjection(kOpenings, Opening{worker}, why);
  return no.empty() ? no : worker.Name + no;
}

RenewalTerms RenewalTermsOf(const World& world, const Worker& worker) {
  const int size = world.Player().Size;
  Score wage = RenewalWage(worker);
  const int thousands = wage;
  return {size, thousands, WantsWritten(size, worker), std::move(wage)};
}

RenewalAnswer JudgeRenewal(const Worker& worker, const RenewalTerms& terms,
                           const ContractOffer& offer) {
  const Talk talk{worker, terms, offer};
  RenewalAnswer answer{{}, true};
  // Whoever sits out says so, and may yet be won over.
  if (worker.Status == "Hom")
    answer.Remarks.push_back({"Refusal", "I'm not negotiating with you."});
  for (const Objection<Talk>& objection : kObjections) {
    const bool isHeard =
        answer.Accepted || (objection.IsSaidAnyway && objection.IsSaidAnyway(talk));
    if (!isHeard || !IsRaised(objection, talk, &answer.Why)) continue;
    answer.Remarks.push_back({"Rejected!", objection.Words});
    answer.Accepted = false;
  }
  return answer;
}

void Renew(Worker& worker, const ContractOffer& offer) {
  PutInto(worker, offer);
  worker.CreativeControl = offer.CreativeControl;
}

}  // namespace grapplemont
