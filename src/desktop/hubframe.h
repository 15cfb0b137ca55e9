#pragma once

#include <QStackedWidget>

#include "desktop/screenview.h"
#include "desktop/sidebar.h"
#include "desktop/topbar.h"

namespace grapplemont::desktop {

/// Side bar and top bar of a hub, and beside them the room for its home page and the pages above.
class HubFrame : public QWidget {
 public:
  HubFrame(const ui::Page& page, Stage& stage, QWidget* parent);
  SideBar& Side() { return *side_; }
  TopBar& Top() { return *top_; }
  QStackedWidget& Room() { return *room_; }
  void Refresh();

 private:
  SideBar* side_;
  TopBar* top_;
  QStackedWidget* room_;
};

}  // namespace grapplemont::desktop
