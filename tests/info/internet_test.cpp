#include <gtest/gtest.h>

#include <set>

#include "info/calmworld.h"
#include "info/fans.h"
#include "info/infowords.h"
#include "info/rumours.h"
#include "info/worldnews.h"
#include "records/severing.h"
#include "rivals/rivals.h"
#include "rivals/workermarket.h"
#include "support/gameonworld.h"

namespace grapplemont::test {
namespace {

Worker& One(World& world, const char* name) {
  return Named(world.Workers(), name);
}
Promotion& Rival(World& world) {
  return Named(world.Promotions(), "NEW");
}

std::vector<std::string> NewsOf(const World& world, const std::string& what) {
  std::vector<std::string> words;
  for (const NewsItem& item : WorldNews(world))
    if (item.What == what) words.push_back(item.House + ": " + item.Words);
  return words;
}

bool Has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

TEST(WorldNews, TellsWhatRivalsDid) {
  World world = CalmWorld();
  SignFor(world, Rival(world), One(world, "CWA 3"));
  FireFrom(world, Rival(world), {&One(world, "NEW 2")});
  const auto signings = NewsOf(world, "Signing"), departures = NewsOf(world, "Departure");
  ASSERT_EQ(signings.size(), 1U);
  EXPECT_TRUE(Has(signings[0], "NEW: ") && Has(signings[0], "CWA 3")) << signings[0];
  EXPECT_TRUE(Has(signings[0], "CWA")) << "taken from whom";
  ASSERT_EQ(departures.size(), 1U);
  EXPECT_TRUE(Has(departures[0], "NEW 2")) << departures[0];
}

TEST(WorldNews, KeepsTheNameOfAPromotionThatIsGone) {
  World world = CalmWorld();
  Rival(world).Money = -2000000;
  BankruptcyCheck(world);
  SweepDeadPromotions(world);
  const auto closed = NewsOf(world, "Promotion");
  ASSERT_EQ(closed.size(), 1U);
  EXPECT_TRUE(Has(closed[0], "NEW Wrestling")) << closed[0];
}

TEST(WorldNews, TellsOfTitlesByTheirOwnRecords) {
  World world = CalmWorld();
  Title& crown = Named(world.Titles(), "CWA Crown");
  const std::size_t before = NewsOf(world, "Title").size();
  BeginReign(crown, kMeeting, "CWA 9");
  const auto won = NewsOf(world, "Title");
  ASSERT_EQ(won.size(), before + 1);
  EXPECT_TRUE(Has(won[0], "CWA 9") && Has(won[0], "CWA 1") && Has(won[0], "CWA Crown")) << won[0];
  BeginReign(crown, kMeeting, "Vacant");
  bool isVacant = false;
  for (const std::string& words : NewsOf(world, "Title")) isVacant |= Has(words, "vacant");
  EXPECT_TRUE(isVacant);
}

TEST(WorldNews, LeavesOutWhatBelongedToAPromotionThatIsGone) {
  World world = CalmWorld();
  Title& crown = Named(world.Titles(), "CWA Crown");
  BeginReign(crown, kMeeting, "CWA 9");
  EXPECT_FALSE(NewsOf(world, "Title").empty());
  crown.Owner = 0;
  EXPECT_TRUE(NewsOf(world, "Title").empty());
  HistoryEntry show;
  show.On = kMeeting;
  show.Kind = kPastTv;
  show.Promotion = 99;
  world.History().Append(show);
  EXPECT_TRUE(NewsOf(world, "Show").empty());
}

TEST(WorldNews, BeginsWithTheMonthBeforeAndGoesBackwards) {
  World world = CalmWorld();
  const Day begin = NewsBegin(world);
  EXPECT_EQ(begin, Day{std::chrono::year{2026} / 2 / 1});
  for (const auto& [on, who] : {std::pair{begin - std::chrono::days{1}, "Too Old"},
                                {begin, "Just Right"},
                                {kMeeting, "Quite New"}}) {
    NoteDeed(world, kDeedRetired, nullptr, who);
    world.Deeds()[world.Deeds().Count()].On = on;
  }
  const auto news = NewsOf(world, "Retirement");
  ASSERT_EQ(news.size(), 2U);
  EXPECT_TRUE(Has(news[0], "Quite New"));
  EXPECT_TRUE(Has(news[1], "Just Right"));
}

TEST(WorldNews, TellsThePlayersShowsAsOthers) {
  World world = CalmWorld();
  HistoryEntry entry;
  entry.On = kMeeting;
  entry.Kind = kPastTv;
  entry.Promotion = 1;
  entry.Name = "Friday Fire";
  entry.Viewers = 412;
  entry.Attendance = 3100;
  world.History().Append(entry);
  NoteShow(world, kDeedTvHeld, Rival(world), "NEW Hour", 50, 205, 1);
  const auto shows = NewsOf(world, "Show");
  ASSERT_EQ(shows.size(), 2U);
  EXPECT_TRUE(Has(shows[0], "NEW Hour") && Has(shows[0], "one person") && Has(shows[0], "2. 05"))
      << shows[0];
  EXPECT_TRUE(Has(shows[1], "Friday Fire") && Has(shows[1], "3100 people") && Has(shows[1], "4.12"))
      << shows[1];
}

TEST(WorldNews, TellsThoseOfADayInDifferentWords) {
  World world = CalmWorld();
  for (int i = 1; i <= 6; ++i) NoteDeed(world, kDeedRetired, nullptr, "Old Hand");
  const auto words = NewsOf(world, "Retirement");
  EXPECT_EQ(std::set(words.begin(), words.end()).size(), 6U);
}

TEST(Deeds, AFullFileDropsTheOldest) {
  World world = CalmWorld();
  const int limit = world.Deeds().Layout()->Limit;
  for (int i = 1; i <= limit; ++i) NoteDeed(world, kDeedSigned, nullptr, std::to_string(i));
  NoteDeed(world, kDeedSigned, nullptr, "newest");
  EXPECT_EQ(world.Deeds().Count(), limit - 499);
  EXPECT_EQ(world.Deeds()[1].Who, "501");
  EXPECT_EQ(world.Deeds()[world.Deeds().Count()].Who, "newest");
}

TEST(Rankings, PutTheBestFirst) {
  World world = CalmWorld();
  One(world, "CWA 7").Over = 99;
  One(world, "NEW 3").Gender = false;
  One(world, "NEW 4").Speed = 100;
  const auto first = [&](const std::string& title) {
    for (const Ranking& ranking : Rankings())
      if (ranking.Title == title) {
        const auto rows = RowsOf(world, ranking);
        return rows.empty() ? "" : rows[0].Name + ", " + rows[0].House;
      }
    return std::string("no such ranking");
  };
  EXPECT_EQ(first("Promotions"), "CWA Wrestling, CWA");
  EXPECT_EQ(first("Men by popularity"), "CWA 7, CWA");
  EXPECT_EQ(first("Women by popularity"), "NEW 3, NEW");
  EXPECT_EQ(first("Men by skill"), "NEW 4, NEW");
  EXPECT_EQ(first("Titles"), "CWA Crown, CWA");
  EXPECT_EQ(first("Television shows"), "Friday Fire, CWA");
  EXPECT_EQ(first("Networks"), "Nine, ");
  EXPECT_EQ(first("Tag Teams"), "");
  for (const Ranking& ranking : Rankings()) {
    const auto rows = RowsOf(world, ranking);
    for (std::size_t i = 1; i < rows.size(); ++i)
      EXPECT_GE(rows[i - 1].First.Number, rows[i].First.Number) << ranking.Title;
  }
}

/// A change that a rumour comes from, and one just short of it.
struct Case {
  Whisper Is;
  void (*Inside)(World& world);
  std::vector<std::string> Names;
  void (*Outside)(World& world);
};

const Rumour* Find(const std::vector<Rumour>& all, Whisper whisper) {
  for (const Rumour& rumour : all)
    if (rumour.Is == whisper) return &rumour;
  return nullptr;
}

TEST(Rumours, AreTrue) {
  const Case cases[] = {
      {Whisper::ContractEnds,
       [](World& w) { One(w, "NEW 1").ContractMonths = 2; },
       {"NEW 1", "2 months"},
       [](World& w) { One(w, "NEW 1").ContractMonths = 3; }},
      {Whisper::Handshake,
       [](World& w) { One(w, "NEW 1").ContractType = "Non"; },
       {"NEW 1"},
       [](World& w) { One(w, "CWA 1").ContractType = "Non"; }},
      {Whisper::Unhappy,
       [](World& w) { One(w, "NEW 1").Morale = 39; },
       {"NEW 1"},
       [](World& w) { One(w, "NEW 1").Morale = 40; }},
      {Whisper::NearBankruptcy,
       [](World& w) { Rival(w).Money = -800001; },
       {"NEW"},
       [](World& w) { Rival(w).Money = -800000; }},
      {Whisper::InDebt,
       [](World& w) { Rival(w).Money = -1; },
       {"NEW"},
       [](World& w) { Rival(w).Money = 0; }},
      {Whisper::Spending,
       [](World& w) {
         Rival(w).MoneyBefore[0] = 300;
         Rival(w).MoneyBefore[1] = 200;
         Rival(w).MoneyBefore[2] = 100;
       },
       {"NEW"},
       [](World& w) {
         Rival(w).MoneyBefore[0] = 300;
         Rival(w).MoneyBefore[1] = 200;
         Rival(w).MoneyBefore[2] = 200;
       }},
      {Whisper::Saving,
       [](World& w) {
         Rival(w).Money = 100;
         Rival(w).LastMonth.WrestlerWages = 100;
         Rival(w).MoneyBefore[0] = 100;
         Rival(w).MoneyBefore[1] = 200;
         Rival(w).MoneyBefore[2] = 300;
       },
       {"NEW"},
       [](World& w) {
         Rival(w).Money = 600;
         Rival(w).LastMonth.WrestlerWages = 100;
         Rival(w).MoneyBefore[0] = 100;
         Rival(w).MoneyBefore[1] = 200;
         Rival(w).MoneyBefore[2] = 300;
       }},
      {Whisper::NoOwner,
       [](World& w) { Named(w.AllStaff(), "Tom Rival").Employer = 0; },
       {"NEW"},
       [](World& w) { Named(w.AllStaff(), "Ruth Vane").Employer = 0; }},
      {Whisper::AboutToRise,
       [](World& w) { Rival(w).Image = 90; },
       {"NEW", "Regional"},
       [](World& w) { Rival(w).Image = 89; }},
      {Whisper::AboutToFall,
       [](World& w) { Rival(w).Image = 10; },
       {"NEW", "Backyard"},
       [](World& w) { Rival(w).Image = 11; }},
      {Whisper::Back,
       [](World& w) {
         One(w, "CWA 1").Status = "Inj";
         One(w, "CWA 1").StatusMonths = 1;
       },
       {"CWA 1"},
       [](World& w) {
         One(w, "CWA 1").Status = "Inj";
         One(w, "CWA 1").StatusMonths = 2;
       }},
      {Whisper::OldBones,
       [](World& w) {
         One(w, "NEW 1").Age = 45;
         One(w, "NEW 1").BirthMonth = 3;
       },
       {"NEW 1", "45"},
       [](World& w) {
         One(w, "NEW 1").Age = 45;
         One(w, "NEW 1").BirthMonth = 4;
       }},
      {Whisper::LongReign,
       [](World& w) {
         Title& title = Named(w.Titles(), "CWA Crown");
         title.Owner = 2;
         title.Holder = One(w, "NEW 1").Uid;
         title.Reigns[0].Won = Day{std::chrono::year{2026} / 3 / 1} - std::chrono::days{90};
       },
       {"NEW 1", "CWA Crown", "90 days"},
       [](World& w) {
         Title& title = Named(w.Titles(), "CWA Crown");
         title.Owner = 2;
         title.Holder = One(w, "NEW 1").Uid;
         title.Reigns[0].Won = Day{std::chrono::year{2026} / 3 / 1} - std::chrono::days{89};
       }},
      {Whisper::NetworkCold,
       [](World& w) {
         w.Shows()[1].Owner = 2;
         w.Shows()[1].Rating3 = 350;
       },
       {"Nine", "Friday Fire", "NEW"},
       [](World& w) {
         w.Shows()[1].Owner = 2;
         w.Shows()[1].Rating3 = 351;
       }},
      {Whisper::ShortDeal,
       [](World& w) {
         w.Shows()[1].Owner = 2;
         w.Shows()[1].ContractWeeks = 4;
       },
       {"Nine", "Friday Fire", "NEW"},
       [](World& w) {
         w.Shows()[1].Owner = 2;
         w.Shows()[1].ContractWeeks = 5;
       }},
      {Whisper::Turn,
       [](World& w) { One(w, "CWA 1").TurnPending = true; },
       {"CWA 1"},
       [](World& w) { One(w, "CWA 12").TurnPending = true; }},
      {Whisper::Bonfire,
       [](World& w) { w.Feuds()[1].Heat = 75; },
       {"CWA 1", "CWA 2"},
       [](World& w) { w.Feuds()[1].Heat = 74; }},
      {Whisper::FreeStar,
       [](World& w) { One(w, "NEW 1").Employer = 0; },
       {"NEW 1"},
       [](World& w) {
         One(w, "NEW 1").Employer = 0;
         One(w, "NEW 1").Over = 49;
       }},
      {Whisper::HeldDown,
       [](World& w) { One(w, "NEW 3").Over = 50; },
       {"NEW 3", "NEW", "Midcard"},
       [](World& w) { One(w, "NEW 3").Over = 49; }},
      {Whisper::NoChampion,
       [](World& w) {
         w.Titles()[1].Owner = 2;
         w.Titles()[1].Holder = 0;
       },
       {"the CWA Crown", "NEW"},
       [](World& w) { w.Titles()[1].Holder = 0; }},
      {Whisper::Slipping,
       [](World& w) {
         Rival(w).Rank[0] = 140;
         Rival(w).Rank[1] = 145;
         Rival(w).Rank[2] = 150;
       },
       {"NEW"},
       [](World& w) {
         Rival(w).Rank[0] = 140;
         Rival(w).Rank[1] = 145;
         Rival(w).Rank[2] = 145;
       }},
  };
  std::set<Whisper> covered;
  for (const Case& row : cases) {
    SCOPED_TRACE(LinesUnder(words::Rumours(), static_cast<int>(row.Is))[0]);
    covered.insert(row.Is);
    World inside = CalmWorld();
    row.Inside(inside);
    const auto heard = RumoursOf(inside);
    const Rumour* rumour = Find(heard, row.Is);
    EXPECT_TRUE(rumour);
    if (!rumour) continue;
    for (const std::string& name : row.Names)
      EXPECT_TRUE(Has(rumour->Words, name)) << rumour->Words;
    // Every month has other words for it.
    for (const unsigned month : {3U, 4U, 5U}) {
      inside.Game().Today = Day{std::chrono::year{2026} / month / 2};
      for (const Rumour& one : RumoursOf(inside)) EXPECT_FALSE(Has(one.Words, "{")) << one.Words;
    }
    World outside = CalmWorld();
    row.Outside(outside);
    EXPECT_FALSE(Find(RumoursOf(outside), row.Is));
  }
  EXPECT_EQ(covered.size(), static_cast<std::size_t>(Whisper::kCount)) << "a kind is not tested";
}

TEST(Rumours, StayTheSameAllMonthAndNameNobodyUnknown) {
  World world = CalmWorld();
  for (Worker& worker : world.Workers()) worker.Morale = 20;
  const auto words = [&] {
    std::vector<std::string> all;
    for (const Rumour& rumour : RumoursOf(world)) all.push_back(rumour.Words);
    return all;
  };
  const auto first = words();
  // Of the rival's six two are known; the player's own are no rumour.
  EXPECT_EQ(first.size(), 2U);
  world.Game().Today = kMeeting + std::chrono::days{29};
  EXPECT_EQ(words(), first);
}

HistoryEntry Held(int kind, Day on, const char* name, int rating) {
  HistoryEntry entry;
  entry.On = on;
  entry.Kind = kind;
  entry.Promotion = 1;
  entry.Name = name;
  entry.Rating = rating;
  entry.Attendance = 1;
  entry.Size = kRegional;
  return entry;
}

/// Whether a post is one of the mood's lines, whatever its names are.
bool IsOfMood(const FanPost& post, FanMood mood) {
  for (const std::string_view line : FanLines(mood)) {
    const auto end = line.substr(line.rfind('}') == line.npos ? 0 : line.rfind('}') + 1);
    if (post.Words.ends_with(end)) return true;
  }
  return false;
}

TEST(Fans, JudgeTheShowByItsRating) {
  const struct {
    int Rating;
    FanMood Mood;
  } rows[] = {{100, FanMood::Superb}, {85, FanMood::Superb}, {84, FanMood::Good},
              {70, FanMood::Good},    {69, FanMood::Fair},   {50, FanMood::Fair},
              {49, FanMood::Weak},    {35, FanMood::Weak},   {34, FanMood::Awful}};
  for (const auto& row : rows) {
    World world = CalmWorld();
    world.History().Append(Held(kPastTv, kMeeting, "Friday Fire", row.Rating));
    const auto shows = ShowsSeen(world);
    ASSERT_EQ(shows.size(), 1U);
    const auto posts = FanPage(world).at(0).Posts;
    ASSERT_GE(posts.size(), 2U);
    EXPECT_TRUE(IsOfMood(posts[0], row.Mood)) << row.Rating << ": " << posts[0].Words;
    EXPECT_NE(posts[0].Words, posts[1].Words);
    EXPECT_NE(posts[0].Handle, posts[1].Handle);
    EXPECT_TRUE(IsOfMood(posts.back(), FanMood::Empty)) << "one came: " << posts.back().Words;
  }
}

std::string WordsOf(const World& world, FanMood mood) {
  const auto page = FanPage(world);
  for (const FanPost& post : page.at(0).Posts)
    if (IsOfMood(post, mood)) return post.Words;
  return {};
}

void Fought(World& world, const char* winner, const char* loser, int rating) {
  HeldMatch match;
  match.On = kMeeting;
  match.Promotion = 1;
  match.Rating = rating;
  match.Won = winner;
  match.Lost = loser;
  match.Worker[0] = One(world, winner).Uid;
  match.Worker[1] = One(world, loser).Uid;
  world.Bouts().Append(match);
}

TEST(Fans, NameWhatStoleTheShowAndWhoWasThere) {
  World world = CalmWorld();
  world.History().Append(Held(kPastTv, kMeeting, "Friday Fire", 60));
  EXPECT_EQ(WordsOf(world, FanMood::Stolen), "");
  EXPECT_EQ(ShowsSeen(world).at(0).Star, "") << "nobody knows who was there";
  Fought(world, "CWA 7", "CWA 8", 41);
  Fought(world, "CWA 4", "CWA 5", 72);
  One(world, "CWA 5").Over = 51;
  // The sheet of the next show is another matter.
  world.Segments().Rewrite({Segment{}});
  EXPECT_TRUE(Has(WordsOf(world, FanMood::Stolen), "CWA 4 against CWA 5"));
  EXPECT_TRUE(Has(WordsOf(world, FanMood::Bored), "CWA 7 against CWA 8"));
  EXPECT_EQ(ShowsSeen(world).at(0).Star, "CWA 5");
  EXPECT_TRUE(Has(FanPage(world).at(0).Posts.at(4).Words, "CWA 5"));
}

TEST(Fans, DoNotMeasureAGateByAClassOfLater) {
  World world = CalmWorld();
  world.History().Append(Held(kPastTv, kMeeting, "Friday Fire", 60));
  EXPECT_NE(WordsOf(world, FanMood::Empty), "");
  world.Player().Size = kCult;
  EXPECT_EQ(WordsOf(world, FanMood::Empty), "");
  World other = CalmWorld();
  NoteDeed(other, kDeedRisen, &Rival(other), "NEW", {}, kSmall);
  NoteShow(other, kDeedTvHeld, Rival(other), "NEW Hour", 60, 205, 1);
  EXPECT_NE(WordsOf(other, FanMood::Empty), "") << "its class is that of the show";
  NoteDeed(other, kDeedFallen, &other.Player(), "CWA", {}, kSmall);
  EXPECT_NE(WordsOf(other, FanMood::Empty), "") << "another promotion's fall";
  NoteDeed(other, kDeedFallen, &Rival(other), "NEW", {}, kBackyard);
  EXPECT_EQ(WordsOf(other, FanMood::Empty), "");
}

TEST(Fans, DoNotMissWhoCameAfterTheShow) {
  World world = CalmWorld();
  NoteShow(world, kDeedTvHeld, Rival(world), "NEW Hour", 60, 205, 500);
  const auto star = [&] { return ShowsSeen(world).at(0).Star; };
  EXPECT_EQ(star(), "NEW 1");
  SignFor(world, Rival(world), One(world, "CWA 1"));
  One(world, "CWA 1").Over = 99;
  One(world, "CWA 1").Position = kMainEvent;
  EXPECT_EQ(star(), "NEW 1") << "CWA 1 came later";
  NoteShow(world, kDeedTvHeld, Rival(world), "NEW Hour", 60, 205, 500);
  EXPECT_EQ(star(), "CWA 1");
}

TEST(Fans, WriteAboutRivalsAndWhatWasCalledOff) {
  World world = CalmWorld();
  NoteShow(world, kDeedTvHeld, Rival(world), "NEW Hour", 90, 205, 500);
  HistoryEntry off = Held(kPastEvent, kMeeting, "CWA in March", 0);
  off.CalledOff = true;
  world.History().Append(off);
  const auto shows = ShowsSeen(world);
  ASSERT_EQ(shows.size(), 2U);
  const auto page = FanPage(world);
  EXPECT_TRUE(IsOfMood(page.at(0).Posts.at(0), FanMood::CalledOff));
  EXPECT_EQ(shows[1].Show, "NEW Hour");
  const auto& posts = page.at(1).Posts;
  EXPECT_TRUE(IsOfMood(posts.at(0), FanMood::Superb)) << posts.at(0).Words;
  EXPECT_TRUE(Has(posts.at(2).Words, "NEW 1")) << "its star: " << posts.at(2).Words;
}

TEST(Fans, RepeatNeitherALineNorAHandleOnAPage) {
  World world = CalmWorld();
  world.History().Append(Held(kPastTv, kMeeting, "Friday Fire", 60));
  world.History().Append(Held(kPastEvent, kMeeting, "CWA in March", 60));
  NoteShow(world, kDeedTvHeld, Rival(world), "NEW Hour", 60, 205, 500);
  std::set<std::string> handles, words;
  int count = 0;
  for (const FanThread& thread : FanPage(world))
    for (const FanPost& post : thread.Posts) {
      handles.insert(post.Handle);
      words.insert(post.Words);
      ++count;
    }
  EXPECT_GE(count, 9);
  EXPECT_EQ(handles.size(), static_cast<std::size_t>(count));
  EXPECT_EQ(words.size(), static_cast<std::size_t>(count));
}

}  // namespace
}  // namespace grapplemont::test
