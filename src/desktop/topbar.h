#pragma once

#include <QStackedWidget>
#include <QWidget>
#include <functional>

#include "desktop/button.h"
#include "desktop/screenview.h"
#include "desktop/sidebar.h"
#include "ui/screen.h"

namespace grapplemont::desktop {

/// What always stands above a game: the date, who one is, image, money, and what moves time.
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

 private:
  std::vector<ControlView*> views_;
  ButtonView* main_ = nullptr;
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

 private:
  SideBar* side_;
  TopBar* top_;
  QStackedWidget* room_;
};

}  // namespace grapplemont::desktop
