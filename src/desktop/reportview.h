#pragma once

#include <QTextEdit>

#include "desktop/controlview.h"

namespace grapplemont::desktop {

/// Long prose: a serif with wide lines.
class ReportView : public QTextEdit, public ControlView {
 public:
  ReportView(ui::Report& report, Stage& stage, QWidget* parent);
  QWidget* Widget() override { return this; }
  QSize sizeHint() const override;

 protected:
  void Show() override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void FitBrief();
  void Write(QTextCursor& cursor, const std::string& words, const QTextCharFormat& letters);
  /// The link under the mouse; nullptr for none.
  const ui::Link* LinkAt(const QMouseEvent& event) const;

  ui::Report& report_;
  std::vector<ui::Link> links_;  // of all paragraphs; an anchor's address is a place in here
  QPoint pressed_;
};

}  // namespace grapplemont::desktop
