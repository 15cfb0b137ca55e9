#include "session/randomworld.h"

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <vector>

#include "records/fields/fields.h"
#include "rivals/newpromotionnames.h"
#include "roster/invented.h"
#include "show/ratings.h"
#include "words/promotions.h"

namespace grapplemont {

namespace {

constexpr int kMostSeed = 2'000'000'000;
constexpr int kImageSpread = 10, kLeastImage = 5, kMostImage = 85;

// What Titles are called behind the initials; a promotion with more of a kind numbers them.
constexpr std::array<const char*, 4> kSinglesTitles = {"Crown", "Championship", "Cup", "Shield"};
constexpr std::array<const char*, 2> kWomensTitles = {"Women's Crown", "Women's Cup"};
constexpr std::array<const char*, 2> kTagTitles = {"Tag Titles", "Pairs Cup"};

/// The same records with chance of their own, so that the game that follows draws as any other.
World ScratchOf(World& world) {
  const auto seed = static_cast<std::uint64_t>(world.Life().Draw(kMostSeed));
  World scratch(std::make_unique<SeededDraws>(seed), std::make_unique<SeededDraws>(seed),
                std::make_unique<SeededDraws>(seed));
  std::map<std::string, Bytes> files;
  for (NewFile& file : FilesOf(world)) files[file.Name] = std::move(file.Contents);
  scratch.Load(files);
  return scratch;
}

/// Somebody as popular, as dear, as heavy and at least as good as who was there.
void Reinvent(World& world, Worker& worker) {
  const Worker before = worker;
  InventName(world, worker);
  NewWorkerAttributes(world, worker, Generation::Filler);
  worker.Over = before.Over;
  worker.Position = before.Position;
  worker.Wage = int(before.Wage);
  worker.Weight = before.Weight.View();
  worker.Debuted = before.Debuted;
  const int lacks = BestSkill(before) - BestSkill(worker);
  if (lacks <= 0) return;
  Percent* const skills[] = {&worker.Brawl, &worker.Technical, &worker.Speed};
  **std::ranges::max_element(skills, {}, [](const Percent* skill) { return int(*skill); }) += lacks;
}

void RenamePromotions(World& world) {
  std::vector<const NewPromotionName*> names;
  for (const NewPromotionName& name : kNewPromotionNames) names.push_back(&name);
  for (Promotion& promotion : world.Promotions()) {
    if (names.empty()) return;
    const auto drawn = names.begin() + (world.RandomDraw(static_cast<int>(names.size())) - 1);
    promotion.Name = (*drawn)->Name;
    promotion.Initials = (*drawn)->Initials;
    names.erase(drawn);
    promotion.Image =
        std::clamp(promotion.Image + world.RandomDraw(2 * kImageSpread + 1) - kImageSpread - 1,
                   kLeastImage, kMostImage);
  }
}

/// "CWA Crown", "CWA Crown 2" and on.
template <std::size_t N>
std::string TitleName(const std::string& initials, const std::array<const char*, N>& kinds,
                      int count) {
  const std::size_t at = static_cast<std::size_t>(count) % N;
  const int round = count / static_cast<int>(N) + 1;
  return initials + " " + kinds[at] + (round > 1 ? " " + std::to_string(round) : "");
}

void RenameTitles(World& world) {
  std::map<std::pair<int, int>, int> counts;  // by promotion and kind
  for (Title& title : world.Titles()) {
    const Promotion* owner = world.FindPromotion(title.Owner);
    if (!owner) continue;
    const std::string initials = owner->Initials.Str();
    const int kind = !title.Singles ? 0 : title.Woman ? 1 : 2;
    const int count = counts[{owner->Uid, kind}]++;
    title.Name = kind == 0   ? TitleName(initials, kTagTitles, count)
                 : kind == 1 ? TitleName(initials, kWomensTitles, count)
                             : TitleName(initials, kSinglesTitles, count);
  }
}

void RenameShows(World& world) {
  std::map<std::string, int> counts;
  for (Show& show : world.Shows()) {
    const Promotion* owner = world.FindPromotion(show.Owner);
    if (!owner) continue;
    const std::string name = owner->Initials + " " + show.Day.Str();
    const int count = ++counts[name];
    show.Name = count == 1 ? name : name + " " + std::to_string(count);
  }
}

template <class T>
void TakeOver(World& world, const World& from) {
  world.Of<T>().Rewrite({from.Of<T>().begin(), from.Of<T>().end()});
}

}  // namespace

void InventWorld(World& world) {
  World made = ScratchOf(world);
  for (Worker& worker : made.Workers()) Reinvent(made, worker);
  for (Staff& staff : made.AllStaff()) InventName(made, staff);
  RenamePromotions(made);
  RenameTitles(made);
  RenameShows(made);
  TakeOver<Worker>(world, made);
  TakeOver<Staff>(world, made);
  TakeOver<Promotion>(world, made);
  TakeOver<Title>(world, made);
  TakeOver<Show>(world, made);
}

}  // namespace grapplemont
