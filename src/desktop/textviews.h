#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "desktop/controlview.h"

namespace grapplemont::desktop {

/// A text box of one line.
class LineView : public QLineEdit, public ControlView {
 public:
  LineView(ui::TextBox& box, Stage& stage, QWidget* parent);
  QWidget* Widget() override { return this; }

 protected:
  void Show() override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void Typed(const QString& text);
  ui::TextBox& box_;
};

/// A text box of many lines.
class NotesView : public QPlainTextEdit, public ControlView {
 public:
  NotesView(ui::TextBox& box, Stage& stage, QWidget* parent);
  QWidget* Widget() override { return this; }

 protected:
  void Show() override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Typed();
  void Put(const QString& text, int cursor);
  ui::TextBox& box_;
  bool showing_ = false;
};

}  // namespace grapplemont::desktop
