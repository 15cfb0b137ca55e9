#pragma once

#include <QWidget>
#include <functional>

#include "desktop/buttonview.h"
#include "ui/layout.h"

namespace grapplemont::desktop {

/// What always stands above a game: the date, who one is, image, money, and what moves time.
class TopBar : public QWidget {
 public:
  TopBar(const ui::Page& page, Stage& stage, QWidget* parent);
  std::function<void(ui::Button& action)> Pressed;
  void Refresh();
  /// Whether Enter means the main action at present.
  void SetEnter(bool enter);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<ControlView*> views_;
  ButtonView* main_ = nullptr;
};

}  // namespace grapplemont::desktop
