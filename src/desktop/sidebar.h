#pragma once

#include <QVBoxLayout>
#include <functional>

#include "desktop/button.h"
#include "desktop/pieces.h"
#include "ui/screen.h"

namespace grapplemont::desktop {

/// A line of the side bar: a caption, a key, a spot.
class SideLine : public BareButton {
 public:
  explicit SideLine(QWidget* parent, const QString& caption = {});
  void SetKey(const QString& key) {
    key_ = key;
    setAccessibleDescription(key);
  }
  void SetNow(bool now) { Change(now_, now); }
  void SetQuiet() { quiet_ = true; }
  bool IsNow() const { return now_; }
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  int WidthWanted() const override;

 private:
  QFont CaptionFont() const;
  /// What the badge takes, or the key.
  int TailWidth() const;
  QString key_;
  bool now_ = false, quiet_ = false;
};

/// The hub's commands in their groups. What has no group's title stands at the bottom.
class SideBar : public QWidget {
 public:
  SideBar(const ui::Page& page, Stage& stage, QWidget* parent);

  std::function<void(ui::Button& command)> Pressed;
  std::function<void()> Search, Home;
  void Refresh();
  /// Keeps each command from use for the reason that is given for it; empty for none.
  void Hold(const std::function<std::string(const ui::Button& command)>& why);
  /// Large letters leave the page most of a small window.
  void FitWidth(int window);
  /// The command whose page is open; none: nullptr.
  void SetNow(const ui::Button* command);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent*) override {
    FitLines();
    ShowPresent();
  }

 private:
  class Command;
  void AddCommand(const ui::SideGroup::Command& command, Stage& stage, QWidget* holder,
                  QVBoxLayout* into);
  void FitLines();
  /// Scrolls to the present command, once the lines have their places.
  void ShowPresent();

  std::vector<Command*> commands_;
  std::vector<QWidget*> headings_;
  BareScroller* scroller_;
  QWidget* middle_;
};

}  // namespace grapplemont::desktop
