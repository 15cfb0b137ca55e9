#pragma once

#include <QEventLoop>
#include <optional>

#include "desktop/button.h"
#include "desktop/card.h"
#include "desktop/pieces.h"

namespace grapplemont::desktop {

/// A question or a message over the window that waits for its answer.
class MessageBox : public Veil {
 public:
  MessageBox(QWidget* ground, const QString& title, const QString& text);
  /// Enter means the gold button: the usual one, until keys have led to another. Escape means the
  /// answer of a dismissal.
  void AddButton(const QString& caption, int answer, bool usual);
  void AddLine(const QString& offered, Stage& stage);
  /// Waits; the answer of the button that was pressed, nothing when the box was dismissed.
  std::optional<int> Run();
  void Dismiss() { Answer({}); }
  /// Does what Enter does.
  void TakeUsual() { Chosen().click(); }
  QString Line() const { return line_ ? line_->text() : QString(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  void Answer(std::optional<int> answer);
  /// What Enter presses.
  PushButton& Chosen() const;
  void PressLetter(const QString& letter);
  bool Scroll(int key);

  QVBoxLayout* rows_;
  QHBoxLayout* foot_;
  BareScroller* scroller_ = nullptr;  // of a long text
  QLineEdit* line_ = nullptr;
  std::vector<PushButton*> choices_;
  PushButton* usual_ = nullptr;
  std::optional<int> answer_;
  QEventLoop loop_;
};

}  // namespace grapplemont::desktop
