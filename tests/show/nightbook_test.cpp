#include "show/nightbook.h"

#include <gtest/gtest.h>

#include "show/holdshow.h"
#include "show/recap.h"
#include "show/showfeuds.h"
#include "showrig.h"

namespace grapplemont::test {
namespace {

/// People of all kinds.
World House(std::uint64_t seed) {
  SmallWorld cast = Cast(12, [](Worker& w) {
    w.Over = 20 + 6 * w.Uid;
    w.Attitude = 8 * w.Uid;
    w.Condition = 100 - 5 * w.Uid;
    w.Morale = w.Uid % 3 == 0 ? 2 : 97;
    w.Stiff = w.Uid % 4 == 0 ? 95 : 50;
    w.Position = 1 + w.Uid % 6;
    w.Potential = 100;
  });
  return OnTheAir(cast, std::make_unique<SeededDraws>(seed));
}

Segment Won(int winner, int loser, std::string_view title = "None") {
  Segment match = SegmentOf(kMatch, kSingles, kPlainSingles, {winner, loser});
  match.Winner = winner;
  match.Loser = loser;
  match.Finish = kClean;
  match.Purpose = match.Aftermath = 1;
  match.TitleName = title;
  return match;
}

void Hold(World& world) {
  std::vector<Segment> sheet(static_cast<std::size_t>(kTvRows), EmptySegment());
  sheet[0] = Won(2, 1, "Crown");
  sheet[1] = Won(5, 6);
  sheet[2] = Won(8, 9);
  sheet[3] = Won(8, 4);
  sheet[4] = Won(12, 8);
  world.Segments().Rewrite(sheet);
  HoldShow(world, false, {}, 0, nullptr);
}

int FigureOf(const Worker& worker, int kind) {
  return kind == kNoteOver ? worker.Over : kind == kNoteMorale ? worker.Morale : worker.Condition;
}

const NotedNumber* Noted(const std::vector<NotedNumber>& night, int kind, std::string_view what) {
  for (const NotedNumber& number : night)
    if (number.Kind == kind && number.What == what) return &number;
  return nullptr;
}

void ExpectNoted(const std::vector<NotedNumber>& night, int kind, std::string_view what, int before,
                 int after) {
  SCOPED_TRACE(std::string(what) + ", kind " + std::to_string(kind));
  const NotedNumber* number = Noted(night, kind, what);
  if (!number) {
    EXPECT_EQ(before, after) << "moved without a word";
    return;
  }
  EXPECT_EQ(number->Before(), before);
  EXPECT_EQ(number->After(), after);
  for (std::size_t i = 1; i < number->Steps.size(); ++i)
    EXPECT_EQ(number->Steps[i]->Now - number->Steps[i]->Change, number->Steps[i - 1]->Now);
  for (const ShowNote* step : number->Steps) EXPECT_NE(step->Why.View(), "");
}

TEST(TheNightBook, LeadsFromWhatWasToWhatIsStepByStep) {
  for (std::uint64_t seed = 1; seed <= 20; ++seed) {
    SCOPED_TRACE(seed);
    World world = House(seed);
    const World before = CopyOf(world);
    Hold(world);
    const auto night = NightOf(world, world.Today(), world.PlayerUid());
    ExpectNoted(night, kNoteRating, "Sunday Slam", 0, world.Session.ShowRating);
    for (const Worker& worker : world.Workers())
      for (const int kind : {kNoteOver, kNoteMorale, kNoteCondition})
        ExpectNoted(night, kind, worker.Name, FigureOf(*before.FindWorker(worker.Uid), kind),
                    FigureOf(worker, kind));
    for (const Title& title : world.Titles())
      ExpectNoted(night, kNoteTitleImage, title.Name,
                  before.Titles()[world.Titles().NumberOf(title)].Image, title.Image);
    const Feud& feud = world.Feuds()[1];
    ExpectNoted(night, kNoteHeat, FeudText(world, feud), before.Feuds()[1].Heat, feud.Heat);
    EXPECT_NE(Noted(night, kNoteTitle, "Crown"), nullptr);
    for (const Worker& worker : world.Workers())
      EXPECT_EQ(Noted(night, kNoteInjury, worker.Name) != nullptr, worker.Status == "Inj");
  }
}

TEST(TheNightBook, SaysOfAFlatNightWhatItTook) {
  int flatNights = 0;
  for (std::uint64_t seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE(seed);
    World world = House(seed);
    Hold(world);
    const bool isFlat = world.ShowRuns()[1].FlatNight;
    flatNights += isFlat;
    const auto night = NightOf(world, world.Today(), world.PlayerUid());
    int lost = 0, row = 0;
    for (const ShowNote* step : Noted(night, kNoteRating, "Sunday Slam")->Steps) {
      if (step->Row != 0) row = step->Row;
      if (step->Why != kFlatNight) continue;
      ++lost;
      const int rating = world.Segments()[row].Rating;
      EXPECT_EQ(Score::Floor((rating - step->Change) * 9, 10), rating);
    }
    EXPECT_EQ(lost, isFlat ? 5 : 0) << "each match loses a tenth";
  }
  EXPECT_GT(flatNights, 0) << "no seed had one";
}

TEST(TheNightBook, KeepsADozenShows) {
  World world = House(3);
  const Day first = world.Today();
  for (int week = 0; week < kKeptShows + 1; ++week) {
    world.Game().Today = first + std::chrono::days{7 * week};
    Hold(world);
    LeaveShow(world);
  }
  EXPECT_FALSE(HasNight(world, first, world.PlayerUid()));
  EXPECT_TRUE(HasNight(world, first + std::chrono::days{7}, world.PlayerUid()));
  Hold(world);
  EXPECT_TRUE(HasNight(world, first + std::chrono::days{7}, world.PlayerUid()))
      << "a show that begins again takes its own place";
}

TEST(TheNightBook, KeepsTheLastMonthsMerchandiseBesideTheShows) {
  World world = House(1);
  for (const int sold : {100, 70}) {
    Score sales;
    sales.Add(sold, "size and image");
    sales.Add(-20, "economy 15");
    NoteAnew(world, {kNoteMerch, "CWA"}, sales);
  }
  Hold(world);
  int steps = 0, sum = 0;
  for (const ShowNote& note : world.ShowNotes())
    if (note.Kind == kNoteMerch) {
      ++steps;
      sum += note.Change;
    }
  EXPECT_EQ(steps, 2);
  EXPECT_EQ(sum, 50);
  EXPECT_EQ(Noted(NightOf(world, world.Today(), world.PlayerUid()), kNoteMerch, "CWA"), nullptr);
}

}  // namespace
}  // namespace grapplemont::test
