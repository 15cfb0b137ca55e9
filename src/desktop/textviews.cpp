#include "desktop/textviews.h"

#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <algorithm>

#include "desktop/dates.h"
#include "desktop/views.h"
#include "desktop/wordswidth.h"
#include "ui/acts.h"

namespace grapplemont::desktop {

namespace {

/// What can be kept of a text; of letters that cannot it tells beside the widget.
std::string KeepOf(const QString& text, QWidget& widget, Stage& stage) {
  Keepable kept = Keep(text);
  if (!kept.Refused.isEmpty()) stage.Hint(widget, RefusalOf(kept.Refused));
  return std::move(kept.Text);
}

/// Where the cursor stands once what cannot be kept is gone from in front of it.
int CursorAfter(const QString& typed, int cursor) {
  return static_cast<int>(Keep(typed.left(cursor)).Text.size());
}

/// What does not fit is not written, which the player is told.
void SayFull(int most, QWidget& widget, Stage& stage) {
  stage.Hint(widget, QString("There is room for %1 characters.").arg(most));
}

/// A text box of one line.
class LineView : public ViewOf<QLineEdit, ui::TextBox> {
 public:
  LineView(ui::TextBox& box, Stage& stage, QWidget* parent) : ViewOf(box, stage, parent) {
    SetMargins(*this);
    setMinimumWidth(Px(120));
    if (box.MaxLength > 0) {
      setMaxLength(box.MaxLength);
      connect(this, &QLineEdit::inputRejected, this,
              [this] { SayFull(control_.MaxLength, *this, OnStage()); });
    }
    connect(this, &QLineEdit::textEdited, this, [this] {
      const std::string kept = KeepTyped(*this, OnStage());
      if (kept != control_.Text.Get()) Do(ui::Type, std::string_view(kept));
    });
  }
  /// As wide as the longest text that a field has room for, whatever stands in it now.
  QSize sizeHint() const override {
    constexpr int kMostLetters = 28, kSides = 24;
    const QSize usual = QLineEdit::sizeHint();
    if (control_.MaxLength == 0) return usual;
    const QString letters(std::min(control_.MaxLength, kMostLetters), u'n');
    return {WordsWidth(font(), letters) + Px(kSides), usual.height()};
  }

 protected:
  void Show() override {
    setPlaceholderText(Shown(control_.Hint));
    const QString text = Shown(control_.Text.Get());
    if (text == this->text()) return;
    const int cursor = cursorPosition();
    setText(text);
    setCursorPosition(hasFocus() ? cursor : 0);  // what is too long is seen from its beginning
  }
  bool event(QEvent* event) override {
    const bool cut = event->type() == QEvent::ToolTip &&
                     fontMetrics().horizontalAdvance(text()) > width() - Px(20);
    return TipWhatIsCut(*event, *this, text(), cut) || QLineEdit::event(event);
  }
  void focusInEvent(QFocusEvent* event) override {
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::OtherFocusReason) selectAll();
  }
};

constexpr int kBeside = 32;  // what stands beside the words of a box of many lines

/// A text box of many lines.
class NotesView : public ViewOf<QPlainTextEdit, ui::TextBox> {
 public:
  NotesView(ui::TextBox& box, Stage& stage, QWidget* parent) : ViewOf(box, stage, parent) {
    setTabChangesFocus(true);
    setProperty(kKeepsEnter, true);
    document()->setDocumentMargin(Px(10));
    setPlaceholderText(Shown(box.Hint));
    setMinimumHeight(Px(96));
    viewport()->setAutoFillBackground(false);
    connect(this, &QPlainTextEdit::textChanged, this, &NotesView::Typed);
  }

 protected:
  void Show() override {
    const QString text = Shown(control_.Text.Get());
    if (text != toPlainText()) Put(text, textCursor().position());
  }
  /// Lines end where they can be read, the bar stays at the edge.
  void resizeEvent(QResizeEvent* event) override {
    setViewportMargins(0, 0, std::max(0, width() - ReadableWidth() - Px(kBeside)), 0);
    QPlainTextEdit::resizeEvent(event);
  }
  /// Enter makes a line here; with Ctrl it goes on to the page.
  void keyPressEvent(QKeyEvent* event) override {
    if ((IsEnter(event->key()) && event->modifiers().testFlag(Qt::ControlModifier)) ||
        event->key() == Qt::Key_Escape)
      return event->ignore();
    QPlainTextEdit::keyPressEvent(event);
  }

 private:
  void Put(const QString& text, int cursor) {
    showing_ = true;
    setPlainText(text);
    QTextCursor place = textCursor();
    place.setPosition(std::min(cursor, static_cast<int>(text.size())));
    setTextCursor(place);
    showing_ = false;
  }

  void Typed() {
    if (showing_) return;
    const QString text = toPlainText();
    std::string kept = KeepOf(text, *this, OnStage());
    if (const int most = control_.MaxLength; most > 0 && std::ssize(kept) > most) {
      kept.resize(static_cast<std::size_t>(most));
      SayFull(most, *this, OnStage());
    }
    if (const QString shown = Shown(kept); shown != text)
      Put(shown, CursorAfter(text, textCursor().position()));
    if (kept != control_.Text.Get()) Do(ui::Type, std::string_view(kept));
  }

  bool showing_ = false;
};

}  // namespace

std::string KeepTyped(QLineEdit& line, Stage& stage) {
  const QString text = line.text();
  std::string kept = KeepOf(text, line, stage);
  if (const QString shown = Shown(kept); shown != text) {
    const int cursor = CursorAfter(text, line.cursorPosition());
    line.setText(shown);
    line.setCursorPosition(cursor);
  }
  return kept;
}

QString TrendSign(int trend) {
  if (trend == 0) return {};
  return trend > 0 ? QStringLiteral(" \u25B2") : QStringLiteral(" \u25BC");
}

void LabelView::SetUsual(ui::Tone tone) {
  usual_ = tone;
  Colour();
}

void LabelView::SetFacts() {
  facts_ = true;
  SetUsual(ui::Tone::Muted);
}

void LabelView::Colour() {
  const ui::Tone tone = control_.Colour.Get();
  SetInk(*this, TextColour(ColoursOf(this), tone == ui::Tone::Plain ? usual_ : tone));
}

void LabelView::Show() {
  QString words = Dated(control_.Text.Get());
  const bool isOpen = !words.isEmpty() && (words.back().isLetterOrNumber() || words.back() == '%');
  if (facts_ && isOpen) words += '.';
  setText(words + TrendSign(control_.Trend));
  Colour();
  if (OnStage().Desk().LinksIn(control_.Text.Get()).empty()) {
    unsetCursor();
  } else {
    setCursor(Qt::PointingHandCursor);
  }
}

/// A click opens the page of the name in the text; several names are offered.
void LabelView::mouseReleaseEvent(QMouseEvent* event) {
  const std::string text = control_.Text.Get();
  const auto links = OnStage().Desk().LinksIn(text);
  if (links.empty() || event->button() != Qt::LeftButton)
    return WrappedLabel::mouseReleaseEvent(event);
  if (links.size() == 1) return Follow(links.front().Open);
  QMenu* menu = NewMenu(this);
  for (const ui::Link& link : links)
    menu->addAction("Open " + Shown(text.substr(link.From, link.Length)), this,
                    [this, open = link.Open] { Follow(open); });
  menu->popup(event->globalPosition().toPoint());
}

ControlView* NewView(ui::Label& label, Stage& stage, QWidget* parent) {
  return new LabelView(label, stage, parent);
}

ControlView* NewView(ui::TextBox& box, Stage& stage, QWidget* parent) {
  if (box.MultiLine) return new NotesView(box, stage, parent);
  return new LineView(box, stage, parent);
}

}  // namespace grapplemont::desktop
