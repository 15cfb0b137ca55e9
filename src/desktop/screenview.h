#pragma once

#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>
#include <memory>

#include "desktop/button.h"
#include "desktop/layoutbuilder.h"
#include "desktop/pictureview.h"
#include "desktop/scroller.h"
#include "desktop/textviews.h"
#include "ui/screen.h"

namespace grapplemont::desktop {

class PageHead;

/// A screen with its title, facts, actions and body. Its layout is built once; afterwards only what
/// has changed is brought up to date. It keeps the screen alive until it goes itself.
class ScreenView : public QWidget {
 public:
  ScreenView(std::shared_ptr<ui::Screen> screen, Stage& stage, QWidget* parent);

  ui::Screen& Shows() const { return *screen_; }
  const ui::Page& Page() const { return page_; }
  void Refresh();
  /// Remembers what is to be remembered; the view is taken away next.
  void Leave();
  /// What Enter does here, at once or when it can be pressed: Main, or Then in its place; nullptr
  /// when neither is to be seen. On the hub's own page First goes before them; `here` tells whether
  /// it is meant.
  ui::Button* MainNow(bool here = true) const;
  /// Shows the Enter sign on this button, if it is one that Enter may press here.
  void SetEnter(const ui::Button* pressed);
  /// False when the button cannot be pressed.
  bool Press(ui::Button* button);
  /// Leaves the screen, after a question where something would be lost.
  bool PressCancel();
  /// Gives the keyboard to what had it last while this was on top, in the bars beside it, too; else
  /// to where one begins.
  void TakeKeyboard();
  void RememberKeyboard();
  /// Shows the line that the page begins with and gives it the keyboard, if nothing has been
  /// written there yet: what was refused wants it.
  void ShowWhatIsMissing();
  /// Chooses the row that the keyboard is on, where its list waits for a choice; else leads the
  /// keyboard to the first list that does, and is false.
  bool ChooseMissing();
  /// The control here that has the keyboard; nullptr for none.
  const ui::Control* KeyboardOn() const;
  /// The one that will be given it by TakeKeyboard; nullptr for none.
  const ui::Control* KeyboardHeld() const;
  void GiveKeyboard(const ui::Control& control);
  /// Gives it to the control by the next TakeKeyboard.
  void HoldKeyboard(const ui::Control& control);
  /// Where the control is seen here; nullptr where it is not.
  QWidget* WidgetOf(const ui::Control& control) const;
  /// The space bar and Escape; true when the key meant something.
  bool HandleKey(int key);
  bool FocusSearch();
  /// A list of the page as the player has arranged it; nullptr for none.
  const ui::Table* TableOf(const ui::ListBox& list) const;
  /// What can be done on the page, the main action last.
  std::vector<ui::Button*> ActionsInOrder() const;
  /// How large a dialog wants to be, in drawn pixels; invalid: as its contents are.
  QSize DialogSize() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void BuildPage();
  void BuildDialog();
  QBoxLayout* BuildWhole(QMargins margins);
  void BuildWait();
  QLayout* BuildHead();
  void AddFacts(QBoxLayout& words);
  void AddActions(PageHead& head);
  /// In a low window the head is as low as it can be.
  void FitHead();
  void BuildBody(QBoxLayout* into);
  QLayout* BuildFoot();
  bool TakesEnter(const ui::Control& control) const;
  bool HasBackdrop() const;
  void ShowCards();
  /// Whether the card has its place in a window as low as this one.
  bool HasRoomFor(const LayoutBuilder::CardContents& card) const;
  void FindBackdrop();
  void DressPictures();
  bool IsPoster() const;
  /// Above which the words of the picture behind stand.
  int Floor() const;
  /// Makes a view of the control here and gives its widget.
  QWidget* Add(ui::Control& control);
  ControlView* FirstInUse() const;
  const ui::Control* ControlWith(const QWidget* focus) const;
  bool ClearFilters();

  std::shared_ptr<ui::Screen> screen_;
  Stage& stage_;
  ui::Page page_;
  std::vector<ControlView*> views_;
  std::vector<LayoutBuilder::CardContents> cards_;
  Scroller* whole_ = nullptr;  // of head and body
  QLabel* title_ = nullptr;
  PageHead* head_ = nullptr;        // of a page
  bool showsFilters_ = false;       // in a low window, where they wait until they are asked for
  QBoxLayout* rows_ = nullptr;      // head and body of a page
  std::vector<ButtonView*> mains_;  // Main, Then and First, and Cancel in their place
  unsigned seen_ = 0;
  Backdrop backdrop_;
  ui::Picture* behind_ = nullptr;
  QPointer<QWidget> keyboard_;
};

}  // namespace grapplemont::desktop
