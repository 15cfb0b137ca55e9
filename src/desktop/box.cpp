#include "desktop/box.h"

#include <QHBoxLayout>
#include <QKeyEvent>

#include "desktop/controlview.h"
#include "desktop/look.h"
#include "desktop/textviews.h"
#include "desktop/window.h"

namespace grapplemont::desktop {

namespace {

constexpr int kLeastWidth = 320;

}  // namespace

MessageBox::MessageBox(QWidget* ground, const QString& title, const QString& text)
    : Veil(ground), place_(new QWidget(&Sheet())) {
  setObjectName("box");
  auto* rows = new QVBoxLayout(&Sheet());
  rows->setContentsMargins(Px(20), Px(18), Px(20), Px(16));
  rows->setSpacing(Px(8));
  auto* heading = new WrappedLabel(&Sheet(), title);
  heading->setObjectName("boxtitle");
  heading->setFont(TextFont(15, QFont::DemiBold));
  heading->setMinimumWidth(Px(kLeastWidth));
  auto* words = new WrappedLabel(&Sheet(), text);
  words->setObjectName("boxtext");
  auto* line = new QVBoxLayout(place_);
  line->setContentsMargins(0, Px(4), 0, 0);
  auto* foot = new QHBoxLayout;
  foot->setSpacing(Px(12));
  foot->addStretch(1);
  rows->addWidget(heading);
  rows->addWidget(words);
  rows->addWidget(place_);
  rows->addSpacing(Px(8));
  rows->addLayout(foot);
  foot_ = foot;
  place_->hide();
}

void MessageBox::AddButton(const QString& caption, int answer, bool usual) {
  auto* button = new PushButton(&Sheet(), caption);
  button->setObjectName("box" + caption.toLower());
  button->SetLeast(84, 32);
  button->SetGold(usual);
  button->SetEnter(usual);
  connect(button, &QAbstractButton::clicked, this, [this, answer] { Answer(answer); });
  foot_->addWidget(button);
  choices_.push_back({button, answer, usual});
}

void MessageBox::AddLine(const QString& offered, Stage& stage) {
  line_ = new QLineEdit(offered, place_);
  line_->setObjectName("boxline");
  line_->setTextMargins(Px(8), 0, Px(8), 0);
  line_->setMinimumWidth(Px(360));
  connect(line_, &QLineEdit::textEdited, this, [this, &stage](const QString& text) {
    const Keepable kept = Keep(text);
    if (!kept.Refused.isEmpty()) stage.Hint(*line_, RefusalOf(kept.Refused));
    if (const QString shown = Shown(kept.Text); shown != text) {
      const auto cursor = Keep(text.left(line_->cursorPosition())).Text.size();
      line_->setText(shown);
      line_->setCursorPosition(static_cast<int>(cursor));
    }
  });
  place_->layout()->addWidget(line_);
  place_->show();
}

std::optional<int> MessageBox::Run() {
  PlaceCard();
  show();
  raise();
  PlaceCard();
  if (line_) {
    line_->setFocus(Qt::OtherFocusReason);
    line_->selectAll();
  } else {
    setFocus(Qt::OtherFocusReason);
    // The arrows start from the answer that Enter gives.
    for (const Choice& choice : choices_)
      if (choice.Usual) choice.Press->setFocus(Qt::OtherFocusReason);
  }
  loop_.exec();
  hide();
  return answer_;
}

void MessageBox::Answer(int answer) {
  answer_ = answer;
  loop_.quit();
}

void MessageBox::Dismiss() {
  answer_.reset();
  loop_.quit();
}

/// "Y" answers like a click on "Yes".
void MessageBox::PressLetter(const QString& letter) {
  if (letter.isEmpty() || line_) return;
  for (const Choice& choice : choices_)
    if (choice.Press->text().startsWith(letter, Qt::CaseInsensitive)) return choice.Press->click();
}

void MessageBox::keyPressEvent(QKeyEvent* event) {
  event->accept();
  if (event->isAutoRepeat()) return;
  switch (event->key()) {
    case Qt::Key_Escape:
      return Dismiss();
    case Qt::Key_Return:
    case Qt::Key_Enter:
      for (const Choice& choice : choices_)
        if (choice.Press == window()->focusWidget()) return choice.Press->click();
      for (const Choice& choice : choices_)
        if (choice.Usual) return choice.Press->click();
      return;
    case Qt::Key_Left:
    case Qt::Key_Right:
      focusNextPrevChild(event->key() == Qt::Key_Right);
      return;
    default:
      return PressLetter(event->text());
  }
}

void WindowDesk::Say(const std::string& title, const std::string& text) {
  if (window_) window_->Say(title, text);
}

bool WindowDesk::Ask(const std::string& title, const std::string& text, ui::Default answer) {
  return window_ && window_->Ask(title, text, answer);
}

std::string WindowDesk::Prompt(const std::string& title, const std::string& text,
                               const std::string& offered) {
  return window_ ? window_->Prompt(title, text, offered) : std::string();
}

void WindowDesk::Repaint() {
  if (window_) window_->RepaintNow();
}

}  // namespace grapplemont::desktop
