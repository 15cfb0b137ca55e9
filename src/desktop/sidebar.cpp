#include "desktop/sidebar.h"

#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>

#include "desktop/housestyle.h"
#include "desktop/pieces.h"
#include "desktop/spoken.h"
#include "desktop/wordswidth.h"

namespace grapplemont::desktop {

namespace {

constexpr int kWidth = 188;
constexpr int kCommandLine = 26, kLeastLine = 21, kHeading = 28, kLeastHeading = 22;
constexpr int kSide = 16;
constexpr int kLogo = 48, kBarGap = 8, kFoot = 12;  // what stands above and below the lines

class Heading : public QWidget {
 public:
  Heading(QWidget* parent, const QString& title) : QWidget(parent), title_(title.toUpper()) {
    Means(*this, QAccessible::Heading);
    setAccessibleName(title);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QFont font = TextFont(10.5);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.8);
    painter.setPen(ColoursOf(this).Muted);
    DrawWords(painter, rect().adjusted(Px(kSide), 0, 0, -Px(5)), Qt::AlignBottom, font, title_);
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
    setFixedHeight(Px(kLogo));
    setToolTip("Back to the desk");
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QFont font = TextFont(16, QFont::Bold);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.6);
    painter.setPen(ColoursOf(this).Gold);
    DrawWords(painter, rect().adjusted(Px(kSide), 0, 0, 0), Qt::AlignVCenter, font, text());
  }
};

/// Ends with a whole line: what would be cut at its foot waits until it is scrolled to.
class WholeLines : public BareScroller {
 public:
  explicit WholeLines(QWidget* parent) : BareScroller(parent) {
    connect(verticalScrollBar(), &QAbstractSlider::valueChanged, this, [this] { Fit(); });
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    BareScroller::resizeEvent(event);
    Fit();
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool eaten = BareScroller::eventFilter(watched, event);
    if (watched == widget() && event->type() == QEvent::Resize) Fit();
    return eaten;
  }

 private:
  void Fit() {
    if (fitting_ || !widget()) return;
    const QScopedValueRollback<bool> fitting(fitting_, true);
    const int foot = verticalScrollBar()->value() + contentsRect().height();
    int over = 0;
    for (const QObject* child : widget()->children())
      if (const auto* line = qobject_cast<const QWidget*>(child);
          line && line->y() < foot && line->geometry().bottom() >= foot)
        over = foot - line->y();
    setViewportMargins(0, 0, 0, over);
  }

  bool fitting_ = false;
};

}  // namespace

SideLine::SideLine(QWidget* parent, const QString& caption) : BareButton(parent, caption) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize SideLine::sizeHint() const {
  return {Px(kWidth), Px(kCommandLine)};
}

QFont SideLine::CaptionFont() const {
  return TextFont(quiet_ ? 12 : 13);
}

int SideLine::TailWidth() const {
  if (!badge_.isEmpty()) return BadgeWidth() + Px(kBarGap);
  return key_.isEmpty() ? 0 : WordsAdvance(TextFont(11), key_) + Px(kBarGap);
}

int SideLine::WidthWanted() const {
  return 2 * Px(kSide) + WordsAdvance(CaptionFont(), text()) + (badge_.isEmpty() ? 0 : TailWidth());
}

/// A key that has no room beside the caption goes before the caption is cut.
void SideLine::paintEvent(QPaintEvent*) {
  const Colours& c = ColoursOf(this);
  QPainter painter(this);
  if (now_ || (isEnabled() && underMouse())) painter.fillRect(rect(), c.Now);
  if (now_) painter.fillRect(0, 0, Px(3), height(), c.GoldFill);
  const QRect room = rect().adjusted(Px(kSide), 0, -Px(kSide), 0);
  const QFont font = CaptionFont();
  const bool tail = !badge_.isEmpty() || WordsAdvance(font, text()) + TailWidth() <= room.width();
  painter.setPen(!isEnabled() ? c.Faint : now_ ? c.Text : quiet_ ? c.Muted : c.Soft);
  DrawWords(painter, room, Qt::AlignVCenter, font,
            WordsWithin(font, text(), room.width() - (tail ? TailWidth() : 0)));
  if (!badge_.isEmpty()) {
    DrawBadge(painter, room.right() + 1 - BadgeWidth());
  } else if (tail) {
    painter.setPen(isEnabled() ? c.Muted : c.Faint);
    DrawWords(painter, room, Qt::AlignVCenter | Qt::AlignRight, TextFont(11), key_);
  }
  if (hasFocus()) DrawFocus(painter, rect().adjusted(2, 1, -2, -1), Px(4), palette());
}

class SideBar::Command : public ViewOf<SideLine, ui::Button> {
 public:
  Command(ui::Button& button, const QString& key, Stage& stage, QWidget* parent)
      : ViewOf(button, stage, parent) {
    SetKey(key);
    setObjectName(Shown(button.Name()));
  }
  ui::Button& Presses() const { return control_; }

 protected:
  void Show() override {
    setText(Shown(control_.Text.Get()));
    SetBadge(Shown(control_.Badge.Get()));
  }
};

SideBar::SideBar(const ui::Page& page, Stage& stage, QWidget* parent) : QWidget(parent) {
  setFixedWidth(Px(kWidth));
  auto* rows = NewLayout<QVBoxLayout>(this, 0);
  rows->setContentsMargins(0, 0, 1, Px(kFoot));
  auto* logo = new Logo(this);
  connect(logo, &QAbstractButton::clicked, this, [this] { Home(); });
  rows->addWidget(logo);

  scroller_ = new WholeLines(this);
  scroller_->setWidgetResizable(true);
  middle_ = new QWidget;
  auto* lines = NewLayout<QVBoxLayout>(middle_, 0);
  for (const ui::SideGroup& group : page.Side) {
    if (group.Title.empty()) continue;
    headings_.push_back(new Heading(middle_, Shown(group.Title)));
    lines->addWidget(headings_.back());
    for (const auto& command : group.Commands) AddCommand(command, stage, middle_, lines);
  }
  lines->addStretch(1);
  scroller_->Hold(middle_);
  rows->addWidget(scroller_, 1);

  auto* search = new SideLine(this, "Search everything");
  search->SetKey(stage.Kept().Key(kSearchKeyId, kSearchKey));
  search->SetQuiet();
  search->setObjectName("searcheverything");
  connect(search, &QAbstractButton::clicked, this, [this] { Search(); });
  rows->addSpacing(Px(kBarGap));
  rows->addWidget(search);
  for (const ui::SideGroup& group : page.Side)
    if (group.Title.empty())
      for (const auto& command : group.Commands) AddCommand(command, stage, this, rows);
}

void SideBar::AddCommand(const ui::SideGroup::Command& command, Stage& stage, QWidget* holder,
                         QVBoxLayout* into) {
  auto* line = new Command(*command.Press, stage.Kept().Key(command.Press->Name(), command.Key),
                           stage, holder);
  connect(line, &QAbstractButton::clicked, this, [this, line] { Pressed(line->Presses()); });
  commands_.push_back(line);
  into->addWidget(line);
}

void SideBar::Refresh() {
  for (Command* command : commands_) command->Refresh();
}

void SideBar::Hold(const std::function<std::string(const ui::Button& command)>& why) {
  for (Command* command : commands_) command->Hold(why(command->Presses()));
}

void SideBar::SetNow(const ui::Button* present) {
  bool moved = false;
  for (Command* command : commands_) {
    const bool now = &command->Presses() == present;
    moved = moved || now != command->IsNow();
    command->SetNow(now);
  }
  if (moved) ShowPresent();
}

void SideBar::ShowPresent() {
  QMetaObject::invokeMethod(
      this,
      [this] {
        for (Command* command : commands_)
          if (command->IsNow() && command->parentWidget() == middle_)
            scroller_->ensureWidgetVisible(command, 0, command->height());
      },
      Qt::QueuedConnection);
}

void SideBar::FitWidth(int window) {
  constexpr int kMost = 30;  // percent of the window
  setFixedWidth(std::min(Px(kWidth), window * kMost / 100));
}

/// In a low window the lines move closer together before anything has to scroll.
void SideBar::FitLines() {
  const int lines = static_cast<int>(std::ranges::count_if(
      commands_, [this](const Command* command) { return command->parentWidget() == middle_; }));
  const int headings = static_cast<int>(headings_.size());
  const int room = height() - Px(kLogo) - Px(kFoot) - Px(kBarGap) -
                   Px(kCommandLine) * (static_cast<int>(commands_.size()) - lines + 1);
  const int wanted = lines * Px(kCommandLine) + headings * Px(kHeading);
  const double fit = std::min(1.0, static_cast<double>(room) / std::max(1, wanted));
  const auto height = [fit](int usual, int least) {
    return std::max(Px(least), static_cast<int>(Px(usual) * fit));
  };
  for (Command* command : commands_)
    command->setFixedHeight(command->parentWidget() == middle_ ? height(kCommandLine, kLeastLine)
                                                               : Px(kCommandLine));
  for (QWidget* heading : headings_) heading->setFixedHeight(height(kHeading, kLeastHeading));
}

void SideBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const Colours& c = ColoursOf(this);
  painter.fillRect(rect(), c.Side);
  painter.fillRect(width() - 1, 0, 1, height(), c.Line);
}

}  // namespace grapplemont::desktop
