#include <algorithm>
#include <array>

#include "calendar/advanceday.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "roster/moods.h"

// What the young learn away from the main roster: in the development territory and in the training
// camp.

namespace grapplemont {

namespace {

int TalentOf(const World& world, int staffUid) {
  const Staff* staff = world.FindStaff(staffUid);
  return staff ? int(staff->Talent) : 0;
}

bool IsToldOf(int option) {
  constexpr int kNever = 2;
  return option != kNever;
}

/// "Over (2 points); "; nothing for no points.
std::string Piece(std::string_view what, int points) {
  if (points <= 0) return {};
  return std::string(what) + " (" + Counted(points, "point") + "); ";
}

std::string Improved(const Worker& worker, std::string_view where, const std::string& pieces) {
  return worker.Name + " in " + std::string(where) +
         " has improved in the following areas: " + pieces;
}

/// A gain in the territory is a draw less a fixed number.
struct Gain {
  int Of;
  int Less;
  int Draw(World& world) const { return world.RandomDraw(Of) - Less; }
};
/// What a booker of at least this talent teaches in a month.
struct Lesson {
  int FromTalent;
  Gain Over;
  Gain Skill;  // charisma, and stiffness towards the middle
};
constexpr std::array<Lesson, 4> kLessons = {
    {{95, {5, 0}, {4, 0}}, {75, {4, 0}, {3, 0}}, {60, {3, 1}, {3, 1}}, {41, {2, 1}, {2, 1}}}};

const Lesson* LessonOf(int talent) {
  const auto found = std::ranges::find_if(
      kLessons, [&](const Lesson& lesson) { return talent >= lesson.FromTalent; });
  return found == kLessons.end() ? nullptr : &*found;
}

/// `gain`, or nothing at all where it would lead past the limit.
int UpTo(int limit, int value, int gain) {
  return value + gain > limit ? 0 : gain;
}

/// What they have learned, a piece each; empty for nothing.
std::string Learn(World& world, Worker& worker, const Lesson& lesson) {
  const int over = UpTo(std::min<int>(worker.Potential, 100), worker.Over, lesson.Over.Draw(world));
  worker.Over += over;
  int charisma = 0, stiffness = 0;
  if (worker.Charisma < kCharismatic)
    charisma = UpTo(100, worker.Charisma, lesson.Skill.Draw(world));
  worker.Charisma += charisma;
  if (worker.Stiff < kTooSoft || worker.Stiff >= kTooStiff) {
    stiffness = lesson.Skill.Draw(world);
    worker.Stiff += worker.Stiff < kTooSoft ? stiffness : -stiffness;
  }
  return Piece("Over", over) + Piece("Charisma", charisma) + Piece("Stiffness", stiffness);
}

/// By a draw of five.
std::string Complaint(const Worker& worker, const std::string& territory, int drawn) {
  constexpr std::array<std::string_view, 5> kWords = {
      "{who} is unhappy about remaining in {there}.", "{who} doesn't want to remain in {there}.",
      "{who} wants to be promoted to the full roster.",
      "{who} feels that {there} isn't helping {his} career much.",
      "{who} is not happy about being stuck in {there}."};
  return FillHoles(kWords[static_cast<std::size_t>(drawn - 1)], [&](std::string_view slot) {
    return slot == "who"     ? worker.Name.Str()
           : slot == "there" ? territory
                             : std::string(worker.Gender ? "his" : "her");
  });
}

void Outgrow(World& world, Worker& worker, const std::string& territory) {
  worker.Behaviour -= world.RandomDraw(kOutgrownBehaviour);
  MoveMorale(world, worker, -world.RandomDraw(5), kMoodStuck);
  AddNews(world, "Development", Complaint(worker, territory, world.RandomDraw(5)));
}

/// By facilities, none to superb: the most that a trainee may learn of a skill.
constexpr std::array<int, 5> kCaps = {0, 1, 2, 3, 5};

/// What a head trainer of at least this talent makes of the draws: a draw of none still is a point.
/// From 60 to 70 they teach no more than the untalented, having outgrown the drill and not found a
/// method of their own.
struct TrainerBand {
  int From;
  int Range;
};
constexpr std::array<TrainerBand, 6> kTrainers = {
    {{99, 4}, {91, 3}, {71, 2}, {60, 0}, {41, 1}, {-32768, 0}}};

int CampRange(const World& world, const Promotion& promotion) {
  const int talent = TalentOf(world, promotion.HeadTrainer);
  const auto band =
      std::ranges::find_if(kTrainers, [&](const TrainerBand& row) { return talent >= row.From; });
  const int level = std::clamp<int>(promotion.CampFacilities, 0, kCaps.size() - 1);
  return std::min(band->Range, kCaps[static_cast<std::size_t>(level)]);
}

/// What the trainee has learned, a piece each.
std::string Drill(World& world, Worker& worker, int range) {
  struct Skill {
    std::string_view Name;
    Percent Worker::*Field;
  };
  constexpr Skill kSkills[] = {
      {"Brawling", &Worker::Brawl}, {"Technical", &Worker::Technical}, {"Speed", &Worker::Speed}};
  worker.Sell += kCampBasics;
  worker.Attitude += kCampBasics;
  std::string pieces = Piece("Selling", kCampBasics) + Piece("Attitude", kCampBasics);
  for (const Skill& skill : kSkills) {
    const int points = world.RandomDraw(range);
    worker.*skill.Field += points;
    pieces += Piece(skill.Name, points);
  }
  return pieces;
}

}  // namespace

int MostOfCamp() {
  return std::min(kTrainers.front().Range, kCaps.back());
}

int MostOfLesson() {
  return kLessons.front().Skill.Of - kLessons.front().Skill.Less;
}

void DevelopmentMonth(World& world) {
  const Promotion& player = world.Player();
  if (player.DevName == "None") return;
  const std::string territory = player.DevName.Str();
  const Lesson* lesson = LessonOf(TalentOf(world, player.DevBooker));
  for (Worker& worker : world.Workers()) {
    if (worker.Employer != player.Uid || !IsInDevelopment(worker)) continue;
    if (lesson && worker.Over < worker.Potential) {
      const std::string pieces = Learn(world, worker, *lesson);
      if (!pieces.empty() && IsToldOf(world.Game().MailDev))
        AddNews(world, "Development", Improved(worker, territory, pieces));
    }
    if (worker.Over >= worker.Potential) Outgrow(world, worker, territory);
  }
}

void TrainingCampMonth(World& world) {
  const Promotion& player = world.Player();
  if (player.CampName == "None" || player.HeadTrainer == 0) return;
  const int range = CampRange(world, player);
  for (Worker& worker : world.Workers()) {
    if (worker.Employer != player.Uid || worker.Position != kTrainingCamp) continue;
    const std::string pieces = Drill(world, worker, range);
    if (IsToldOf(world.Game().MailTrain))
      AddNews(world, "Training Camp", Improved(worker, player.CampName, pieces));
  }
}

}  // namespace grapplemont
