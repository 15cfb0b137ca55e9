#pragma once

#include <memory>
#include <string>
#include <vector>

#include "booking/wizard/matchrules.h"
#include "booking/wizard/refusals.h"
#include "booking/wizard/wizard.h"
#include "ui/game.h"

namespace grapplemont {

/// What a step screen needs of the wizard's own screen.
class WizardHost {
 public:
  virtual ~WizardHost() = default;
  virtual Wizard& State() = 0;
  /// A step has been stored: counts it and shows the wizard. `goOn` opens the next step at once.
  virtual void StepStored(bool goOn) = 0;
};

/// The step that the wizard stands at: a dialog over it. At its left is what has been chosen so
/// far, at its right the step; Back leaves without storing, Done stores and shows the wizard, Next
/// stores and goes straight on to the next step, as Enter does and a double click in a list.
class StepScreen : public ui::Screen {
 public:
  StepScreen(Game& game, WizardHost& host);

  ui::Page Layout() final;
  void Load() final;

 protected:
  World& world() { return game_.World(); }
  Wizard& wizard() { return host_.State(); }
  Segment& buffer() { return host_.State().Buffer; }
  /// Those of the uids who are there.
  std::vector<const Worker*> WorkersOf(const std::vector<int>& uids);

  /// Fills the step's controls when it opens.
  virtual void Prepare() = 0;
  /// The right-hand side.
  virtual ui::Box Body() = 0;
  /// Whether it wants the whole width: then what has been chosen so far stands above it.
  virtual bool NeedsWidth() const { return false; }
  /// Checks what is chosen and puts it into the buffer; false leaves the step open with nothing
  /// stored.
  virtual bool Store() = 0;

  /// Stores and goes on, for the double click of a list.
  void GoOn();
  /// Whether Done and Next can be pressed; `why` is their tip while they cannot.
  void AllowDone(bool allowed, const std::string& why);
  bool Fail(const std::string& message);  // says it, titled "Error!"; always false

 private:
  void Finish(bool goOn);
  void ShowSoFar();

  Game& game_;
  WizardHost& host_;
  static constexpr int kLines = 9;  // steps that can be done before this one
  ui::Array<ui::Label> lblsofar{"lblsofar", kLines, [this](const std::string& line, int) {
                                  return std::make_unique<ui::Label>(*this, line);
                                }};

 protected:
  // Behind the step's own controls in the tab order.
  std::unique_ptr<ui::Button> cmdback, cmddone, cmdnext;
};

/// Makes the screen of the step that the wizard stands at; nullptr where it has no more.
std::unique_ptr<ui::Screen> MakeStepScreen(Game& game, WizardHost& host);

/// What the booking takes from somebody's Morale.
void ShowGrievances(ui::Label& label, const World& world, const Segment& booking);

/// A list of people: disposition, Over, condition and morale beside the name, in short words where
/// more than two lists stand side by side. `none` puts "None" on top, preselected.
std::vector<ui::Column> PeopleColumns(int listsAbreast = 1);
void FillPeople(ui::ListBox& list, const std::vector<const Worker*>& people, bool none = false);

/// A step of a match that somebody may object to.
class MatchStepScreen : public StepScreen {
 public:
  using StepScreen::StepScreen;

 protected:
  /// Puts the draft into the buffer when its step may be left so: no mistake, and nobody objects
  /// whom the player cannot or does not want to overrule.
  bool Accept(const Segment& draft, MatchStep step);
  /// Shows beforehand what the people in the ring would say to the draft.
  void ShowObjections(const Segment& draft, MatchStep step);
  ui::Box Objections() { return ui::Group("What they say", {txtsay}); }

 private:
  bool IsOverruled(const Refusal& refusal);

 protected:
  ui::Label txtsay{*this, "txtsay"};
};

// The step screens, each for the step that the host stands at. Steps that differ by a table are one
// class.
using StepMaker = std::unique_ptr<ui::Screen>(Game& game, WizardHost& host);

/// Kind, style and type: one list each.
StepMaker MakeChoiceStep;
/// Who stands in a match, and in a battle royal.
StepMaker MakePeopleStep;
StepMaker MakeTitleStep, MakeResultStep;
/// Finish, aftermath and purpose of a match.
StepMaker MakeEndingStep;
/// Who speaks in an interview, about whom, and what for.
StepMaker MakeSeatsStep, MakeTalkPurposeStep;
/// Which angle, and who plays in it.
StepMaker MakeAngleStep, MakeCastStep;

}  // namespace grapplemont

/// How the wizard makes the screen of a step.
#define STEP(maker, name)                                           \
  std::unique_ptr<ui::Screen> maker(Game& game, WizardHost& host) { \
    return std::make_unique<name>(game, host);                      \
  }
