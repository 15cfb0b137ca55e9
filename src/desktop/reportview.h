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

 private:
  void FitBrief();

  ui::Report& report_;
};

}  // namespace grapplemont::desktop
