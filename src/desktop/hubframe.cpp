#include "desktop/hubframe.h"

#include <QHBoxLayout>

namespace grapplemont::desktop {

HubFrame::HubFrame(const ui::Page& page, Stage& stage, QWidget* parent)
    : QWidget(parent),
      side_(new SideBar(page, stage, this)),
      top_(new TopBar(page, stage, this)),
      room_(new QStackedWidget(this)) {
  auto* columns = new QHBoxLayout(this);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(0);
  auto* rows = new QVBoxLayout;
  rows->setSpacing(0);
  rows->addWidget(top_);
  rows->addWidget(room_, 1);
  columns->addWidget(side_);
  columns->addLayout(rows, 1);
}

void HubFrame::Refresh() {
  side_->Refresh();
  top_->Refresh();
}

}  // namespace grapplemont::desktop
