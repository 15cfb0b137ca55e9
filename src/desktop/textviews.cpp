#include "desktop/textviews.h"

#include <QKeyEvent>

#include "desktop/letters.h"
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

}  // namespace grapplemont::desktop
