#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>

#include "chronicle/book.h"
#include "records/keepannals.h"
#include "records/modVar.h"
#include "records/severing.h"
#include "report/family.h"
#include "report/teller.h"
#include "rivals/grudges.h"
#include "storylines/feuds.h"
#include "storylines/lineages.h"
#include "storylines/partners.h"
#include "storylines/titles.h"
#include "support/smallworld.h"

namespace grapplemont {
namespace {

using test::Named;
using test::SmallWorld;

class Chronicles : public testing::Test {
 protected:
  Chronicles()
      : World_(SmallWorld()
                   .Promotion("CWA", kCult)
                   .Owner("Ruth Vane")
                   .Worker("Bram Okafor", [](Worker& w) { w.ShortName = "Okafor"; })
                   .Worker("Ilya Marsh", [](Worker& w) { w.Gender = false, w.ShortName = "Marsh"; })
                   .Worker("Cal Drift")
                   .Title("CWA Crown", "Ilya Marsh")
                   .Promotion("NEW", kSmall)
                   .Owner("Tess Hale")
                   .Worker("Eli Fenn")
                   .Worker("Fay Loose", [](Worker& w) { w.Gender = false; })
                   .Game("CWA")) {
    UpdateReigns(World_);
  }

  int Uid(std::string_view name) { return Named(World_.Workers(), name).Uid; }
  void Pass(int days) { World_.Game().Today = World_.Today() + std::chrono::days(days); }
  void CrownIs(std::string_view name) {
    Crown(World_, Named(World_.Titles(), "CWA Crown"), Uid(name), 0);
    UpdateReigns(World_);
  }

  Chapter Read(About kind, std::string_view name, int voice) {
    const Archive archive(World_);
    for (const Subject& subject : archive.Subjects(kind))
      if (subject.Name == name) return WriteChapter(archive, subject, voice);
    ADD_FAILURE() << "nobody is called " << name;
    return {};
  }
  static std::string TextOf(const Chapter& chapter) {
    std::string text;
    for (const auto& paragraph : chapter.Paragraphs)
      for (const ToldSentence& sentence : paragraph) text += sentence.Words + "\n";
    return text;
  }
  /// Whatever begins a sentence.
  static bool Says(std::string text, std::string_view words) {
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text.find(words) != text.npos;
  }
  /// Something of everything.
  void LiveAYear() {
    Pass(10);
    StartFeud(World_, {{Uid("Bram Okafor"), 0}, {Uid("Ilya Marsh"), 0}});
    Pass(40);
    CrownIs("Bram Okafor");
    Pass(100);
    CrownIs("Cal Drift");
    Pass(30);
    CrownIs("Bram Okafor");
    EndFeudOffCamera(World_, 1);
    const Promotion& rival = Named(World_.Promotions(), "NEW");
    NoteDeed(World_, kDeedStolen, &rival, Named(World_.Workers(), "Cal Drift"), "CWA");
    NoteDeed(World_, kDeedRisen, &rival, rival.Name, {}, kRegional);
    NoteDeed(World_, kDeedInjured, &World_.Player(), Named(World_.Workers(), "Ilya Marsh"), "Knee",
             7);
    FormTeam(World_, "Salt and Tar", Uid("Eli Fenn"), Uid("Fay Loose"), "");
    ASSERT_TRUE(BeginGrudge(World_, rival, Uid("Eli Fenn"), Uid("Fay Loose"), kGrudgeCard));
    Pass(60);
    SettleGrudge(World_, rival, Uid("Fay Loose"), Uid("Eli Fenn"));
    YearAward award{};
    award.On = World_.Today();
    award.Kind = kWomanOfTheYear;
    award.Worker = Uid("Ilya Marsh");
    award.Winner = "Ilya Marsh";
    World_.Awards().Append(award);
  }

  World World_;
};

TEST_F(Chronicles, TellNothingWithoutARecordThatSaysSo) {
  LiveAYear();
  const Archive archive(World_);
  for (int voice = kLamplighter; voice <= kQvd; ++voice)
    for (int kind = 0; kind < kKindsOfChapter; ++kind) {
      int told = 0;
      for (const Subject& subject : archive.Subjects(static_cast<About>(kind))) {
        const Chapter chapter = WriteChapter(archive, subject, voice);
        for (const auto& paragraph : chapter.Paragraphs)
          for (const ToldSentence& sentence : paragraph) {
            ++told;
            EXPECT_EQ(sentence.Words.find_first_of("{}[]"), std::string::npos) << sentence.Words;
            ASSERT_FALSE(sentence.By.empty()) << sentence.Words;
            for (const Proof& proof : sentence.By)
              EXPECT_FALSE(FieldsOf(World_, proof).empty()) << sentence.Words;
          }
      }
      EXPECT_GT(told, 0) << "kind " << kind << ", voice " << voice;
    }
}

TEST_F(Chronicles, TellAReignByItsDaysItsLoserAndItsEnd) {
  LiveAYear();
  const std::string text = TextOf(Read(About::Worker, "Bram Okafor", kTolland));
  EXPECT_TRUE(Says(text, "100 days")) << text;
  EXPECT_NE(text.find("Marsh"), std::string::npos) << "whom he beat: " << text;
  EXPECT_NE(text.find("Drift"), std::string::npos) << "who beat him: " << text;
  EXPECT_TRUE(Says(text, "two reigns")) << text;
  EXPECT_EQ(text.find("She "), std::string::npos) << text;

  const std::string hers = TextOf(Read(About::Worker, "Ilya Marsh", kLamplighter));
  EXPECT_TRUE(Says(hers, "seven months")) << hers;
  EXPECT_NE(hers.find("Woman of the Year"), std::string::npos) << hers;
  EXPECT_EQ(hers.find("He "), std::string::npos) << hers;

  const std::string crown = TextOf(Read(About::Title, "CWA Crown", kQvd));
  EXPECT_NE(crown.find("CWA Crown"), std::string::npos) << crown;
  EXPECT_TRUE(Says(crown, "twice")) << "who had it most often: " << crown;
}

/// "Drift came next. Drift took it": the sentence that tells of it is enough.
TEST_F(Chronicles, TellOnceWhoCameNext) {
  LiveAYear();
  for (int voice = kLamplighter; voice <= kQvd; ++voice) {
    std::string before;
    int told = 0;
    for (const auto& paragraph : Read(About::Title, "CWA Crown", voice).Paragraphs)
      for (const ToldSentence& sentence : paragraph) {
        const Proof& proof = sentence.By.front();
        if (proof.Of == &LayoutOf<TitleReign>() &&
            World_.Reigns()[proof.Number].Holder == "Cal Drift") {
          EXPECT_EQ(before.find("Drift"), before.npos) << before;
          ++told;
        }
        before = sentence.Words;
      }
    EXPECT_EQ(told, 1);
  }
}

/// A reign that lasts has its days said once, also where none was longer.
TEST_F(Chronicles, CallThePresentReignTheLongestInOneBreath) {
  LiveAYear();
  Pass(200);
  for (int voice = kLamplighter; voice <= kQvd; ++voice) {
    int told = 0, days = 0;
    for (const auto& paragraph : Read(About::Title, "CWA Crown", voice).Paragraphs)
      for (const ToldSentence& sentence : paragraph) {
        const Proof& proof = sentence.By.front();
        told +=
            proof.Of == &LayoutOf<TitleReign>() && World_.Reigns()[proof.Number].End == kReignLasts;
        days += Says(sentence.Words, "260 days") || Says(sentence.Words, "two hundred and sixty");
      }
    EXPECT_EQ(told, 2);
    EXPECT_EQ(days, 1);
  }
}

TEST_F(Chronicles, CallNobodyHeBehindSomebodyElse) {
  for (int times = 0; times < 4; ++times) {
    Pass(10);
    CrownIs("Bram Okafor");
    Pass(10);
    CrownIs("Cal Drift");
    Pass(10);
    NoteDeed(World_, kDeedInjured, &World_.Player(), Named(World_.Workers(), "Bram Okafor"), "Knee",
             2);
  }
  for (int voice = kLamplighter; voice <= kQvd; ++voice) {
    std::string before;
    for (const auto& paragraph : Read(About::Worker, "Bram Okafor", voice).Paragraphs)
      for (const ToldSentence& sentence : paragraph) {
        if (sentence.Words.starts_with("He ")) {
          EXPECT_EQ(before.find("Drift"), before.npos) << before << " " << sentence.Words;
        }
        before = sentence.Words;
      }
  }
}

/// The reigns are brought up to the Titles at the end of the day.
TEST_F(Chronicles, TellAReignAsOverFromTheDayOnWhichTheTitleIsVacant) {
  Pass(10);
  CrownIs("Bram Okafor");
  Pass(47);
  VacateTitle(World_, Named(World_.Titles(), "CWA Crown"));
  for (int voice = kLamplighter; voice <= kQvd; ++voice) {
    const Chapter chapter = Read(About::Title, "CWA Crown", voice);
    EXPECT_TRUE(Says(TextOf(chapter), "47 days") || Says(TextOf(chapter), "forty-seven days"));
    for (const ToldSentence& sentence : chapter.Paragraphs.front())
      EXPECT_EQ(sentence.Words.find("Okafor"), std::string::npos) << sentence.Words;
    const std::string house = TextOf(Read(About::Promotion, World_.Player().Name, voice));
    EXPECT_EQ(house.find("Okafor"), std::string::npos) << house;
  }
}

TEST_F(Chronicles, CountNoneAsNone) {
  MatchTally tally;
  tally.Promotion = World_.PlayerUid();
  tally.Worker = Uid("Bram Okafor");
  tally.Name = "Bram Okafor";
  tally.Won = 9;
  tally.Last = World_.Today();
  World_.Tallies().Append(tally);
  for (int voice = kLamplighter; voice <= kQvd; ++voice) {
    const std::string text = TextOf(Read(About::Worker, "Bram Okafor", voice));
    EXPECT_TRUE(Says(text, "nine won, none lost")) << text;
  }
}

/// {when} is "in March 2031" and stands behind no other such word.
TEST(ChapterWords, SayWhenWithOnePreposition) {
  const BandRange& bands = RowOf(Family::Chapter).Bands;
  for (int voice = kLamplighter; voice <= kQvd; ++voice)
    for (int band = bands.First; band <= bands.Last; ++band)
      for (const TaggedLine& line : ReadLinesOf(voice, Family::Chapter, band))
        for (const char* word : {" of", " since", " until", " from", " by", " before", " after"})
          EXPECT_EQ(line.Text.find(std::string(word) + " {when}"), std::string::npos) << line.Text;
}

TEST_F(Chronicles, TellOfFeudsHousesAndYears) {
  LiveAYear();
  const std::string feud = TextOf(Read(About::Feud, "Fay Loose and Eli Fenn", kTolland));
  EXPECT_TRUE(Says(feud, "one to nothing")) << feud;
  EXPECT_TRUE(Says(feud, "60 days")) << feud;
  const std::string own = TextOf(Read(About::Feud, "Bram Okafor and Ilya Marsh", kTolland));
  EXPECT_TRUE(Says(own, "170 days") || Says(own, "one hundred and seventy days")) << own;
  EXPECT_NE(own.find("CWA Crown"), std::string::npos) << "what went from one to the other: " << own;
  EXPECT_EQ(own.find("He "), std::string::npos) << "which of the two: " << own;
  const std::string house =
      TextOf(Read(About::Promotion, Named(World_.Promotions(), "NEW").Name, kTolland));
  EXPECT_TRUE(Says(house, "regional")) << house;
  EXPECT_TRUE(Says(house, "one signing")) << house;
  const std::string year = TextOf(Read(About::Year, "2026", kTolland));
  EXPECT_NE(year.find("Ilya Marsh"), std::string::npos) << year;
  EXPECT_TRUE(Says(year, "one contract")) << year;
}

TEST_F(Chronicles, TellAPromotionApartFromTheOneThatHadItsPlace) {
  Promotion& place = Named(World_.Promotions(), "NEW");
  const Promotion today = place;
  place.Name = "Lantern Hall";
  place.Initials = "LHL";
  Pass(20);
  NoteDeed(World_, kDeedFounded, &place, place.Name, {}, place.Size);
  NoteDeed(World_, kDeedStolen, &place, Named(World_.Workers(), "Cal Drift"), "CWA");
  Pass(20);
  NoteDeed(World_, kDeedClosed, &place, place.Name);
  place.Name = today.Name;
  place.Initials = today.Initials;
  Pass(20);
  NoteDeed(World_, kDeedFounded, &place, place.Name, {}, place.Size);
  const std::string house = TextOf(Read(About::Promotion, place.Name, kTolland));
  EXPECT_FALSE(Says(house, "one signing")) << house;
  const std::string year = TextOf(Read(About::Year, "2026", kTolland));
  EXPECT_TRUE(Says(year, "lantern hall")) << year;
}

TEST_F(Chronicles, SumUpWhoGoesToAndFro) {
  const Promotion& rival = Named(World_.Promotions(), "NEW");
  for (int times = 0; times < 2; ++times) {
    Pass(20);
    NoteDeed(World_, kDeedRisen, &rival, rival.Name, {}, kRegional);
    Pass(20);
    NoteDeed(World_, kDeedFallen, &rival, rival.Name, {}, kSmall);
  }
  for (int voice = kLamplighter; voice <= kQvd; ++voice) {
    const std::string house = TextOf(Read(About::Promotion, rival.Name, voice));
    EXPECT_TRUE(Says(house, "twice up, twice down")) << house;
    EXPECT_TRUE(Says(house, "small")) << house;
    EXPECT_FALSE(Says(house, "regional")) << "nor one by one: " << house;
    const std::string year = TextOf(Read(About::Year, "2026", voice));
    EXPECT_TRUE(Says(year, "twice up, twice down")) << year;
    EXPECT_FALSE(Says(year, "regional")) << year;
  }
}

TEST_F(Chronicles, AreTheSameWheneverTheyAreReadAndDifferByVoice) {
  LiveAYear();
  const std::string once = TextOf(Read(About::Worker, "Bram Okafor", kTolland));
  EXPECT_EQ(once, TextOf(Read(About::Worker, "Bram Okafor", kTolland)));
  std::set<std::string> voices;
  for (int voice = kLamplighter; voice <= kQvd; ++voice)
    voices.insert(TextOf(Read(About::Worker, "Bram Okafor", voice)));
  EXPECT_EQ(voices.size(), 3U);
}

TEST_F(Chronicles, KnowWhoHasGoneFromSomebodyElseOfTheSameName) {
  const int uid = Uid("Cal Drift");
  Pass(5);
  CrownIs("Cal Drift");
  Pass(20);
  CrownIs("Bram Okafor");
  Pass(5);
  NoteDeed(World_, kDeedRetired, &World_.Player(), Named(World_.Workers(), "Cal Drift"));
  Worker& cal = Named(World_.Workers(), "Cal Drift");
  cal.Employer = 0;
  ForgetWorker(World_, cal);
  cal.Uid = uid + 100;  // somebody new, of the same name
  Pass(300);
  NoteDeed(World_, kDeedSigned, &World_.Player(), Named(World_.Workers(), "Cal Drift"));

  const Archive archive(World_);
  std::vector<std::string> texts;
  for (const Subject& subject : archive.Subjects(About::Worker))
    if (subject.Name == "Cal Drift")
      texts.push_back(TextOf(WriteChapter(archive, subject, kTolland)));
  ASSERT_EQ(texts.size(), 2U);
  const bool first = texts[0].find("20 days") != std::string::npos;
  const std::string &gone = texts[first ? 0 : 1], &fresh = texts[first ? 1 : 0];
  EXPECT_TRUE(Says(gone, "20 days")) << gone;
  EXPECT_EQ(fresh.find("CWA Crown"), std::string::npos) << fresh;
  EXPECT_TRUE(Says(gone, "retire")) << gone;
}

TEST_F(Chronicles, BecomeABookWhoseLinksAllLeadSomewhere) {
  LiveAYear();
  Named(World_.Workers(), "Bram Okafor").Name = "Bram <Okafor> & Son";
  const Archive archive(World_);
  const std::string html = HtmlOf(World_, WriteBook(archive, kTolland), {SvgOf});
  EXPECT_EQ(html.find("<Okafor>"), std::string::npos) << "names are no markup";
  int links = 0;
  for (auto at = html.find("href=\"#"); at != html.npos; at = html.find("href=\"#", at + 1)) {
    const auto from = at + 7;
    const std::string id = html.substr(from, html.find('"', from) - from);
    EXPECT_NE(html.find("id=\"" + id + "\""), html.npos) << id;
    ++links;
  }
  EXPECT_GT(links, 20);
  EXPECT_NE(html.find("<svg class=\"crest\""), html.npos);
  EXPECT_NE(html.find("<svg class=\"plate\""), html.npos);
  EXPECT_NE(html.find("reigns.dat, record"), html.npos);
}

/// Paper has neither links nor colours, and no day that stands for none.
TEST_F(Chronicles, AreListedWithTheirPagesOnPaper) {
  LiveAYear();
  const Archive archive(World_);
  const WorldBook book = WriteBook(archive, kTolland);
  BookForm form{SvgOf};
  form.Printed = true;
  std::vector<const Chapter*> chapters;
  for (const BookPart& part : book.Parts)
    for (const Chapter& chapter : part.Chapters) chapters.push_back(&chapter);
  for (std::size_t i = 0; i < chapters.size(); ++i) form.Pages.push_back(100 + static_cast<int>(i));
  const std::string html = HtmlOf(World_, book, form);
  ASSERT_GT(chapters.size(), 3U);
  std::size_t at = 0;
  for (std::size_t i = 0; i < chapters.size(); ++i) {
    at = html.find(">" + chapters[i]->Heading + "</a>, " + std::to_string(100 + i) + "</td>", at);
    ASSERT_NE(at, html.npos) << chapters[i]->Heading;
  }
  EXPECT_NE(html.find("[1]"), html.npos);
  EXPECT_EQ(html.find("1980-01-01"), html.npos);
  EXPECT_EQ(html.find("background"), html.npos);
}

}  // namespace
}  // namespace grapplemont
