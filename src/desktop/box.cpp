#include "desktop/box.h"

#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "desktop/spoken.h"
#include "desktop/textviews.h"

namespace grapplemont::desktop {

namespace {

constexpr int kLeastWidth = 320, kLineWidth = 360;
constexpr int kLinePlace = 2;  // below title and text
constexpr int kLinesThatScroll = 16;

}  // namespace

MessageBox::MessageBox(QWidget* ground, const QString& title, const QString& text)
    : Veil(ground),
      rows_(NewLayout<QVBoxLayout>(&Sheet(), 8, {20, 18, 20, 16})),
      foot_(NewLayout<QHBoxLayout>(nullptr, 12)) {
  setObjectName("box");
  setAccessibleName(title);
  setAccessibleDescription(text);
  auto* heading = new WrappedLabel(&Sheet(), title, TextFont(15, QFont::DemiBold));
  heading->setObjectName("boxtitle");
  heading->setMinimumWidth(Px(kLeastWidth));
  auto* words = new WrappedLabel(&Sheet(), text);
  words->setObjectName("boxtext");
  rows_->addWidget(heading);
  if (text.count(u'\n') < kLinesThatScroll) {
    rows_->addWidget(words);
  } else {
    scroller_ = new BareScroller(&Sheet());
    scroller_->setObjectName("boxscroller");
    scroller_->setWidgetResizable(true);
    scroller_->Hold(words);
    rows_->addWidget(scroller_, 1);
  }
  rows_->addSpacing(Px(8));
  rows_->addLayout(foot_);
  foot_->addStretch(1);
}

void MessageBox::AddButton(const QString& caption, int answer, bool usual) {
  auto* button = new PushButton(&Sheet(), caption);
  button->setObjectName("box" + caption.toLower());
  button->SetLeast(84, 32);
  button->SetGold(usual);
  button->SetEnter(usual);
  connect(button, &QAbstractButton::clicked, this, [this, answer] { Answer(answer); });
  foot_->addWidget(button);
  choices_.push_back(button);
  if (usual) usual_ = button;
}

void MessageBox::AddLine(const QString& offered, Stage& stage) {
  line_ = NewLine(&Sheet(), "boxline", offered);
  line_->setMinimumWidth(Px(kLineWidth));
  connect(line_, &QLineEdit::textEdited, this, [this, &stage] { KeepTyped(*line_, stage); });
  rows_->insertSpacing(kLinePlace, Px(4));
  rows_->insertWidget(kLinePlace + 1, line_);
  line_->setAccessibleName(accessibleDescription());
}

std::optional<int> MessageBox::Run() {
  PlaceCard();
  show();
  raise();
  Announce(*this);
  PlaceCard();
  if (line_) {
    line_->setFocus(Qt::OtherFocusReason);
    line_->selectAll();
  } else {
    usual_->setFocus(Qt::OtherFocusReason);  // the arrows start from the answer that Enter gives
  }
  loop_.exec();
  hide();
  return answer_;
}

void MessageBox::Answer(std::optional<int> answer) {
  answer_ = answer;
  loop_.quit();
}

PushButton& MessageBox::Chosen() const {
  for (PushButton* choice : choices_)
    if (choice == window()->focusWidget()) return *choice;
  return *usual_;
}

bool MessageBox::focusNextPrevChild(bool next) {
  const bool moved = Veil::focusNextPrevChild(next);
  for (PushButton* choice : choices_) {
    choice->SetGold(choice == &Chosen());
    choice->SetEnter(choice == &Chosen());
  }
  return moved;
}

/// "Y" answers like a click on "Yes".
void MessageBox::PressLetter(const QString& letter) {
  if (letter.isEmpty() || line_) return;
  for (PushButton* choice : choices_)
    if (choice->text().startsWith(letter, Qt::CaseInsensitive)) return choice->click();
}

/// A long text goes by the keys that any page goes by.
bool MessageBox::Scroll(int key) {
  using Slider = QAbstractSlider;
  constexpr std::pair<int, Slider::SliderAction> kSteps[] = {
      {Qt::Key_Up, Slider::SliderSingleStepSub},   {Qt::Key_Down, Slider::SliderSingleStepAdd},
      {Qt::Key_PageUp, Slider::SliderPageStepSub}, {Qt::Key_PageDown, Slider::SliderPageStepAdd},
      {Qt::Key_Home, Slider::SliderToMinimum},     {Qt::Key_End, Slider::SliderToMaximum}};
  if (!scroller_) return false;
  const auto* const step =
      std::ranges::find(kSteps, key, &std::pair<int, Slider::SliderAction>::first);
  if (step == std::end(kSteps)) return false;
  scroller_->verticalScrollBar()->triggerAction(step->second);
  return true;
}

void MessageBox::keyPressEvent(QKeyEvent* event) {
  event->accept();
  const int key = event->key();
  if (Scroll(key) || event->isAutoRepeat()) return;
  if (key == Qt::Key_Escape) return Dismiss();
  if (IsEnter(key)) return TakeUsual();
  if (key == Qt::Key_Left || key == Qt::Key_Right) {
    focusNextPrevChild(key == Qt::Key_Right);
  } else {
    PressLetter(event->text());
  }
}

}  // namespace grapplemont::desktop
