#include "info/screens/glossaryfigures.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "business/finance.h"
#include "business/sponsors.h"
#include "calendar/advanceday.h"
#include "calendar/birthdays.h"
#include "calendar/image.h"
#include "records/arithmetic.h"
#include "records/fields/fields.h"
#include "records/fields/vocabulary.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/severing.h"
#include "records/span.h"
#include "roster/invented.h"
#include "roster/leaving.h"
#include "roster/postings.h"
#include "roster/staff.h"
#include "roster/talks.h"
#include "show/aftermatch.h"
#include "show/holdshow.h"
#include "show/overchange.h"
#include "show/showfeuds.h"
#include "show/titlechange.h"
#include "show/turns.h"

// By how much a number moves, asked of the rules that move it.

namespace grapplemont {

namespace {

constexpr int kStrains = 5, kFull = 100;

std::string SpanText(Span span) {
  return std::to_string(span.Least) + " to " + std::to_string(span.Most);
}

Span ImageSteps() {
  Span steps;
  for (const HeldShow kind : {HeldShow::Event, HeldShow::Television})
    for (int size = kGlobal; size <= kBackyard; ++size)
      for (int rating = 0; rating <= kFull; ++rating) {
        const int step = ImageStep(kind, size, rating);
        steps = {std::min(steps.Least, step), std::max(steps.Most, step)};
      }
  return steps;
}

/// What a show of the easiest game has before it begins, and one of the hardest.
Span DifficultySteps() {
  GameInfo game{};
  game.Reputation = kFull;
  const auto stepAt = [&](int difficulty) {
    game.Difficulty = difficulty;
    return GoodwillBefore(game, HeldShow::Event)[0];
  };
  return {stepAt(kRockHard), stepAt(kEasy)};
}

/// Dollars a month for a point of production.
Span ProductionPoint() {
  Span rate{ProductionCost(1), 0};
  for (int level = 1; level <= kBestProduction; ++level) {
    rate.Least = std::min(rate.Least, ProductionCost(level) / level);
    rate.Most = std::max(rate.Most, ProductionCost(level) / level);
  }
  return rate;
}

/// The dollars above what is fair from which on people think less of a price.
std::string PricesMinded() {
  const int fair = FairTicketPrice(kGlobal);
  std::vector<std::string> steps;
  for (int above = 0; fair + above < kFull; ++above)
    if (TicketOpinion(kGlobal, fair + above) != TicketOpinion(kGlobal, fair + above + 1))
      steps.push_back(std::to_string(above));
  return Joined(steps, ", ");
}

/// Percent of a loan that the bank takes a month, on top of its part, in the hardest game.
int HighestInterest() {
  constexpr int kSum = kLoanStep;
  const int months = LoanTerm(1);
  const long long cents = int(LoanQuote(kSum, months, kRockHard));
  return static_cast<int>((cents - 100LL * kSum / months) / kSum);
}

/// The least Over that has a floor, and the floor.
Span FirstFloor() {
  int over = 0;
  while (over < kFull && OverFloorFor(over) == 0) ++over;
  return {over, OverFloorFor(over)};
}

std::string Raises() {
  std::vector<std::string> steps;
  for (const int raise : kProductionRaises) steps.push_back(std::to_string(raise));
  return Joined(steps, ", ");
}

/// The share of a loan, in percent, that the bank wants to see in hand.
int ShareInHand() {
  Promotion promotion{};
  int percent = 0;
  for (; !BankAccepts(promotion, 1); ++percent) promotion.Money += kLoanStep / kFull;
  return percent;
}

/// What a show on television brings of what a sponsor pays for an Event, in percent.
std::string TelevisionShare(bool isMain) {
  Sponsor sponsor{};
  sponsor.Pay = kFull;
  return std::to_string(SponsorPayForTv(sponsor, isMain));
}

int StandingAt(int size, int image) {
  Promotion promotion{};
  promotion.Size = size;
  promotion.Image = image;
  return StandingScore(promotion);
}

struct FigureRow {
  std::string_view Slot;
  std::string (*Is)();
};

template <auto number>
std::string Is() {
  return std::to_string(number);
}

// By slot.
constexpr FigureRow kGlossaryFigures[] = {
    {"advertising.cost", [] { return Dollars(AdvertisingCost(1)); }},
    {"birthday", Is<kBirthdayDraw - 1>},
    {"camp.basics", Is<kCampBasics>},
    {"camp.most", [] { return std::to_string(MostOfCamp()); }},
    {"camp.stiff", Is<kTooStiff - 1>},
    {"camp.soft", Is<kTooSoft>},
    {"class.fall", Is<kOverOfFall>},
    {"class.fallen", Is<kAfterAFall>},
    {"class.mainevent", Is<kOverOfRise + kMainEventersRise>},
    {"class.potential", Is<kPotentialAboveFloor>},
    {"class.potential.least", Is<kLeastPotential>},
    {"class.rise", Is<kOverOfRise>},
    {"class.risen", Is<kAfterARise>},
    {"condition.worn", Is<kWornOut>},
    {"difficulty",
     [] {
       const Span steps = DifficultySteps();
       return std::to_string(steps.Most) + " to " + std::to_string(steps.Least);
     }},
    {"economy.calm", [] { return std::to_string(kCalmFrom) + " and " + std::to_string(kCalmTo); }},
    {"economy.days", Is<kDriftDays>},
    {"economy.of", Is<kDriftOf>},
    {"event.cancelled", Is<kCancelledImage>},
    {"event.none", Is<kNoEventImage>},
    {"flat.odds", Is<kFlatNightOdds>},
    {"floor.from", [] { return std::to_string(FirstFloor().Least); }},
    {"floor.least", [] { return std::to_string(FirstFloor().Most); }},
    {"floor.most", [] { return std::to_string(OverFloorFor(kFull)); }},
    {"heat.moves", [] { return SpanText(HeatMoves()); }},
    {"heat.talk", [] { return SpanText(HeatOfTalk()); }},
    {"hold.far", Is<kMoraleOfHold + kMoraleOfFarHold>},
    {"hold.morale", Is<kMoraleOfHold>},
    {"image.steps", [] { return SpanText(ImageSteps()); }},
    {"lesson.charismatic", Is<kCharismatic>},
    {"lesson.most", [] { return std::to_string(MostOfLesson()); }},
    {"loan.hand", [] { return std::to_string(ShareInHand()); }},
    {"loan.interest", [] { return std::to_string(HighestInterest()); }},
    {"loan.least", [] { return Dollars(kLoanStep); }},
    {"loan.most", [] { return Dollars(1LL * kLoanStep * kMostLoanSteps); }},
    {"match.good", [] { return SpanText(MoraleOfGoodMatch()); }},
    {"match.poor", [] { return SpanText(MoraleOfPoorMatch()); }},
    {"match.won", Is<kWinnersJoy>},
    {"merchandise.cost", [] { return Dollars(MerchandisingCost(1)); }},
    {"merchandise.sales", [] { return Dollars(MerchandiseCap(1)); }},
    {"middleaged", Is<kMiddleAged>},
    {"move.down", [] { return std::to_string(-MoraleOfMove(kMainEvent, kMidcard)); }},
    {"move.up", [] { return std::to_string(MoraleOfMove(kMidcard, kMainEvent)); }},
    {"outgrown", Is<kOutgrownBehaviour>},
    {"poorform", Is<kPoorFormLoss>},
    {"production.least", [] { return Dollars(ProductionPoint().Least); }},
    {"production.most", [] { return Dollars(ProductionPoint().Most); }},
    {"production.raises", Raises},
    {"push.least", Is<kOverOfPush>},
    {"push.most", Is<kOverOfPush + kOverOfFarPush>},
    {"reputation.poor", Is<kPoorReputation>},
    {"rest.least", Is<kRest>},
    {"rest.most", Is<kRestWithMedics>},
    {"retire", [] { return std::to_string(RetiringAge()); }},
    {"showcase.first", Is<kShowcases[0].QualityFrom>},
    {"showcase.first.below", Is<kShowcases[0].OverBelow>},
    {"showcase.first.gain", Is<kShowcases[0].Gain>},
    {"showcase.second", Is<kShowcases[1].QualityFrom>},
    {"showcase.second.below", Is<kShowcases[1].OverBelow>},
    {"showcase.second.gain", Is<kShowcases[1].Gain>},
    {"sponsor.main", [] { return TelevisionShare(true); }},
    {"sponsor.other", [] { return TelevisionShare(false); }},
    {"staff.wage.most", [] { return Dollars(1000LL * kHighestStaffWage); }},
    {"standing.class",
     [] { return std::to_string(StandingAt(kNational, 0) - StandingAt(kCult, 0)); }},
    {"standing.most", [] { return std::to_string(StandingAt(kGlobal, kFull)); }},
    {"strain.hurts", [] { return std::to_string(HurtingStrain()); }},
    {"talk.below", Is<kTalkBelow>},
    {"talk.gain", Is<kSensationalTalk>},
    {"talk.loss", Is<kPoorTalk>},
    {"ticket.minded", PricesMinded},
    {"title.leap", Is<kTitleImageLeap>},
    {"title.step", Is<kTitleImageStep>},
    {"title.stripped", Is<kImageOfStripped>},
    {"turn.failed", [] { return SpanText(CostOfFailedTurn()); }},
    {"turn.most", [] { return std::to_string(BestOfTurn()); }},
    {"wage.most", [] { return Dollars(1000LL * kHighestWage); }},
    {"walkout", Is<kWalksOutBelow>},
    {"wear",
     [] {
       return SpanText({WearOf(1).Least, WearOf(kStrains).Most});
     }},
    {"word.loyalty", Is<kBrokenWordLoyalty>},
    {"word.reputation", Is<kBrokenWordReputation>},
};

}  // namespace

std::string GlossaryFigure(std::string_view slot) {
  const auto figure = std::ranges::find(kGlossaryFigures, slot, &FigureRow::Slot);
  return figure == std::end(kGlossaryFigures) ? std::string() : figure->Is();
}

}  // namespace grapplemont
