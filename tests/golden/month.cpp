#include "golden/month.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

#include "booking/randomsegment.h"
#include "booking/sheet.h"
#include "booking/wizard/objections.h"
#include "golden/worldlines.h"
#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "report/family.h"
#include "session/newgame.h"
#include "show/holdshow.h"
#include "support/checkout.h"
#include "support/gameonworld.h"
#include "tools/officework.h"

namespace grapplemont::test {

namespace {

constexpr std::string_view kScript = ".month";
constexpr int kPatience = 40;  // times that an act is done until a screen comes

/// Seeded chance that a script may get ahead of.
class LedDraws : public Draws {
 public:
  explicit LedDraws(std::uint64_t seed) : seeded_(seed) {}
  void Lead(int number) { first_.push_back(number); }
  int Draw(int n) override {
    if (n < 2 || first_.empty()) return seeded_.Draw(n);
    const int number = first_.front();
    first_.pop_front();
    if (number < 1 || number > n)
      throw std::logic_error("a draw of " + std::to_string(n) + " cannot give " +
                             std::to_string(number));
    return number;
  }

 private:
  SeededDraws seeded_;
  std::deque<int> first_;
};

/// Takes the first word off the front.
std::string TakeWord(std::string_view& text) {
  const std::string word(text.substr(0, text.find(' ')));
  text.remove_prefix(std::min(word.size() + 1, text.size()));
  return word;
}

int NumberIn(std::string_view& text) {
  return std::stoi(TakeWord(text));
}

std::string OneLine(std::string text) {
  for (std::size_t at; (at = text.find('\n')) != std::string::npos;) text.replace(at, 1, " / ");
  return text;
}

/// What a worker's page and the records keep of changes that the workers' own records and the
/// matches tell.
bool IsRetold(std::string_view file) {
  for (const RecordLayout* retold :
       {&LayoutOf<WorkerMonths>(), &LayoutOf<MoodChange>(), &LayoutOf<Career>(),
        &LayoutOf<Tenure>(), &LayoutOf<Partnership>(), &LayoutOf<Feat>()})
    if (file == retold->File) return true;
  return false;
}

class Player {
 public:
  void Play(const std::string& line) {
    std::string_view rest = line;
    const std::string word = TakeWord(rest);
    const auto verb = std::find_if(std::begin(kVerbs), std::end(kVerbs),
                                   [&](const Verb& v) { return v.Word == word; });
    if (verb == std::end(kVerbs)) throw std::logic_error("there is no command \"" + word + "\"");
    (this->*verb->Do)(rest);
    TellBoxes();
  }
  MonthOutcome Close() {
    MonthOutcome outcome{Differences(World(), *start_), told_.str()};
    // What a show's rules noted tells no more than the records that they moved.
    std::erase_if(outcome.Changes, [this](const Difference& change) {
      return IsRetold(change.File) || change.File == LayoutOf<ShowNote>().File ||
             change.File == LayoutOf<SaidLine>().File ||
             (!keepsReports_ && (change.File == LayoutOf<ReportPart>().File ||
                                 change.File == LayoutOf<CardMatch>().File));
    });
    game_->Desk.Finish();
    return outcome;
  }

 private:
  struct Verb {
    std::string_view Word;
    void (Player::*Do)(std::string_view rest);
  };
  static const Verb kVerbs[27];

  grapplemont::World& World() { return game_ ? game_->World() : *world_; }
  ScriptDesk& Desk() { return game_.value().Desk; }
  void Tell(const std::string& line) { told_ << ToUtf8(line) << "\n"; }
  /// Boxes are part of what happens.
  void TellBoxes() {
    if (!game_) return;
    for (const auto& boxes = Desk().Boxes(); boxesTold_ < boxes.size(); ++boxesTold_)
      Tell(boxes[boxesTold_].Kind + ": " + OneLine(boxes[boxesTold_].Text));
  }

  // How the world comes about.
  void TheWorld(std::string_view rest) { world_ = TablesOf(std::string(rest)); }
  void Seed(std::string_view rest) {
    seed_ = static_cast<std::uint64_t>(NumberIn(rest));
    auto draws = std::make_unique<LedDraws>(seed_);
    draws_ = draws.get();
    World().SetChance(std::move(draws));
  }
  void DrawFirst(std::string_view rest) {
    while (!rest.empty()) draws_->Lead(NumberIn(rest));
  }
  void Set(std::string_view rest) {
    SetCells(World(), rest);
    if (game_) game_->Play.Commit();
  }
  void Add(std::string_view rest) {
    AddRecord(World(), rest);
    if (game_) game_->Play.Commit();
  }
  /// "GAC 2026-03-01 2": a new game in that chair, and how difficult it is.
  void NewGameIn(std::string_view rest) {
    NewGameChoice choice;
    choice.PlayerName = "Sam Archer";
    choice.PromotionUid = Named(World().Promotions(), TakeWord(rest)).Uid;
    choice.Start = ParseIsoDate(TakeWord(rest)).value();
    choice.Difficulty = NumberIn(rest);
    choice.SaveName = "Save Game 1";
    NewGame(World(), choice);
  }
  /// From here on every change counts.
  void Begin(std::string_view) { start_ = CopyOf(World()); }
  void Open(std::string_view) {
    if (!start_) Begin({});
    game_.emplace(CopyOf(World()));
    Seed(std::to_string(seed_));
    Desk().IsEasy = true;
    Desk().Open("frmMainScreen");
  }

  // What a player does.
  void Click(std::string_view rest) { Desk().Click(rest); }
  void Type(std::string_view rest) {
    const std::string name = TakeWord(rest);
    Desk().Type(name, rest);
  }
  void Pick(std::string_view rest) {
    const std::string name = TakeWord(rest);
    Desk().Pick(name, rest);
  }
  void OpenRow(std::string_view rest) {
    const std::string name = TakeWord(rest);
    Desk().OpenRow(name, rest);
  }
  void Check(std::string_view rest) {
    const std::string name = TakeWord(rest);
    Desk().Check(name, rest != "off");
  }
  void Slide(std::string_view rest) {
    const std::string name = TakeWord(rest);
    Desk().Slide(name, NumberIn(rest));
  }
  /// From the main screen, whatever lies on the desk.
  void Go(std::string_view rest) {
    Desk().CloseAll();
    Desk().Open("frmMainScreen");
    if (rest != "frmMainScreen") Desk().Open(rest);
  }
  // The answer to a question stands before the act that brings it; without one it is the answer
  // that the question offers.
  void Yes(std::string_view) { Desk().ExpectAsk(kAnyText, kAnyText, true); }
  void No(std::string_view) { Desk().ExpectAsk(kAnyText, kAnyText, false); }
  void Enter(std::string_view rest) { Desk().ExpectPrompt(kAnyText, kAnyText, std::string(rest)); }
  void Times(std::string_view rest) {
    for (int left = NumberIn(rest); left > 0; --left) Play(std::string(rest));
  }

  /// "frmPostShow click cmdnext" does it until that screen lies on top.
  void Until(std::string_view rest) {
    const std::string screen = TakeWord(rest);
    for (int left = kPatience; Desk().TopName() != screen; --left) {
      if (left == 0 || testing::Test::HasFailure())
        throw std::logic_error(screen + " does not come; there is " + Desk().TopName());
      Play(std::string(rest));
    }
  }
  bool IsEvent() { return Desk().TopName() == "frmPPVBooking"; }
  /// Books rows of the sheet with whatever its wizard would let pass, by this number; the last are
  /// left for the matches that a show needs.
  void Sheet(std::string_view rest) {
    Dice dice(NumberIn(rest));
    const SheetTerms terms = TermsOf(World(), IsEvent());
    for (int row = 1; row <= terms.OpenRows - terms.MinMatches; ++row) {
      const auto segment = RandomSegment(World(), dice, {IsEvent(), "All"});
      if (!segment) continue;
      ApplyBookingGrievances(World(), *segment);
      World().Segments()[row] = *segment;
    }
    game_->Play.Commit();
    Desk().Top()->Return();
  }

  /// Goes on from the main screen to the next show and holds it from such a sheet.
  void Night(std::string_view rest) {
    for (int left = kPatience; Desk().TopName() != "frmBooking" && !IsEvent(); --left) {
      if (left == 0 || testing::Test::HasFailure())
        throw std::logic_error("no show comes; there is " + Desk().TopName());
      Desk().Click(Desk().TopName() == "frmIncident"  ? "cmdignore"
                   : Desk().TopName() == "frmMorning" ? "cmdback"
                                                      : "cmdnext");
    }
    Sheet(rest);
    if (Desk().Enabled("cmdfill")) Desk().Click("cmdfill");
    if (Desk().TopName() == "frmFill") Desk().Click("cmdsheet");
    Desk().Click("cmddoshow");
    Until("frmPostShow click cmdnext");
    Desk().Click("cmdback");
  }

  /// "30" passes days as somebody would who books by the auto booker and keeps the office going,
  /// "30 cancel" as somebody who does nothing.
  void Days(std::string_view rest) {
    const int days = NumberIn(rest);
    Desk().CloseAll();
    const auto end =
        tools::PlayDays(game_->Play, days,
                        rest == "cancel" ? tools::Shows::Cancel : tools::Shows::Auto, [](int) {});
    Desk().Open("frmMainScreen");
    if (end.EndCode != 0) Tell("The career has ended, reason " + std::to_string(end.EndCode));
  }

  // What is told.
  void KeepReports(std::string_view) { keepsReports_ = true; }
  void Look(std::string_view rest) {
    const std::string name(rest);
    Tell(Desk().TopName() + " " + name + ": " + OneLine(Desk().Text(name)));
  }
  void LookAtRows(std::string_view rest) {
    const std::string name(rest);
    Tell(Desk().TopName() + " " + name);
    for (const auto& row : Desk().Rows(name)) {
      std::string line = " ";
      for (const std::string& cell : row) line += " | " + OneLine(cell);
      Tell(line);
    }
  }
  /// The show on the sheet in all three voices; the game itself stays as it is.
  void TellTheShow(std::string_view) {
    for (int voice = kLamplighter; voice <= kQvd; ++voice) {
      grapplemont::World copy = CopyOf(World());
      copy.Game().Reporter = voice;
      tools::TellShow(copy, IsEvent(), told_);
    }
  }

  std::optional<grapplemont::World> world_, start_;
  std::optional<GameOnWorld> game_;
  std::uint64_t seed_ = 1;
  LedDraws* draws_ = nullptr;
  std::ostringstream told_;
  std::size_t boxesTold_ = 0;
  bool keepsReports_ = false;
};

const Player::Verb Player::kVerbs[] = {
    {"world", &Player::TheWorld},
    {"seed", &Player::Seed},
    {"draws", &Player::DrawFirst},
    {"set", &Player::Set},
    {"add", &Player::Add},
    {"game", &Player::NewGameIn},
    {"begin", &Player::Begin},
    {"open", &Player::Open},
    {"click", &Player::Click},
    {"type", &Player::Type},
    {"pick", &Player::Pick},
    {"row", &Player::OpenRow},
    {"check", &Player::Check},
    {"slide", &Player::Slide},
    {"go", &Player::Go},
    {"yes", &Player::Yes},
    {"no", &Player::No},
    {"enter", &Player::Enter},
    {"times", &Player::Times},
    {"days", &Player::Days},
    {"look", &Player::Look},
    {"rows", &Player::LookAtRows},
    {"tell", &Player::TellTheShow},
    {"sheet", &Player::Sheet},
    {"until", &Player::Until},
    {"night", &Player::Night},
    {"reports", &Player::KeepReports},
};

}  // namespace

std::vector<std::string> MonthNames() {
  std::vector<std::string> names;
  for (const auto& file : std::filesystem::directory_iterator(Checkout("/tests/golden")))
    if (file.path().extension() == kScript) names.push_back(file.path().stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

MonthOutcome PlayMonth(const std::string& name) {
  const std::string path = Checkout("/tests/golden/" + name + std::string(kScript));
  std::ifstream script(path);
  Player player;
  int number = 0;
  for (std::string line; std::getline(script, line);) {
    ++number;
    if (line.empty() || line[0] == '#') continue;
    const testing::ScopedTrace trace(path.c_str(), number, line);
    try {
      player.Play(FromUtf8(line).value());
    } catch (const std::exception& fault) {
      ADD_FAILURE() << fault.what();
      return {};
    }
    if (testing::Test::HasFailure()) return {};
  }
  return player.Close();
}

}  // namespace grapplemont::test
