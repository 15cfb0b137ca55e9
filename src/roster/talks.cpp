#include "roster/talks.h"

#include <algorithm>

#include "records/fields/wording.h"

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

int RenewalWage(const Worker& worker) {
  const int position = worker.Position;
  const int percent = position < kMidcard ? 10 : position <= kLowerMidcard ? 5 : 1;
  return std::clamp(worker.Wage + PercentOf(worker.Wage, percent), 1, kHighestWage);
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
};

struct Objection {
  bool (*Holds)(const Talk& t);
  const char* Words;
  bool (*IsSaidAnyway)(const Talk& t) = nullptr;  // even after another objection
};

constexpr Objection kObjections[] = {
    {[](const Talk& t) { return t.Wants.Size == kBackyard && t.Over() >= 21; },
     "No thanks, i think i should move on to a bigger promotion."},
    {[](const Talk& t) { return t.Wants.Size == kSmall && t.Over() >= 41; },
     "No thanks, i want to move to a bigger promotion."},
    {[](const Talk& t) { return t.Wants.Size == kRegional && t.Over() >= 56; },
     "No thanks, i feel i'm ready to try and join one of the big promotions."},
    {[](const Talk& t) {
       return t.Wants.Size >= kRegional && t.Over() >= 46 && t.Offer.Months != 6;
     },
     "This contract is too long."},
    {[](const Talk& t) {
       return t.Who.CreativeControl && !t.Offer.CreativeControl && t.IsNoPrice();
     },
     "I do not want to give up my creative control."},
    {[](const Talk& t) {
       return t.Who.Age >= 31 && t.Who.Age <= 49 && t.Now() >= 250 && t.Who.Attitude < 40 &&
              t.Over() > 90 && !t.Offer.CreativeControl && t.IsNoPrice();
     },
     "I want a creative control clause in my contract."},
    {[](const Talk& t) { return t.Wants.Written && !t.Offer.Written; },
     "I want a written contract."},
    {[](const Talk& t) { return !t.Wants.Written && t.Offer.Written; },
     "I do not want a written contract."},
    {[](const Talk& t) { return t.IsDisloyal() && t.Offered() < t.Wants.Wage; },
     "I think i deserve a small pay increase."},
    {[](const Talk& t) { return t.IsDisloyal() && t.Offered() < t.Now(); },
     "I do not accept this pay reduction."},
    {[](const Talk& t) { return t.Wants.Wage > t.Offered() && t.IsShort(); },
     "I do not accept these conditions."},
    {[](const Talk& t) { return t.Now() > t.Offered() && t.IsShort(); },
     "I do not accept these conditions."},
    {[](const Talk& t) { return t.Wants.Wage > t.Offered() + 10; },
     "I think i deserve more money."},
    {[](const Talk& t) { return t.Now() > t.Offered() + 10; },
     "I do not accept this pay reduction."},
    {[](const Talk& t) { return t.Now() > 19 && t.Offered() < 20; },
     "I do not accept this pay reduction.", [](const Talk& t) { return t.Offered() < 5; }},
    {[](const Talk& t) { return t.Offer.Months > 36 && t.Offered() <= t.Wants.Wage + 20; },
     "I want a substantial pay increase if i am to sign for this amount of time."},
    {[](const Talk& t) { return t.Offered() < t.Wants.Wage && !t.IsEarner(); },
     "Under these conditions, i'd want more money to sign."},
    {[](const Talk& t) { return t.Offered() < t.Now() && !t.IsEarner(); },
     "I do not want a pay reduction under these conditions."},
};

}  // namespace

std::string WhyNoRenewal(const Worker& worker) {
  const int morale = worker.Morale, loyalty = worker.Loyalty;
  if (worker.ContractMonths > 24 && morale > 39 && loyalty > 39)
    return worker.Name + " is happy with the current contract.";
  if (worker.Status == "Hom" || loyalty < 20 || morale < 20)
    return worker.Name + " refuses to even begin negotiations with you.";
  if (morale < 40 || loyalty < 40) return worker.Name + " does not want to negotiate.";
  return {};
}

RenewalTerms RenewalTermsOf(const World& world, const Worker& worker) {
  const int size = world.Player().Size;
  return {size, RenewalWage(worker), WantsWritten(size, worker)};
}

RenewalAnswer JudgeRenewal(const Worker& worker, const RenewalTerms& terms,
                           const ContractOffer& offer) {
  const Talk talk{worker, terms, offer};
  RenewalAnswer answer{{}, true};
  // Whoever sits out says so, and may yet be won over.
  if (worker.Status == "Hom")
    answer.Remarks.push_back({"Refusal", "I'm not negotiating with you."});
  for (const Objection& objection : kObjections) {
    const bool holds = (answer.Accepted && objection.Holds(talk)) ||
                       (objection.IsSaidAnyway && objection.IsSaidAnyway(talk));
    if (!holds) continue;
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
