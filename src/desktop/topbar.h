#pragma once

#include <QBoxLayout>
#include <QStackedWidget>
#include <QWidget>
#include <functional>

#include "desktop/button.h"
#include "desktop/card.h"
#include "desktop/screenview.h"
#include "desktop/sidebar.h"
#include "ui/screen.h"

namespace grapplemont::desktop {

/// What always stands above a game: the date, who one is, image, money, and what moves time. Its
/// form hangs on the window's width alone, not on the day: where there is little room, the date is
/// short, what can be done beside the main action goes into a menu, captions go, and what can be
/// done stands in a second row. There is never a third.
class TopBar : public QWidget {
 public:
  TopBar(const ui::Page& page, Stage& stage, QWidget* parent);
  std::function<void(ui::Button& action)> Pressed;
  void Refresh();
  /// Shows the Enter sign on the main action if it is this button.
  void SetEnter(const ui::Button* pressed);
  /// Keeps the actions from use for this reason; empty gives them back.
  void Hold(const std::string& why);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent*) override {
    isPlaced_ = true;
    Fit();
  }

 private:
  class Fact;
  enum class Form { Long, Short, Bare, Least };
  struct Way {
    bool OneRow;
    Form Facts;
    bool Folded;  // all actions but the main one stand in the menu
  };
  int FactsWidth(Form form) const;
  int ActionsWidth(bool folded) const;
  bool Fits(const Way& way) const;
  /// The visible actions that may stand in the menu.
  std::vector<ButtonView*> Foldable() const;
  void Fit();
  void Take(const Way& way);

  std::vector<Fact*> facts_;
  std::vector<ControlView*> views_;
  std::vector<ButtonView*> buttons_;
  ButtonView* main_ = nullptr;
  PushButton* more_;
  bool isPlaced_ = false;  // before that its width says nothing
  const Way* way_ = nullptr;
  int fittedTo_ = 0;  // the width that it was chosen for
  QBoxLayout* all_;
  FlowLayout* actions_;
};

/// Side bar and top bar of a hub, and beside them the room for its home page and the pages above.
class HubFrame : public QWidget {
 public:
  HubFrame(const ui::Page& page, Stage& stage, QWidget* parent);
  SideBar& Side() { return *side_; }
  TopBar& Top() { return *top_; }
  QStackedWidget& Room() { return *room_; }
  void Refresh() {
    side_->Refresh();
    top_->Refresh();
  }

 protected:
  void resizeEvent(QResizeEvent*) override { side_->FitWidth(width()); }

 private:
  SideBar* side_;
  TopBar* top_;
  QStackedWidget* room_;
};

}  // namespace grapplemont::desktop
