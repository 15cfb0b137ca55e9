#include "info/prospect.h"

#include <algorithm>
#include <map>

#include "booking/showstart.h"
#include "business/finance.h"
#include "business/sponsors.h"
#include "business/tvshows.h"
#include "calendar/board.h"
#include "calendar/events.h"
#include "calendar/image.h"
#include "info/meeting.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "rivals/purse.h"
#include "roster/postings.h"
#include "roster/signing.h"

namespace grapplemont {

namespace {

constexpr std::uint64_t kTrial = 1;
constexpr int kFullImage = 100;
constexpr int kYearOfWages = 12;
constexpr std::size_t kRecruits = 12;

/// The world after the rise or the fall, with an Event in every month.
World WorldThere(const World& world, bool isRise) {
  World there(std::make_unique<SeededDraws>(kTrial), std::make_unique<SeededDraws>(kTrial),
              std::make_unique<SeededDraws>(kTrial));
  std::map<std::string, Bytes> files;
  for (NewFile& file : FilesOf(world)) files[file.Name] = std::move(file.Contents);
  there.Load(files);
  there.Session = world.Session;
  there.ShowRuns().Rewrite({});
  Promotion& player = there.Player();
  ChangeImage(there, player, isRise ? kFullImage - player.Image : int(player.Image), isRise);
  EnsureEvents(there, player);
  return there;
}

Forecast EventThere(World& there) {
  if (!BookAutoShow(there, true)) return {};
  return ForecastShow(there, true, BestTeam(there)).Rating;
}

std::vector<BandThere> BandsOf(const GameInfo& game, int size, const Forecast& expected) {
  std::vector<BandThere> bands;
  for (int rating = 100; rating >= 0; --rating) {
    const BandThere band{rating, rating, WholeEventStep(game, size, rating),
                         WholeTvStep(game, size, rating)};
    const bool goesOn = !bands.empty() && bands.back().EventStep == band.EventStep &&
                        bands.back().TvStep == band.TvStep;
    if (goesOn)
      bands.back().From = rating;
    else
      bands.push_back(band);
  }
  const int middle = (expected.Low + expected.High) / 2;
  for (BandThere& band : bands)
    band.IsExpected = expected.High > 0 && middle >= band.From && middle <= band.To;
  return bands;
}

std::vector<PlaceThere> PlacesOf(const World& world, const World& there) {
  std::vector<PlaceThere> places;
  for (int position = kMainEvent; position <= kJobber; ++position) {
    const auto count = [&](const World& one) {
      return static_cast<int>(std::ranges::count_if(FitWrestlers(one), [&](const Worker* worker) {
        return FittingPosition(one.Player().Size, worker->Over) == position;
      }));
    };
    places.push_back({position, count(world), count(there)});
  }
  return places;
}

/// The Over in the middle of the roster; 0 without one.
int MiddleOver(const World& world) {
  const People people = FitWrestlers(world);
  return people.empty() ? 0 : int(people[people.size() / 2]->Over);
}

std::vector<RecruitThere> RecruitsOf(const World& there) {
  const Promotion& player = there.Player();
  std::vector<const Worker*> better;
  for (const Worker& worker : there.Workers())
    if (worker.Employer != player.Uid && worker.Status == "Nor" &&
        worker.Over > MiddleOver(there) && WhyNoSigning(there, worker).empty())
      better.push_back(&worker);
  std::ranges::stable_sort(better, [](auto* a, auto* b) { return a->Over > b->Over; });
  std::vector<RecruitThere> recruits;
  for (const Worker* worker : better) {
    const Demands wants = ContractDemands(there, *worker);
    if (wants.Wage * 1000LL * kYearOfWages <= player.Money)
      recruits.push_back({worker->Uid, wants});
    if (recruits.size() == kRecruits) break;
  }
  return recruits;
}

std::vector<std::string> FactsOf(const World& world, const World& there) {
  const Promotion &here = world.Player(), &then = there.Player();
  return {"Image to begin with: " + std::to_string(then.Image) + "%.",
          "A ticket is thought worth " + Dollars(FairTicketPrice(then.Size)) + ", here " +
              Dollars(FairTicketPrice(here.Size)) + ".",
          "Commentators are expected to have a talent of " +
              std::to_string(WantedTalent(then.Size)) + ", here " +
              std::to_string(WantedTalent(here.Size)) + ".",
          "Sponsors who pay less than " + Dollars(SponsorPayLimit(then.Size, then.Image) * 1000LL) +
              " would sign, here " + Dollars(SponsorPayLimit(here.Size, here.Image) * 1000LL) + ".",
          "The bank closes us at a debt of " +
              Dollars(-static_cast<long long>(BankruptcyLineOf(then.Size).BankruptBelow)) + "."};
}

/// The production's charge and what else would hurt a show there stand in the forecast's words.
std::vector<std::string> LeaversOf(const World& world, const World& there) {
  std::vector<std::string> names;
  for (const Worker& worker : there.Workers()) {
    const Worker* here = world.FindWorker(worker.Uid);
    if (here && worker.Employer == there.PlayerUid() && MovesOn(there, worker) &&
        !MovesOn(world, *here))
      names.push_back(worker.Name.Str());
  }
  return names;
}

}  // namespace

Prospect ProspectOf(const World& world) {
  const Promotion& player = world.Player();
  Prospect prospect;
  const int next = ClassInSight(player);
  prospect.IsRise = next == 0 ? player.Size > kGlobal : next < player.Size;
  World there = WorldThere(world, prospect.IsRise);
  prospect.Size = there.Player().Size;
  prospect.Places = PlacesOf(world, there);
  prospect.Recruits = RecruitsOf(there);
  prospect.Facts = FactsOf(world, there);
  prospect.WillLeave = LeaversOf(world, there);
  prospect.Event = EventThere(there);
  prospect.Bands = BandsOf(world.Game(), prospect.Size, prospect.Event);
  return prospect;
}

std::string ProspectTitle(const Prospect& prospect) {
  const std::string size(SizeText(prospect.Size));
  return prospect.IsRise ? "Ready For " + size + "?" : "What Awaits Us At " + size;
}

}  // namespace grapplemont
