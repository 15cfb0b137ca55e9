#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "booking/screens/peoplelists.h"
#include "booking/wizard/matchrules.h"
#include "booking/wizard/refusals.h"
#include "booking/wizard/wizard.h"
#include "show/forecast.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

/// What a step screen needs of the wizard's own screen.
class WizardHost {
 public:
  virtual ~WizardHost() = default;
  virtual Wizard& State() = 0;
  /// A step has been stored: counts it and shows the wizard. `goOn` opens the next step at once.
  virtual void StepStored(bool goOn) = 0;
  /// Puts a Segment of which every step is done on the sheet; nothing for any other.
  virtual void Complete() = 0;
  /// A step was left without storing. Where it was the first, nothing is lost by leaving it all.
  virtual void StepLeft() = 0;
  /// Goes back to a step that has been done, and opens it. What the later steps held is remembered.
  virtual void GoTo(int step) = 0;
};

/// The step that the wizard stands at: a dialog over it. At its left are the steps, those done to
/// go back to; in the middle is this one's choice; below it what the picks make of the Segment:
/// who is in it, its forecast, its price. Back leaves without storing, Done stores and shows the
/// wizard, Next stores and goes straight on to the next step, as Enter and a double click in a list
/// do; on the last step it completes the booking.
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
  /// Chooses again what was chosen before the step was gone back to, as far as it is still there.
  virtual void Recall(const Segment& earlier) = 0;
  /// The choice.
  virtual ui::Box Body() = 0;
  /// What those who may object say to it, where they are asked.
  virtual std::optional<ui::Box> Voices() { return {}; }
  /// How many lists of people stand side by side; faces stand in two and more of them already.
  virtual int ListsAbreast() const { return 1; }
  /// The Segment with what is picked now.
  virtual Segment Draft() { return buffer(); }
  /// Checks what is chosen and puts it into the buffer; false leaves the step open with nothing
  /// stored.
  virtual bool Store() = 0;

  /// Stores and goes on, for the double click of a list.
  void GoOn();
  /// Whether Done and Next can be pressed; `why` is their tip while they cannot.
  void AllowDone(bool allowed, const std::string& why);
  bool Fail(const std::string& message);  // says it, titled "Error!"; always false

  /// Columns for lists of people, and what fills them. A roster has the most popular on top.
  std::vector<ui::Column> PeopleColumns(int listsAbreast = 1) {
    return WithFaces(world(), grapplemont::PeopleColumns(buffer().Kind, listsAbreast));
  }
  void FillPeople(ui::ListBox& list, const std::vector<const Worker*>& people, bool none = false);
  void FillRoster(ui::ListBox& list, std::vector<const Worker*> people, bool none = false);

  /// "Champion, Feud 71"; empty for nobody.
  std::string MarksOf(int uid);

  /// Selects the row of this key, if there is one.
  template <class List>
  static void Choose(List& list, int key) {
    const int row = list.Selected();
    list.SelectKey(key);
    if (list.Selected() == 0) list.Select(row);
  }

  /// Shows what the picks make of the Segment; runs after each.
  void ShowOutlook();

 private:
  /// Who is chosen, a line a side, and their marks, which lists abreast may have no room for.
  std::vector<std::string> ChosenLines(const Segment& draft);
  void Finish(bool goOn);
  bool IsLast();
  void Leave();
  void MakeButtons();
  const RosterMarks& Marks();
  void ShowSteps();
  void ShowPlace();
  void ShowStep(int step);
  void ShowFaces(const Segment& draft);
  void ShowForecast(const Segment& draft);
  std::string ForecastText(const Forecast& now);
  std::vector<ui::Box> StepBoxes();
  ui::Box Outlook();

  Game& game_;
  WizardHost& host_;
  std::optional<RosterMarks> marks_;
  std::optional<Forecast> before_;    // of the last pick
  std::optional<Segment> rehearsed_;  // what it was given for
  ToldSegment typical_;               // how it came about
  bool isWhole_ = false;              // everybody in it has been chosen
  bool isReady_ = false;              // the step's controls are filled
  static constexpr int kLines = 9;    // steps of the longest path
  ui::Array<ui::Label> lblsofar{"lblsofar", kLines, [this](const std::string& line, int) {
                                  return std::make_unique<ui::Label>(*this, line);
                                }};
  ui::Label lblplace{*this, "lblplace"};
  ui::Picture picfirst{*this, "picfirst"};
  ui::Picture picsecond{*this, "picsecond"};
  ui::Label lblwho{*this, "lblwho"};
  ui::Label lblforecast{*this, "lblforecast"};
  ui::Label lblprice{*this, "lblprice"};

 protected:
  /// Who belongs beside somebody who has been picked.
  ui::Label lblpartner{*this, "lblpartner"};
  // Behind the step's own controls in the tab order.
  std::unique_ptr<ui::Button> cmdback, cmddone, cmdnext;

 private:
  std::unique_ptr<ui::Button> cmdwhy;
  std::unique_ptr<ui::Array<ui::Button>> cmdjump;
};

/// Makes the screen of the step that the wizard stands at; nullptr where it has no more.
std::unique_ptr<ui::Screen> MakeStepScreen(Game& game, WizardHost& host);

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
  std::optional<ui::Box> Objections() { return ui::Group("What they say", {txtsay}); }

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
