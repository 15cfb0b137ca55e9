#pragma once

#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>
#include <memory>

#include "desktop/button.h"
#include "desktop/layoutbuilder.h"
#include "desktop/pictureview.h"
#include "desktop/textviews.h"
#include "ui/screen.h"

namespace grapplemont::desktop {

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
  /// Whether the screen has the player's attention; then its main button bears the Enter sign.
  void SetOnTop(bool onTop);
  /// Gives the keyboard to what had it last here, else to where one begins.
  void TakeKeyboard();
  void RememberKeyboard();
  /// Enter and Escape; true when the key meant something.
  bool HandleKey(int key);
  bool FocusSearch();
  /// How large a dialog wants to be, in drawn pixels; invalid: as its contents are.
  QSize DialogSize() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void BuildPage();
  void BuildDialog();
  void BuildWait();
  QLayout* BuildHead(bool withActions);
  void BuildBody(QVBoxLayout* into);
  QLayout* BuildActions();
  std::vector<ui::Button*> ActionsInOrder() const;
  bool HasBackdrop() const;
  void FindBackdrop();
  void DressPictures();
  bool HasTitlePicture() const;
  /// Makes a view of the control here and gives its widget.
  QWidget* Add(ui::Control& control);
  bool Press(ui::Button* button);

  std::shared_ptr<ui::Screen> screen_;
  Stage& stage_;
  ui::Page page_;
  std::vector<ControlView*> views_;
  std::vector<LayoutBuilder::CardContents> cards_;
  QLabel* title_ = nullptr;
  QBoxLayout* tail_ = nullptr;      // of the head: what is searched and done
  std::vector<ButtonView*> mains_;  // what Enter presses, the first that can be seen
  unsigned seen_ = 0;
  Backdrop backdrop_;
  ui::Picture* behind_ = nullptr;
  QPointer<QWidget> keyboard_;
};

}  // namespace grapplemont::desktop
