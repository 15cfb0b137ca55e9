#pragma once

#include <string>
#include <type_traits>
#include <variant>
#include <vector>

#include "records/fields/people.h"
#include "records/score.h"
#include "records/whatif.h"
#include "records/world.h"
#include "roster/talks.h"
#include "ui/game.h"

// What the screens of contract talks share.

namespace grapplemont {

/// The part of an offer that everybody gets: wage, length, type.
struct OfferControls {
  OfferControls(ui::Screen& screen, Game& game, int highestWage);

  /// Shows what the talks begin with.
  void Begin(int wage, int months, bool written);
  /// Enables them, or tells on each why it is of no use.
  void Allow(const std::string& why);
  ContractOffer Offer() const;
  std::vector<ui::Box> Fields();

  ui::ScrollBar hsnewwage;
  ui::Label txtnewwage;
  ui::ComboBox cmbnewlength;
  ui::ComboBox cmbnewtype;
  ui::Label lblafford;

 private:
  void ShowWage();

  Game& game_;
};

/// What a contract holds or somebody wants of one.
struct TermLabels {
  explicit TermLabels(ui::Screen& screen);
  void Show(int wage, int months, bool written);
  std::vector<ui::Box> Fields();

  ui::Label txtwage, txtlength, txttype;
};

/// Who sits at the other side of the table.
struct Counterpart {
  std::string Name;
  int Employer = 0;  // a Promotion's uid, 0 for a free agent
};
/// Why there is nobody to talk to any more: they are gone, work elsewhere, or are bound for good.
/// Empty while there is.
template <class Person>
std::string WhyTalksOver(const World& world, const Person* person, const Counterpart& was) {
  if (!person || person->Name != was.Name) return was.Name + " is not in the business any more.";
  if (person->Employer != was.Employer)
    return was.Name + (was.Employer == world.PlayerUid() ? " does not work for you any more."
                                                         : " has changed sides in the meantime.");
  if (person->Unsackable && person->Employer != 0)
    return was.Name + " is unsackable now: there is nothing to talk about.";
  return {};
}

/// Talks with one person, as long as they are who they were and work where they worked.
class TalkScreen : public GameScreen {
 public:
  TalkScreen(Game& game, std::string name, int uid, Counterpart with);
  /// Begins the talks and says what closes them at once.
  void Load() override;
  void Return() override;

 protected:
  virtual std::string WhyOver() = 0;
  /// The box in which they refuse to listen to any offer; without words when they listen. `why`
  /// gets what they weighed.
  virtual Remark Refusal(Decision& why) = 0;
  /// How the wage came about with which the talks begin.
  virtual Score WageSteps() = 0;
  /// Puts on the table what the talks begin with.
  virtual void Begin() = 0;
  /// Shows them as they are, and opens or closes the table.
  virtual void Show() = 0;
  /// Whether to agree on what lies on the table; or, as a text, why that cannot be asked.
  virtual std::variant<WhatIf, std::string> Weighed() = 0;
  /// "2 Years at $40,000 a month".
  static std::string TermsText(const ContractOffer& offer);

  /// Otherwise says why not and closes.
  bool GoesOn();
  void SayAll(const std::vector<Remark>& remarks);
  /// A large window: their page, and beside it what is talked about.
  ui::Page TalkPage(std::vector<ui::Box> beside, std::vector<ui::Button*> actions,
                    ui::Button& offer);
  /// The line under the title; what closed the talks goes before it.
  void ShowFacts(const std::string& facts);
  /// The ways to what stands behind the wage and behind a no, and where it is told.
  std::vector<ui::Box> WhyParts();
  /// Says no, and keeps what was weighed for whoever asks.
  void Refuse(const std::vector<Remark>& remarks, Decision why);
  /// Says that it is a deal, and closes.
  void Agree(std::string_view name, bool written);

  int uid_;
  Counterpart with_;
  std::string closed_;  // what closed the talks; empty while they listen
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Report txtpage{*this, "txtpage"};

 private:
  void ShowWhyNot();

  Decision why_;      // of the last no
  std::string said_;  // in which words; empty while there was none
  ui::Button cmdwhy{*this, "cmdwhy", "Why?", &TalkScreen::cmdwhy_Click};
  ui::Button cmdwhynot{*this, "cmdwhynot", "Why Not?", &TalkScreen::cmdwhynot_Click};
  ui::Button cmdwhatif{*this, "cmdwhatif", "What If", &TalkScreen::cmdwhatif_Click};
  ui::Report txtwhy{*this, "txtwhy"};
  void cmdwhy_Click();
  void cmdwhatif_Click();
  void cmdwhynot_Click() { txtwhy.WriteLines(WhyText(said_, why_)); }
};

/// Talks with a worker or with a member of staff.
template <class Person>
class TalkWith : public TalkScreen {
 public:
  TalkWith(Game& game, std::string name, const Person& person)
      : TalkScreen(game, std::move(name), person.Uid, {person.Name.Str(), person.Employer}) {}

 protected:
  /// nullptr for somebody who has left the world.
  Person* Who() {
    if constexpr (std::is_same_v<Person, Worker>)
      return world().FindWorker(uid_);
    else
      return world().FindStaff(uid_);
  }
  std::string WhyOver() override { return WhyTalksOver(world(), Who(), with_); }
};

inline constexpr const char* kTalksTitle = "Contract Negotiations";

// The way from any worker's page to the talks with them.

/// The tip of what needs a worker.
inline constexpr const char* kNobodyChosen = "Choose a worker first.";
/// Why nobody can be moved or made ready for a turn at this moment; empty outside a show.
std::string WhyNotNow(Game& game);
/// Bound to an employer for good: there is nothing to talk about.
inline bool IsSettled(const Worker& worker) {
  return worker.Unsackable && worker.Employer != 0;
}
/// Why there can be no talks with them at this moment; empty when there can. nullptr for nobody
/// chosen.
std::string WhyNoTalks(Game& game, const Worker* worker);
/// The contract of one of the player's, or the talks with anybody else. Says why there can be none
/// with somebody who has become unsackable.
void OpenTalks(Game& game, const Worker& worker);
void OpenTalks(Game& game, const Staff& staff);

/// Puts them on the shortlist or takes them off; says why when there is no room.
void TurnShortlist(Game& game, int workerUid);
/// Shows on the button what it would do; nobody chosen disables it.
void ShowShortlistButton(Game& game, const Worker* worker, ui::Button& button);

// Each requires somebody who can be talked with.
std::unique_ptr<ui::Screen> MakefrmWresContract(Game& game, const Worker& worker);
std::unique_ptr<ui::Screen> MakefrmOtherContract(Game& game, const Worker& worker);
/// frmStaffContract for a member of the player's staff, frmOtherStaffContract for any other.
std::unique_ptr<ui::Screen> MakefrmStaffContract(Game& game, const Staff& staff);

}  // namespace grapplemont
