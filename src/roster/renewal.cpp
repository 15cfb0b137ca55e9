#include "roster/renewal.h"

#include "roster/demands.h"

namespace grapplemont {

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
  worker.ContractType = ContractCodeOf(offer.Written);
  worker.CreativeControl = offer.CreativeControl;
  worker.ContractMonths = offer.Months;
  worker.Wage = offer.Wage;
}

}  // namespace grapplemont
