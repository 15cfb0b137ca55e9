#include "roster/signing.h"

#include <algorithm>

#include "records/houserules.h"
#include "records/keepannals.h"
#include "records/modVar.h"
#include "records/severing.h"
#include "roster/postings.h"
#include "roster/talkobjections.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

/// A sentence about a man and about a woman.
struct Line {
  const char* Man;
  const char* Woman;
  std::string Of(const Worker& worker) const { return worker.Gender ? Man : Woman; }
};
constexpr Line kNotAtAll = {"He does not want to negotiate with you at all.",
                            "She does not want to negotiate with you at all."};
constexpr Line kNotWhileBound = {
    "He apologises, but he does not wish to negotiate while working for another organisation.",
    "She apologises, but she does not wish to negotiate while working for another organisation."};
constexpr Line kStays = {
    "He apologises, but he does not want to leave his current employers to join you.",
    "She apologises, but she does not want to leave her current employers to join you."};
constexpr Line kTooSmall = {"He does not feel your promotion is big enough for him.",
                            "She does not feel your promotion is big enough for her."};
constexpr Line kMoreMoney = {
    "He agrees to negotiate, but will need a higher wage to justify leaving his current employer.",
    "She agrees to negotiate, but will need a higher wage to justify leaving her current "
    "employer."};

bool IsBoundAndContent(const Worker& worker) {
  return worker.ContractType == "Wri" && worker.Morale >= 61 && worker.ContractMonths >= 1;
}

/// The better they behave, the further the player must stand above their employer.
std::string WhyStays(const World& world, const Worker& worker, int size, Decision* why) {
  const Promotion* employer = world.FindPromotion(worker.Employer);
  if (!employer || !IsBoundAndContent(worker)) {
    Weigh(why, true, employer ? "Not both bound in writing and content" : "Works for nobody");
    return {};
  }
  const bool isLoyal = worker.Behaviour >= 91;
  const bool stays = employer->Size - (isLoyal ? 2 : 1) <= size;
  Weigh(why, !stays,
        "Bound in writing and content at " + employer->Initials.Str() + "; somebody of that " +
            "conduct leaves it for a promotion " + (isLoyal ? "three" : "two") +
            " classes above it, and no other");
  return !stays ? "" : isLoyal ? kNotWhileBound.Of(worker) : kStays.Of(worker);
}

bool IsTooBig(int size, int over) {
  return (size == kBackyard && over > 30) || (size == kSmall && over > 50) ||
         (size == kRegional && over >= 71);
}

struct SigningTalk {
  const Worker& Who;
  const Demands& Wants;
  const SigningOffer& Offer;

  int Tier() const { return SkillTier(Who); }
  bool Pays(int percent) const { return Offer.Wage >= PercentOf(Wants.Wage, percent); }
  bool OffersMoreThan(int percentOnTop) const {
    return Wants.Wage + PercentOf(Wants.Wage, percentOnTop) < Offer.Wage;
  }
  std::string Told(std::string_view slot) const {
    if (slot == "months") return MonthsText(Offer.Months);
    if (slot == "length") return MonthsText(Wants.Months);
    return WageText(slot == "wanted" ? Wants.Wage : Offer.Wage);
  }
  bool Asks(int position) const { return Wants.Position == position; }
  bool Gets(int position) const { return Offer.Position == position; }
};

// The last two turn down a wage above their figure.
constexpr Objection<SigningTalk> kSigningObjections[] = {
    {[](const SigningTalk& t) { return t.Wants.Written && !t.Offer.Written; },
     "I want a written contract!", "A verbal contract offered: they want a written one"},
    {[](const SigningTalk& t) { return !t.Wants.Written && t.Offer.Written; },
     "I do not want a written contract!", "A written contract offered: they want a verbal one",
     "The type of contract is the one they want"},
    {[](const SigningTalk& t) { return t.Offer.Wage < t.Wants.Wage - PercentOf(t.Wants.Wage, 10); },
     "You are not offering me enough money!",
     "{offered} offered of {wanted} wanted: a tenth less is the least they take",
     "{offered} offered of {wanted} wanted"},
    {[](const SigningTalk& t) {
       return t.Wants.CreativeControl && !t.Offer.CreativeControl && !t.Pays(120);
     },
     "I want a creative control clause!",
     "No creative control, and no fifth on top of {wanted} in its place"},
    {[](const SigningTalk& t) {
       return t.Asks(kManager) && !t.Gets(kManager) && t.Tier() == 0 && !t.Pays(120);
     },
     "I only wish to work as a manager!",
     "Cannot wrestle, and does anything else only for a fifth on top of {wanted}"},
    {[](const SigningTalk& t) {
       return !t.Asks(kManager) && t.Gets(kManager) && t.Tier() > 0 && !t.Pays(120);
     },
     "I do not want to become a manager!",
     "Can wrestle, and manages only for a fifth on top of {wanted}"},
    {[](const SigningTalk& t) {
       return t.Asks(kNonWrestler) && !t.Gets(kNonWrestler) && (t.Tier() == 0 || t.Who.Age > 35) &&
              !t.Pays(140);
     },
     "I only wish to work as a non-wrestler!",
     "Works outside the ring, and in it only for two fifths on top of {wanted}"},
    {[](const SigningTalk& t) {
       return !t.Asks(kNonWrestler) && t.Gets(kNonWrestler) && t.Tier() > 0 && !t.Pays(130);
     },
     "I do not want to become a non-wrestler!",
     "Can wrestle, and leaves the ring only for three tenths on top of {wanted}"},
    {[](const SigningTalk& t) { return t.Gets(kTrainingCamp) && (t.Tier() > 0 || t.Who.Age > 24); },
     "I do not want to go to the training camp!",
     "The training camp is for people of at most 24 who cannot wrestle yet"},
    {[](const SigningTalk& t) {
       return t.Offer.Position > t.Wants.Position && t.Offer.Position < kDevelopmentDeal;
     },
     "I want to be positioned higher up the card!",
     "The position offered is below the one they want", "Nothing speaks against the position"},
    {[](const SigningTalk& t) { return t.Wants.Months == 6 && t.Offer.Months >= 13; },
     "I do not want to sign such a long contract!",
     "{months} offered: they want {length}, and no more than 12"},
    {[](const SigningTalk& t) { return t.Wants.Months == 24 && t.Offer.Months == 6; },
     "I need job security. I want a longer contract!",
     "{months} offered: they want {length}, and more than 6 at least"},
    {[](const SigningTalk& t) { return t.Wants.Months >= 31 && t.Offer.Months < 25; },
     "I need job security. I want a longer contract!",
     "{months} offered: they want {length}, and more than 24 at least"},
    {[](const SigningTalk& t) { return t.Wants.Months == 60 && t.Offer.Months < 37; },
     "I want a much longer contract!",
     "{months} offered: they want {length}, and more than 36 at least"},
    {[](const SigningTalk& t) {
       return t.Wants.Months == 24 && t.Offer.Months > 48 && t.OffersMoreThan(15);
     },
     "I want extra money to sign for this amount of time!",
     "{months} offered: for that long they turn down more than 15% above {wanted}"},
    {[](const SigningTalk& t) {
       return t.Wants.Months == 12 && t.Offer.Months > 30 && t.OffersMoreThan(20);
     },
     "I want extra money to sign for this amount of time!",
     "{months} offered: for that long they turn down more than a fifth above {wanted}",
     "{months} suit them"},
};

bool IsNameOfAnother(const World& world, const Worker& worker, std::string_view name) {
  return std::ranges::any_of(world.Workers(), [&](const Worker& other) {
    return other.Uid != worker.Uid && TrimmedName(other.Name) == name;
  });
}

std::string WhyNotCalled(const World& world, const Worker& worker, const SigningOffer& offer) {
  const std::string_view name = TrimmedName(offer.Name), shortName = TrimmedName(offer.ShortName);
  if (shortName.empty()) return "You cannot use a blank short name!";
  if (name.empty()) return "You cannot use a blank name!";
  if (IsNameOfAnother(world, worker, name)) return "This name already exists!";
  const std::string why = WhyNoName(name);
  return why.empty() ? WhyNoName(shortName, Text<10>::kWidth) : why;
}

/// They give up what they were and had where they come from.
void LeaveFormer(World& world, const Worker& worker) {
  LeaveOffice(world, worker.Uid);
  LoseClients(world, {worker.Uid});
  VacateTitlesOf(world, worker.Uid);
  LeaveMicrophones(world, worker);
}

}  // namespace

std::string WhyNoSigning(const World& world, const Worker& worker, Decision* why) {
  const int size = world.Player().Size;
  if (std::string no = WhyNotInThisHouse(world, worker); !no.empty()) return no;
  const bool talks = worker.Loyalty >= 40;
  if (!Weigh(why, talks, talks ? "Thinks well enough of you to talk" : "Thinks little of you"))
    return kNotAtAll.Of(worker);
  if (std::string no = WhyStays(world, worker, size, why); !no.empty()) return no;
  const bool fits = !IsTooBig(size, worker.Over);
  Weigh(why, fits,
        "Popularity " + std::to_string(worker.Over) +
            (fits ? ": our size will do"
                  : ": a Backyard gets up to 30, a Small promotion 50, a Regional one 70"));
  return fits ? "" : kTooSmall.Of(worker);
}

std::string MoreMoneyText(const Worker& worker) {
  return kMoreMoney.Of(worker);
}

std::string WhyNotAsOffered(const World& world, const Worker& worker, const SigningOffer& offer) {
  if (std::string why = WhyNotCalled(world, worker, offer); !why.empty()) return why;
  const Promotion& own = world.Player();
  if (offer.Position == kTrainingCamp && own.CampName == "None")
    return "You do not have a training camp set up!";
  if (offer.Position == kDevelopmentDeal && own.DevName == "None")
    return "You do not have a development territory set up!";
  return {};
}

std::string JudgeSigning(const Worker& worker, const Demands& demands, const SigningOffer& offer,
                         Decision* why) {
  return FirstObjection(kSigningObjections, SigningTalk{worker, demands, offer}, why);
}

void Sign(World& world, Worker& worker, const SigningOffer& offer) {
  const Promotion* former = world.FindPromotion(worker.Employer);
  NoteDeed(world, former ? kDeedStolen : kDeedSigned, &world.Player(), TrimmedName(offer.Name),
           former ? former->Initials.View() : std::string_view(), 0, &worker);
  LeaveFormer(world, worker);
  worker.Employer = world.PlayerUid();
  const std::string before = worker.Name.Str();
  worker.Name = TrimmedName(offer.Name);
  if (worker.Name != before) KeepNewName(world, worker, before);
  worker.ShortName = TrimmedName(offer.ShortName);
  worker.Disposition = offer.Disposition;
  worker.Position = offer.Position;
  PutInto(worker, offer);
  worker.CreativeControl = offer.CreativeControl;
  worker.Stable = "None";
  worker.Split = "None";
  worker.Manager = 0;
  worker.Debuted = false;
}

}  // namespace grapplemont
