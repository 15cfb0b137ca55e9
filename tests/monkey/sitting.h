#pragma once

#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "monkey/paper.h"
#include "support/cutdisk.h"
#include "ui/desk.h"
#include "ui/game.h"

namespace grapplemont::test {

/// A box that wants its answer, as ui::Desk has them.
struct Question {
  enum Kind { Say, Ask, Prompt, File };
  Kind Is;
  std::string Text, Offered;  // Offered: "yes" or "no" of a question
};
/// "ok", "yes", "no", "enter TEXT" or "cancel".
using Answering = std::function<std::string(const Question& box)>;

/// A desk whose boxes are answered by a function. Each answer goes on the paper.
class AnsweredDesk : public ui::Desk {
 public:
  AnsweredDesk(Paper& paper, Answering answers, bool clock)
      : paper_(paper), answers_(std::move(answers)), clock_(clock) {}
  bool HasClock() const override { return clock_; }
  void Say(const std::string& title, const std::string& text) override;
  bool Ask(const std::string& title, const std::string& text, ui::Default answer) override;
  std::string Prompt(const std::string& title, const std::string& text,
                     const std::string& offered) override;
  std::string ChooseFile(const std::string& title, const std::string& text,
                         const std::string& offered, Use use) override;
  /// A new step: boxes count from none.
  void Begin() { boxes_ = 0; }

 private:
  std::string Answer(const Question& box);
  std::string Typed(Question::Kind kind, const std::string& text, const std::string& offered);

  Paper& paper_;
  Answering answers_;
  bool clock_;
  int boxes_ = 0;
};

/// What must not happen: `Kind` is the same for all faults of one cause.
class FoundFault : public std::runtime_error {
 public:
  FoundFault(std::string kind, const std::string& what)
      : std::runtime_error(what), Kind(std::move(kind)) {}
  std::string Kind;
};

class Sitting;

/// What a sitting is held to.
struct Limits {
  long Megabytes = 0;  // the most memory of the process; 0 for any
  /// What looks ahead is played by threads while clicks go on, as in the window. Such a run is not
  /// the same twice.
  bool Clock = false;
  /// For tests of the monkey itself: runs after each step and breaks what must be noticed.
  std::function<void(Sitting& sitting)> Breaks = {};
};

/// A program that is played in a home in memory, from its start on, and looked at after each step.
class Sitting {
 public:
  Sitting(const CutDisk& home, std::uint64_t seed, Limits limits, Paper& paper, Answering answers);
  ~Sitting();
  Sitting(const Sitting&) = delete;
  Sitting& operator=(const Sitting&) = delete;

  /// Does a step and looks at what has become of it: gives why it could not be done, or nothing.
  /// Throws FoundFault.
  std::string Do(const std::string& line);

  ui::Desk& Desk() { return desk_; }
  Game& Playing() { return *game_; }
  int Days() const { return days_; }        // that have passed in all
  int Checked() const { return checked_; }  // worlds that were looked through
  /// What the player was told where a step was taken back, and how often.
  const std::map<std::string, int>& TakenBack() const { return takenBack_; }

 private:
  class Watch;
  void Start();
  void End(bool inOrder);
  std::string Perform(const std::string& line);
  void Explained(const std::exception& fault, const std::string& told);
  void LookAtWorld();
  void LookAtScreen();
  void LookAtMemory();

  CutDisk disk_;
  std::uint64_t seed_;
  Limits limits_;
  Paper& paper_;
  AnsweredDesk desk_;
  std::unique_ptr<Watch> watch_;
  std::unique_ptr<Game> game_;
  bool moved_ = false;  // a commit has changed a world since it was looked at
  std::uint64_t world_ = 0;
  Day today_{};
  int days_ = 0, checked_ = 0, steps_ = 0;
  std::map<std::string, int> takenBack_;
  std::unique_ptr<FoundFault> found_;
};

/// The most memory that this process has had, in megabytes.
long PeakMegabytes();

/// What is behind quotes, in brackets or a number is left out of a text: what is left is of one
/// cause.
std::string WithoutParticulars(std::string_view text);

}  // namespace grapplemont::test
