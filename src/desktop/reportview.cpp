#include "desktop/reportview.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <cmath>

#include "desktop/look.h"

namespace grapplemont::desktop {

namespace {

using Style = ui::Report::Style;

constexpr double kLine = 26.2;  // from one line of prose to the next, in drawn pixels

QTextCharFormat LettersOf(Style style, const Colours& colours) {
  QTextCharFormat format;
  switch (style) {
    case Style::Heading:
      format.setFont(TextFont(22, QFont::Bold));
      break;
    case Style::Strong:
      format.setFont(TextFont(15, QFont::DemiBold));
      break;
    case Style::Muted:
    case Style::Line:
      format.setFont(TextFont());
      break;
    case Style::Body:
      format.setFont(ProseFont());
      break;
  }
  format.setForeground(style == Style::Muted ? colours.Muted : colours.Text);
  return format;
}

QTextBlockFormat BlockOf(Style style, bool first) {
  QTextBlockFormat format;
  const bool prose = style == Style::Body;
  if (prose) {
    format.setLineHeight(Px(kLine), QTextBlockFormat::FixedHeight);
  } else {
    format.setLineHeight(120, QTextBlockFormat::ProportionalHeight);
  }
  format.setTopMargin(first ? 0
                            : Px(style == Style::Heading  ? 14
                                 : style == Style::Strong ? 8
                                                          : 0));
  format.setBottomMargin(Px(prose ? 6 : 4));
  return format;
}

}  // namespace

ReportView::ReportView(ui::Report& report, Stage& stage, QWidget* parent)
    : QTextEdit(parent), ControlView(report, stage), report_(report) {
  setReadOnly(true);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  viewport()->setAutoFillBackground(false);
  viewport()->setMouseTracking(true);
  document()->setDocumentMargin(0);
  if (report.Brief)
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  else
    setMinimumHeight(Px(96));
}

QSize ReportView::sizeHint() const {
  return {Px(420), Px(240)};
}

void ReportView::Show() {
  clear();
  links_.clear();
  const Colours& colours = ColoursOf(this);
  QTextCursor cursor(document());
  bool first = true;
  for (const auto& paragraph : report_.Paragraphs()) {
    const QTextBlockFormat block = BlockOf(paragraph.As, first);
    const QTextCharFormat letters = LettersOf(paragraph.As, colours);
    if (first) {
      cursor.setBlockFormat(block);
      cursor.setCharFormat(letters);
    } else {
      cursor.insertBlock(block, letters);
    }
    Write(cursor, paragraph.Words, letters);
    first = false;
  }
  moveCursor(QTextCursor::Start);  // a size that changes later keeps the cursor in sight
  verticalScrollBar()->setValue(0);
  FitBrief();
}

/// Names that lead to a page stand out and can be clicked.
void ReportView::Write(QTextCursor& cursor, const std::string& words,
                       const QTextCharFormat& letters) {
  const std::string_view text = words;
  std::size_t written = 0;
  for (ui::Link& link : OnStage().Desk().LinksIn(text)) {
    QTextCharFormat linked = letters;
    linked.setAnchor(true);
    linked.setAnchorHref(QString::number(links_.size()));
    linked.setForeground(ColoursOf(this).Blue);
    cursor.insertText(Shown(text.substr(written, link.From - written)), letters);
    cursor.insertText(Shown(text.substr(link.From, link.Length)), linked);
    written = link.From + link.Length;
    links_.push_back(std::move(link));
  }
  cursor.insertText(Shown(text.substr(written)), letters);
}

const ui::Link* ReportView::LinkAt(const QMouseEvent& event) const {
  const QString address = anchorAt(event.position().toPoint());
  const auto place = static_cast<std::size_t>(address.toUInt());
  return address.isEmpty() || place >= links_.size() ? nullptr : &links_[place];
}

void ReportView::mouseMoveEvent(QMouseEvent* event) {
  QTextEdit::mouseMoveEvent(event);
  viewport()->setCursor(LinkAt(*event) ? Qt::PointingHandCursor : Qt::IBeamCursor);
}

void ReportView::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->position().toPoint();
  QTextEdit::mousePressEvent(event);
}

/// A click follows a link; a drag over it marks its words.
void ReportView::mouseReleaseEvent(QMouseEvent* event) {
  QTextEdit::mouseReleaseEvent(event);
  const int way = (event->position().toPoint() - pressed_).manhattanLength();
  const ui::Link* link = LinkAt(*event);
  if (!link || event->button() != Qt::LeftButton || way >= QApplication::startDragDistance())
    return;
  Follow(link->Open);
}

void ReportView::FitBrief() {
  if (!report_.Brief) return;
  document()->setTextWidth(viewport()->width());
  setFixedHeight(static_cast<int>(std::ceil(document()->size().height())));
}

void ReportView::resizeEvent(QResizeEvent* event) {
  QTextEdit::resizeEvent(event);
  FitBrief();
}

/// Arrows and pages scroll; Enter and Escape are the screen's.
void ReportView::keyPressEvent(QKeyEvent* event) {
  QScrollBar* bar = verticalScrollBar();
  switch (event->key()) {
    case Qt::Key_Down:
      return bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    case Qt::Key_Up:
      return bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
    case Qt::Key_Space:
      if (bar->value() >= bar->maximum()) return event->ignore();  // read to its end
      return bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    case Qt::Key_PageDown:
      return bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    case Qt::Key_PageUp:
      return bar->triggerAction(QAbstractSlider::SliderPageStepSub);
    case Qt::Key_Home:
      return bar->setValue(bar->minimum());
    case Qt::Key_End:
      return bar->setValue(bar->maximum());
    default:
      if (event->matches(QKeySequence::Copy)) return copy();
      event->ignore();
  }
}

}  // namespace grapplemont::desktop
