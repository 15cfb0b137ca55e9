#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "futures/futures.h"
#include "futures/spread.h"
#include "ui/game.h"

// What the screens of futures share.

namespace grapplemont {

/// Worlds that are being played: how far they are, and what stops them. A shell without a clock
/// waits for them at once.
class PlayingCard {
 public:
  /// `show` runs when more worlds are through, and when nothing is played any more.
  PlayingCard(ui::Screen& screen, Game& game, ui::Handler show);
  ui::Box Layout();
  ui::Button& Stop() { return cmdstop; }

  void Begin(std::vector<Answer> answers, int days);
  /// Takes what was played off the page.
  void Clear();
  /// nullptr before the first Begin.
  const Futures* Played() const { return futures_.get(); }
  bool IsPlaying() const { return isPlaying_; }
  /// Everything that was begun has been played to its end.
  bool IsDone() const { return futures_ && shown_ == hsdone.Max; }

 private:
  /// Until they are through, or the player has had enough.
  void Wait();
  void Look();
  void Show(const Progress& progress);

  Game& game_;
  ui::Handler show_;
  std::unique_ptr<Futures> futures_;
  bool isPlaying_ = false;
  int shown_ = -1;  // worlds
  ui::ScrollBar hsdone;
  ui::Label lbldone;
  ui::Button cmdlook, cmdstop;
};

/// What worlds come to, under one answer or two.
struct PlayedWorlds {
  std::optional<FirstMorning> Morning = {};  // nothing: nothing has been played
  std::vector<Day> Days = {};
  std::vector<std::string> Answers =
      {};  // short: "Yes", "No"; one that is empty for the habits alone
  std::vector<std::vector<WorldLife>> Lives = {};
};

/// Writes all of it into a file that the player names, and says so; nothing where they name none.
std::string ExportWorlds(Game& game, const PlayedWorlds& worlds, const std::string& title,
                         const std::string& offered);

/// One number through time: bands in a picture, and the same as a table.
class SpreadCard {
 public:
  explicit SpreadCard(ui::Screen& screen);
  ui::Box Picture();
  ui::Box Table(std::string title);
  /// How many answers there are to be; before the first Show.
  void SetAnswers(const std::vector<std::string>& answers);
  void Show(PlayedWorlds worlds);

 private:
  void ShowHeadings();
  void ShowMeasure();
  void ShowPicture(Measure measure, const std::vector<std::vector<Spread>>& spreads);
  void ShowTable(Measure measure, const std::vector<std::vector<Spread>>& spreads);

  std::vector<std::string> answers_;
  PlayedWorlds worlds_;
  ui::ComboBox cmbmeasure;
  ui::Chart chtspread;
  ui::Label lblbands;
  ui::ListBox lstspread;
};

/// The first answer is gold, the second blue; in a table of chances a bar for each.
ui::Tone ToneOfAnswer(std::size_t answer);
std::vector<ui::Column> ChanceColumns(const std::string& what,
                                      const std::vector<std::string>& answers);
/// A row each; all answers have the same rows.
void FillChances(ui::ListBox& list, const std::vector<std::vector<Chance>>& answers);

}  // namespace grapplemont
