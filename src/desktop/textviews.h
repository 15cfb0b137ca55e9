#pragma once

#include <QLabel>
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

/// Plain text that breaks where its room ends, and is as wide as its words where it may be.
class WrappedLabel : public QLabel {
 public:
  explicit WrappedLabel(QWidget* parent, const QString& text = {});
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 private:
  int NaturalWidth() const;
};

class LabelView : public WrappedLabel, public ControlView {
 public:
  LabelView(ui::Label& label, Stage& stage, QWidget* parent);
  QWidget* Widget() override { return this; }
  /// The colour of a label whose tone is plain.
  void SetUsual(ui::Tone tone);

 protected:
  void Show() override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void Colour();
  ui::Label& label_;
  ui::Tone usual_ = ui::Tone::Plain;
};

/// The text with its trend's arrow.
QString WithTrend(const ui::Label& label);
/// Gives a label's words a colour of the set that it belongs to.
void SetInk(QWidget& label, const QColor& colour);

}  // namespace grapplemont::desktop
