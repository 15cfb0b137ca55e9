#include "desktop/sidebar.h"

#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <algorithm>

#include "desktop/button.h"
#include "desktop/housestyle.h"
#include "desktop/look.h"
#include "desktop/textviews.h"
#include "desktop/window.h"
#include "ui/acts.h"

namespace grapplemont::desktop {

namespace {

constexpr int kWidth = 188;
constexpr int kLine = 26, kLeastLine = 21, kHeading = 28, kLeastHeading = 22;
constexpr int kSide = 16;

class Heading : public QWidget {
 public:
  Heading(QWidget* parent, const QString& title) : QWidget(parent), title_(title.toUpper()) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QFont font = TextFont(10.5);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.8);
    painter.setFont(font);
    painter.setPen(ColoursOf(this).Muted);
    painter.drawText(rect().adjusted(Px(kSide), 0, 0, -Px(5)), Qt::AlignBottom, title_);
  }

 private:
  QString title_;
};

/// The name of the game, which leads home.
class Logo : public QAbstractButton {
 public:
  explicit Logo(QWidget* parent) : QAbstractButton(parent) {
    setText("GRAPPLEMONT");
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::NoFocus);
    setFixedHeight(Px(48));
    setToolTip("Back to the desk");
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QFont font = TextFont(16, QFont::Bold);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.6);
    painter.setFont(font);
    painter.setPen(ColoursOf(this).Gold);
    painter.drawText(rect().adjusted(Px(kSide), 0, 0, 0), Qt::AlignVCenter, text());
  }
};

}  // namespace

SideLine::SideLine(QWidget* parent, const QString& caption, const QString& key)
    : QAbstractButton(parent), key_(key) {
  setText(caption);
  setFocusPolicy(Qt::TabFocus);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void SideLine::SetBadge(const QString& badge) {
  badge_ = badge;
  update();
}

void SideLine::SetNow(bool now) {
  if (now_ == now) return;
  now_ = now;
  update();
}

QSize SideLine::sizeHint() const {
  return {Px(kWidth), Px(kLine)};
}

void SideLine::paintEvent(QPaintEvent*) {
  const Colours& c = ColoursOf(this);
  QPainter painter(this);
  if (now_) {
    painter.fillRect(rect(), c.Now);
    painter.fillRect(0, 0, Px(3), height(), c.GoldFill);
  } else if (isEnabled() && underMouse()) {
    painter.fillRect(rect(), c.Now);
  }
  const QRect room = rect().adjusted(Px(kSide), 0, -Px(kSide), 0);
  painter.setFont(TextFont(quiet_ ? 12 : 13));
  painter.setPen(!isEnabled() ? c.Faint : now_ ? c.Text : quiet_ ? c.Muted : c.Soft);
  painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft, text());
  if (!badge_.isEmpty()) {
    const int width = BadgeWidthFor(badge_);
    DrawBadge(painter, QRectF(room.right() + 1 - width, (height() - Px(17)) / 2.0, width, Px(17)),
              badge_, this);
  } else if (!key_.isEmpty()) {
    painter.setFont(TextFont(11));
    painter.setPen(isEnabled() ? c.Muted : c.Faint);
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignRight, key_);
  }
  if (hasFocus()) DrawFocus(painter, rect().adjusted(2, 1, -2, -1), Px(4), palette());
}

void SideLine::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && !event->isAutoRepeat()) return click();
  QAbstractButton::keyPressEvent(event);
}

void SideLine::enterEvent(QEnterEvent*) {
  update();
}

void SideLine::leaveEvent(QEvent*) {
  update();
}

class SideBar::Command : public SideLine, public ControlView {
 public:
  Command(ui::Button& button, const QString& key, Stage& stage, QWidget* parent)
      : SideLine(parent, {}, key), ControlView(button, stage), button_(button) {
    setObjectName(Shown(button.Name()));
  }
  QWidget* Widget() override { return this; }
  ui::Button& Presses() const { return button_; }

 protected:
  void Show() override {
    setText(Shown(button_.Text.Get()));
    SetBadge(Shown(button_.Badge.Get()));
  }

 private:
  ui::Button& button_;
};

SideBar::SideBar(const ui::Page& page, Stage& stage, QWidget* parent) : QWidget(parent) {
  setFixedWidth(Px(kWidth));
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 1, Px(12));
  rows->setSpacing(0);
  auto* logo = new Logo(this);
  connect(logo, &QAbstractButton::clicked, this, [this] { Home(); });
  rows->addWidget(logo);

  auto* scroller = new QScrollArea(this);
  scroller->setFrameShape(QFrame::NoFrame);
  scroller->setWidgetResizable(true);
  scroller->setFocusPolicy(Qt::NoFocus);
  scroller->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroller->viewport()->setAutoFillBackground(false);
  middle_ = new QWidget;
  auto* lines = new QVBoxLayout(middle_);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(0);
  for (const ui::SideGroup& group : page.Side) {
    if (group.Title.empty()) continue;
    headings_.push_back(new Heading(middle_, Shown(group.Title)));
    lines->addWidget(headings_.back());
    for (const auto& command : group.Commands) AddCommand(command, stage, middle_, lines);
  }
  lines->addStretch(1);
  scroller->setWidget(middle_);
  middle_->setAutoFillBackground(false);
  rows->addWidget(scroller, 1);

  auto* search = new SideLine(this, "Search everything", "Ctrl K");
  search->SetQuiet();
  search->setObjectName("searcheverything");
  connect(search, &QAbstractButton::clicked, this, [this] { Search(); });
  rows->addSpacing(Px(8));
  rows->addWidget(search);
  for (const ui::SideGroup& group : page.Side)
    if (group.Title.empty())
      for (const auto& command : group.Commands) AddCommand(command, stage, this, rows);
}

void SideBar::AddCommand(const ui::SideGroup::Command& command, Stage& stage, QWidget* holder,
                         QVBoxLayout* into) {
  auto* line = new Command(*command.Press, Shown(command.Key), stage, holder);
  connect(line, &QAbstractButton::clicked, this, [this, line] { Pressed(line->Presses()); });
  commands_.push_back(line);
  into->addWidget(line);
}

void SideBar::Refresh() {
  for (Command* command : commands_) command->Refresh();
}

void SideBar::SetNow(const ui::Button* present) {
  for (Command* command : commands_) command->SetNow(&command->Presses() == present);
}

/// In a low window the lines move closer together before anything has to scroll.
void SideBar::FitLines() {
  const int lines = static_cast<int>(
      std::count_if(commands_.begin(), commands_.end(),
                    [this](const Command* command) { return command->parentWidget() == middle_; }));
  const int headings = static_cast<int>(headings_.size());
  const int room = height() - Px(48) - Px(12) - Px(8) -
                   Px(kLine) * (static_cast<int>(commands_.size()) - lines + 1);
  const int wanted = lines * Px(kLine) + headings * Px(kHeading);
  const double fit = std::min(1.0, static_cast<double>(room) / std::max(1, wanted));
  const auto height = [fit](int usual, int least) {
    return std::max(Px(least), static_cast<int>(Px(usual) * fit));
  };
  for (Command* command : commands_)
    command->setFixedHeight(command->parentWidget() == middle_ ? height(kLine, kLeastLine)
                                                               : Px(kLine));
  for (QWidget* heading : headings_) heading->setFixedHeight(height(kHeading, kLeastHeading));
}

void SideBar::resizeEvent(QResizeEvent*) {
  FitLines();
}

void SideBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const Colours& c = ColoursOf(this);
  painter.fillRect(rect(), c.Side);
  painter.fillRect(width() - 1, 0, 1, height(), c.Line);
}

// The hub's commands: from the side bar, the top bar, by key and by search.

namespace {

/// More pages than ever lie above a hub.
constexpr int kMostPages = 64;

bool CanPress(const ui::Button* button) {
  return button && button->Enabled && button->Visible;
}

}  // namespace

bool Window::LeaveUpTo(const ui::Screen& hub) {
  if (box_) return false;
  for (int page = 0; page < kMostPages; ++page) {
    ui::Screen* const top = desk_.Top();
    if (!top || !desk_.Holds(hub)) return false;
    if (top == &hub) return true;
    ScreenView* const view = TopView();
    if (!view || &view->Shows() != top || !CanPress(view->Page().Cancel)) return false;
    view->HandleKey(Qt::Key_Escape);
    if (desk_.Top() == top) return false;  // it was asked whether to leave, and stays
  }
  return false;
}

void Window::PressHub(ui::Button& command) {
  const ui::Screen& hub = command.Parent();
  if (!LeaveUpTo(hub)) {
    if (const ScreenView* top = TopView(); top && !box_ && !top->Page().Cancel)
      Hint(*this, "This has to be seen through to its end first.");
    return;
  }
  Act([&] { return ui::Click(desk_, command.Parent(), command.Name()); });
  if (!desk_.Holds(hub)) return;
  RememberCommand(hub, command);
  Sync();
}

void Window::RememberCommand(const ui::Screen& hub, const ui::Button& command) {
  const auto& screens = desk_.Screens();
  const auto found = std::find_if(screens.begin(), screens.end(),
                                  [&](const auto& screen) { return screen.get() == &hub; });
  if (found != screens.end() && found + 1 != screens.end())
    commandOf_[(*(found + 1))->Name()] = command.Name();
}

ScreenView* Window::HubView() const {
  for (const Layer& layer : layers_)
    if (layer.View && frame_ && layer.Screen == framed_) return layer.View;
  return nullptr;
}

/// The command whose page is open: the one that has opened such a page before, else the one of the
/// same name.
const ui::Button* Window::CommandOf(const Scene& scene) const {
  const ScreenView* hub = HubView();
  const auto above = static_cast<std::size_t>(scene.Hub) + 1;
  if (!hub || above >= desk_.Screens().size()) return nullptr;
  const ui::Screen& page = *desk_.Screens()[above];
  const auto remembered = commandOf_.find(page.Name());
  for (const auto& group : hub->Page().Side)
    for (const auto& command : group.Commands) {
      const ui::Button* button = command.Press;
      if (remembered != commandOf_.end() ? button->Name() == remembered->second
                                         : button->Text.Get() == page.Title.Get())
        return button;
    }
  return nullptr;
}

bool Window::PressSideKey(const QKeyEvent& event) {
  ScreenView* const hub = HubView();
  const ui::Screen* const top = desk_.Top();
  const bool reachable = top && (top->Is() == ui::Role::Hub || top->Is() == ui::Role::Page);
  if (!hub || !reachable || event.isAutoRepeat() || event.key() < Qt::Key_F1) return false;
  for (const auto& group : hub->Page().Side)
    for (const auto& command : group.Commands) {
      if (command.Key.empty()) continue;
      const QKeySequence keys(Shown(command.Key));
      if (keys.isEmpty() || keys[0].key() != event.key()) continue;
      if (CanPress(command.Press)) PressHub(*command.Press);
      return true;
    }
  return false;
}

std::vector<Finder::Entry> Window::FinderEntries() {
  std::vector<Finder::Entry> entries;
  const ui::Screen* const top = desk_.Top();
  ScreenView* const view = TopView();
  if (view && top) {
    for (ui::Button* action : view->Page().Actions)
      if (CanPress(action))
        entries.push_back(
            {Shown(action->Text.Get()), Shown(top->Title.Get()), {}, [this, action] {
               Act([&] { return ui::Click(desk_, action->Parent(), action->Name()); });
             }});
  }
  const bool hubInReach = top && (top->Is() == ui::Role::Hub || top->Is() == ui::Role::Page);
  if (ScreenView* const hub = HubView(); hub && hubInReach) {
    const auto add = [&](ui::Button* command, const std::string& where, const std::string& key) {
      if (CanPress(command))
        entries.push_back({Shown(command->Text.Get()), Shown(where), Shown(key),
                           [this, command] { PressHub(*command); }});
    };
    for (ui::Button* action : hub->Page().TopActions) add(action, "", "");
    for (const auto& group : hub->Page().Side)
      for (const auto& command : group.Commands) add(command.Press, group.Title, command.Key);
  }
  const QString window = "Window";
  entries.push_back({IsDark(settings_.Colours()) ? "Light colours" : "Dark colours", window,
                     "Ctrl L", [this] { TurnColours(); }});
  entries.push_back({"Larger text", window, "Ctrl +", [this] { SetZoom(settings_.Zoom() + 1); }});
  entries.push_back({"Smaller text", window, "Ctrl -", [this] { SetZoom(settings_.Zoom() - 1); }});
  entries.push_back({"Text as the desktop has it", window, "Ctrl 0", [this] { SetZoom(0); }});
  return entries;
}

void Window::OpenFinder() {
  if (box_ || finder_ || acting_ > 0) return;
  if (ScreenView* top = TopView()) top->RememberKeyboard();
  finder_ = new Finder(ground_, FinderEntries());
  finder_->Done = [this](const Finder::Entry* chosen) {
    const std::function<void()> run = chosen ? chosen->Run : std::function<void()>();
    finder_ = nullptr;
    if (ScreenView* top = TopView()) top->TakeKeyboard();
    if (run) run();
  };
}

}  // namespace grapplemont::desktop
