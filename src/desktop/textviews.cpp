#include "desktop/textviews.h"

#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <algorithm>

#include "desktop/look.h"
#include "ui/acts.h"

namespace grapplemont::desktop {

namespace {

/// Where the cursor stands once what cannot be kept is gone from in front of it.
int CursorAfter(const QString& typed, int cursor) {
  return static_cast<int>(Keep(typed.left(cursor)).Text.size());
}

}  // namespace

LineView::LineView(ui::TextBox& box, Stage& stage, QWidget* parent)
    : QLineEdit(parent), ControlView(box, stage), box_(box) {
  setTextMargins(Px(8), 0, Px(8), 0);
  setMinimumWidth(Px(120));
  if (box.MaxLength > 0) setMaxLength(box.MaxLength);
  setPlaceholderText(Shown(box.Hint));
  connect(this, &QLineEdit::textEdited, this, &LineView::Typed);
}

void LineView::Typed(const QString& text) {
  const Keepable kept = Keep(text);
  if (!kept.Refused.isEmpty()) OnStage().Hint(*this, RefusalOf(kept.Refused));
  if (const QString shown = Shown(kept.Text); shown != text) {
    const int cursor = CursorAfter(text, cursorPosition());
    setText(shown);
    setCursorPosition(cursor);
  }
  if (kept.Text != box_.Text.Get()) Do(ui::Type, std::string_view(kept.Text));
}

void LineView::Show() {
  setPlaceholderText(Shown(box_.Hint));
  const QString text = Shown(box_.Text.Get());
  if (text == this->text()) return;
  const int cursor = cursorPosition();
  setText(text);
  if (hasFocus()) setCursorPosition(cursor);
}

void LineView::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (event->reason() == Qt::OtherFocusReason) selectAll();
}

NotesView::NotesView(ui::TextBox& box, Stage& stage, QWidget* parent)
    : QPlainTextEdit(parent), ControlView(box, stage), box_(box) {
  setTabChangesFocus(true);
  document()->setDocumentMargin(Px(10));
  setPlaceholderText(Shown(box.Hint));
  setMinimumHeight(Px(96));
  viewport()->setAutoFillBackground(false);
  connect(this, &QPlainTextEdit::textChanged, this, &NotesView::Typed);
}

void NotesView::Put(const QString& text, int cursor) {
  showing_ = true;
  setPlainText(text);
  QTextCursor place = textCursor();
  place.setPosition(std::min(cursor, static_cast<int>(text.size())));
  setTextCursor(place);
  showing_ = false;
}

void NotesView::Typed() {
  if (showing_) return;
  const QString text = toPlainText();
  Keepable kept = Keep(text);
  if (!kept.Refused.isEmpty()) OnStage().Hint(*this, RefusalOf(kept.Refused));
  if (box_.MaxLength > 0)
    kept.Text.resize(std::min(kept.Text.size(), static_cast<std::size_t>(box_.MaxLength)));
  if (const QString shown = Shown(kept.Text); shown != text)
    Put(shown, CursorAfter(text, textCursor().position()));
  if (kept.Text != box_.Text.Get()) Do(ui::Type, std::string_view(kept.Text));
}

void NotesView::Show() {
  const QString text = Shown(box_.Text.Get());
  if (text != toPlainText()) Put(text, textCursor().position());
}

/// Enter makes a line here; with Ctrl it goes on to the page.
void NotesView::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if ((enter && event->modifiers().testFlag(Qt::ControlModifier)) || event->key() == Qt::Key_Escape)
    return event->ignore();
  QPlainTextEdit::keyPressEvent(event);
}

namespace {

constexpr int kWidest = 520;    // a line that may still stand alone
constexpr int kUnbroken = 190;  // a text as short as this is never broken

}  // namespace

WrappedLabel::WrappedLabel(QWidget* parent, const QString& text) : QLabel(text, parent) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setFont(TextFont());
}

int WrappedLabel::NaturalWidth() const {
  int widest = 0;
  for (const QString& line : text().split('\n'))
    widest = std::max(widest, fontMetrics().horizontalAdvance(line));
  return widest + 2;
}

QSize WrappedLabel::sizeHint() const {
  const int width = std::min(NaturalWidth(), Px(kWidest));
  return {width, heightForWidth(width)};
}

QSize WrappedLabel::minimumSizeHint() const {
  return {std::min(NaturalWidth(), Px(kUnbroken)), fontMetrics().height()};
}

LabelView::LabelView(ui::Label& label, Stage& stage, QWidget* parent)
    : WrappedLabel(parent), ControlView(label, stage), label_(label) {}

QString WithTrend(const ui::Label& label) {
  const QString text = Shown(label.Text.Get());
  if (label.Trend == 0) return text;
  return text + (label.Trend > 0 ? QStringLiteral(" \u25B2") : QStringLiteral(" \u25BC"));
}

void SetInk(QWidget& label, const QColor& colour) {
  QPalette palette = label.palette();
  palette.setColor(QPalette::Text, colour);
  label.setForegroundRole(QPalette::Text);
  label.setPalette(palette);
}

void LabelView::SetUsual(ui::Tone tone) {
  usual_ = tone;
  Colour();
}

void LabelView::Colour() {
  const ui::Tone tone = label_.Colour.Get();
  SetInk(*this, TextColour(ColoursOf(this), tone == ui::Tone::Plain ? usual_ : tone));
}

void LabelView::Show() {
  setText(WithTrend(label_));
  Colour();
  if (OnStage().Desk().LinksIn(label_.Text.Get()).empty()) {
    unsetCursor();
  } else {
    setCursor(Qt::PointingHandCursor);
  }
}

/// A click opens the page of the name in the text; several names are offered.
void LabelView::mouseReleaseEvent(QMouseEvent* event) {
  const std::string text = label_.Text.Get();
  const auto links = OnStage().Desk().LinksIn(text);
  if (links.empty() || event->button() != Qt::LeftButton)
    return WrappedLabel::mouseReleaseEvent(event);
  if (links.size() == 1) return Follow(links.front().Open);
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const ui::Link& link : links)
    menu->addAction("Open " + Shown(text.substr(link.From, link.Length)), this,
                    [this, open = link.Open] { Follow(open); });
  menu->popup(event->globalPosition().toPoint());
}

}  // namespace grapplemont::desktop
