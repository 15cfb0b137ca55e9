#pragma once

#include <QWidget>
#include <functional>
#include <string>

#include "desktop/settings.h"
#include "ui/desk.h"

namespace grapplemont::desktop {

/// What a view needs of the window that it stands in.
class Stage {
 public:
  virtual ~Stage() = default;
  virtual ui::Desk& Desk() = 0;
  virtual Settings& Kept() = 0;
  /// Where a picture of the program lies.
  virtual QString PictureFile(const std::string& name) const = 0;
  /// Does what the player does, an act of ui/acts.h, and shows what has come of it. The views of
  /// closed screens live on until control returns to the event loop.
  virtual void Act(const std::function<std::string()>& act) = 0;
  /// Says something short below a widget for a few seconds: why something cannot be, or that it is
  /// done, which is no harm and not said in red.
  virtual void Hint(QWidget& beside, const QString& text, ui::Tone tone = ui::Tone::Red) = 0;
};

/// What stands in the window for a control; its widget is one with it or owns it.
class ControlView {
 public:
  ControlView(ui::Control& control, Stage& stage) : shows_(control), stage_(stage) {}
  virtual ~ControlView() = default;
  ControlView(const ControlView&) = delete;
  ControlView& operator=(const ControlView&) = delete;

  virtual QWidget* Widget() = 0;
  /// Brings the widget up to date if the control has changed.
  void Refresh();
  /// Keeps it from use for a reason of the window's own; empty gives it back.
  void Hold(const std::string& why);
  /// Called before the screen's views are taken away.
  virtual void Leave() {}
  /// Where the keyboard goes when it goes to this control.
  virtual QWidget* FocusTarget() { return Widget(); }

  /// Leaves it out where there is no room for it, whatever its control says.
  void LeaveOut(bool out);

  ui::Control& Shows() const { return shows_; }
  /// A label that is shown and hidden together with the control.
  void SetCompanion(QWidget* label) { companion_ = label; }

 protected:
  virtual void Show() = 0;
  /// Whether there is anything to see while the control is to be seen.
  virtual bool HasWords() const { return true; }
  /// The key that works it from anywhere on its screen; empty for none.
  virtual QString KeyNow() const { return {}; }
  Stage& OnStage() const { return stage_; }
  /// Runs one of the acts that take a control's name.
  template <class... Value>
  void Do(std::string (*act)(ui::Desk&, ui::Screen&, std::string_view, Value...), Value... value) {
    stage_.Act([&] { return act(stage_.Desk(), shows_.Parent(), shows_.Name(), value...); });
  }
  /// Opens what a link leads to.
  void Follow(const ui::Handler& open) {
    stage_.Act([this, open] {
      stage_.Desk().Event(open);
      return std::string();
    });
  }

 private:
  ui::Control& shows_;
  Stage& stage_;
  void ShowUse();
  void ShowSeen();

  unsigned seen_ = 0;
  std::string held_;  // why it cannot be used although its control can
  QWidget* companion_ = nullptr;
  bool isOut_ = false;
};

/// A view of a control of class C that is its own widget, of class Q.
template <class Q, class C>
class ViewOf : public Q, public ControlView {
 public:
  ViewOf(C& control, Stage& stage, QWidget* parent)
      : Q(parent), ControlView(control, stage), control_(control) {}
  QWidget* Widget() override { return this; }

 protected:
  C& control_;
};

/// A view of any control. The widget is a child of `parent`, which owns the view.
ControlView* MakeView(ui::Control& control, Stage& stage, QWidget* parent);

}  // namespace grapplemont::desktop
