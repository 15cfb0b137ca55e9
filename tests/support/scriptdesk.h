#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <source_location>
#include <string>
#include <string_view>
#include <vector>

#include "ui/desk.h"

namespace grapplemont::test {

/// Stands for the text of a box (or its title, or what it offers) that a test does not look at.
inline constexpr std::nullopt_t kAnyText = std::nullopt;

/// A desk whose player is a test:
///
///   ScriptDesk desk;
///   Game game(desk, disk, {});
///   desk.Open("frmTicket");
///   desk.Slide("hsticket", 40);
///   desk.ExpectAsk("Ticket price", "Are you sure?", true);
///   desk.Click("cmddoit");
///   EXPECT_EQ(desk.Text("lblprice"), "$40");
///
/// Acts go to the top screen by control name; one that a player could not do fails the test with
/// the reason. Boxes are expected before the act that brings them, in their order; one that comes
/// unexpected or with other words fails the test, and so does an expectation that is left at the
/// end.
class ScriptDesk : public ui::Desk {
 public:
  using Words = std::optional<std::string>;
  using Place = std::source_location;

  ~ScriptDesk() override { Finish(); }

  // What the player does.
  void Click(std::string_view name, Place at = Place::current());
  void Type(std::string_view name, std::string_view text, Place at = Place::current());
  void Pick(std::string_view name, std::string_view text, Place at = Place::current());
  void Pick(std::string_view name, int row, Place at = Place::current());
  void OpenRow(std::string_view name, std::string_view text, Place at = Place::current());
  void OpenRow(std::string_view name, int row, Place at = Place::current());
  void Check(std::string_view name, bool on = true, Place at = Place::current());
  void Slide(std::string_view name, int value, Place at = Place::current());

  // What the player will be asked, and answers.
  void ExpectSay(Words title, Words text, Place at = Place::current());
  void ExpectAsk(Words title, Words text, bool answer,
                 std::optional<ui::Default> offered = std::nullopt, Place at = Place::current());
  /// An empty answer cancels.
  void ExpectPrompt(Words title, Words text, std::string answer, Words offered = kAnyText,
                    Place at = Place::current());
  /// Every message is read, and a question that nobody expects gets the answer it offers. For
  /// scripts that look at Boxes() afterwards.
  bool IsEasy = false;
  /// Fails the test for every expectation still open and forgets it.
  void Finish();

  /// The boxes that have been shown, expected or not.
  struct Shown {
    std::string Kind;  // "Say", "Ask" or "Prompt"
    std::string Title, Text;
  };
  const std::vector<Shown>& Boxes() const { return boxes_; }

  // What the player sees of the top screen; a name that is not there fails the test.
  std::string TopName() const;  // empty when the desk is
  std::string Title() const;
  std::string Text(std::string_view name) const;
  std::string Tip(std::string_view name) const;
  std::string Badge(std::string_view button) const;
  bool Enabled(std::string_view name) const;
  bool Visible(std::string_view name) const;
  bool Checked(std::string_view name) const;
  int Value(std::string_view name) const;
  /// The cells of a ListBox, or the rows of a ComboBox as one cell each.
  std::vector<std::vector<std::string>> Rows(std::string_view name) const;
  /// The first cell of each row.
  std::vector<std::string> FirstColumn(std::string_view name) const;
  std::vector<int> Selected(std::string_view name) const;  // from 1

  /// What has been heard, in order.
  std::vector<ui::Sound> Heard;

  /// Runs whenever a long handler shows its present state.
  std::function<void()> OnRepaint;

  void Say(const std::string& title, const std::string& text) override;
  bool Ask(const std::string& title, const std::string& text, ui::Default answer) override;
  std::string Prompt(const std::string& title, const std::string& text,
                     const std::string& offered) override;
  /// Whatever a handler waits for is stopped at once.
  bool IsImpatient = false;
  bool WaitUntil(const std::function<bool()>& isOver) override {
    return !IsImpatient && ui::Desk::WaitUntil(isOver);
  }
  void Hear(ui::Sound sound) override { Heard.push_back(sound); }
  void Repaint() override;

 private:
  struct Expected {
    std::string Kind;
    Words Title, Text;
    bool Yes = false;
    std::optional<ui::Default> Button = {};
    std::string Answer = {};
    Words Offered = {};
    Place At = {};
  };
  /// The expectation that this box meets; nothing when it is unexpected.
  std::optional<Expected> Meet(const std::string& kind, const std::string& title,
                               const std::string& text);
  void Do(const std::string& act, std::string_view name, Place at,
          const std::function<std::string(ui::Screen&)>& perform);
  const ui::Control* Look(std::string_view name) const;
  template <class C>
  const C* Look(std::string_view name) const;

  std::deque<Expected> expected_;
  std::vector<Shown> boxes_;
};

}  // namespace grapplemont::test
