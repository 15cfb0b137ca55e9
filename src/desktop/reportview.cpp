#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>
#include <algorithm>
#include <cmath>
#include <map>

#include "desktop/housestyle.h"
#include "desktop/pieces.h"
#include "desktop/spoken.h"
#include "desktop/views.h"
#include "desktop/wordswidth.h"

namespace grapplemont::desktop {

namespace {

using Style = ui::Report::Style;

constexpr double kLine = 26.2;  // from one line of prose to the next, in drawn pixels
constexpr int kAnyLine = 24;    // the same, of lines of any style
// In a line of fewer letters long prose would be a column of broken words.
constexpr int kLeastLetters = 14;

QTextCharFormat LettersOf(Style style, const Colours& colours) {
  QTextCharFormat format;
  format.setFont(style == Style::Body      ? ProseFont()
                 : style == Style::Heading ? TextFont(22, QFont::Bold)
                 : style == Style::Strong  ? TextFont(15, QFont::DemiBold)
                                           : TextFont());
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
                            : Px(style == Style::Heading  ? 20
                                 : style == Style::Strong ? 16
                                                          : 0));
  format.setBottomMargin(Px(prose ? 6 : 4));
  return format;
}

/// Another window or a menu has the keyboard for a while.
bool IsMeanwhile(const QFocusEvent& event) {
  return event.reason() == Qt::ActiveWindowFocusReason || event.reason() == Qt::PopupFocusReason;
}

/// Long prose: a serif with wide lines.
class ReportView : public ViewOf<QTextEdit, ui::Report> {
 public:
  ReportView(ui::Report& report, Stage& stage, QWidget* parent);
  QSize sizeHint() const override { return {Px(420), control_.Room * Px(kAnyLine)}; }

 protected:
  void Show() override;
  bool HasWords() const override { return !control_.Brief || !control_.Text->empty(); }
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void FitWords();
  void ShowGrowth();
  /// The last foot of a line at or above this height of the document, 0 for none, and the first at
  /// or below it.
  int FootAbove(int y) const { return FootsAround(y).first; }
  int FootBelow(int y) const { return FootsAround(y).second; }
  std::pair<int, int> FootsAround(int y) const;
  /// Where what is seen of whole lines ends in the viewport.
  int WholeFoot() const;
  /// Has the scroll bar lead from one line to another.
  void KeepLinesWhole();
  void ScrollTo(int value);
  void Write(QTextCursor& cursor, const ui::Report::Paragraph& paragraph,
             const QTextCharFormat& letters);
  void WriteNames(QTextCursor& cursor, std::string_view text, const QTextCharFormat& letters);
  /// Marks the next link, or the one before, as the keyboard's.
  void StepLink(int by);
  /// The link under the mouse; nullptr for none.
  const ui::Link* LinkAt(const QMouseEvent& event) const;

  /// Of all paragraphs, by where they stand in the document; an anchor's address is a place in
  /// here.
  std::vector<ui::Link> links_;
  int marked_ = -1;  // the place of the keyboard's
  QPoint pressed_;
  bool isReached_ = false;  // by Tab, so that it shows where the keyboard is
  QString words_;           // of a report that grows, as they stood before
  int top_ = 0;             // where the first line that is seen begins in the document
};

ReportView::ReportView(ui::Report& report, Stage& stage, QWidget* parent)
    : ViewOf(report, stage, parent) {
  setReadOnly(true);
  document()->setUndoRedoEnabled(false);
  setLineWrapMode(QTextEdit::FixedPixelWidth);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::StrongFocus);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  viewport()->setAutoFillBackground(false);
  viewport()->setMouseTracking(true);
  document()->setDocumentMargin(0);
  if (report.Brief)
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  else
    setMinimumSize(WordsWidth(ProseFont(), QString(kLeastLetters, 'n')), Px(96));
  KeepLinesWhole();
}

std::pair<int, int> ReportView::FootsAround(int y) const {
  const int at = document()->documentLayout()->hitTest(QPointF(0, y), Qt::FuzzyHit);
  const QTextBlock hit = document()->findBlock(std::max(0, at));
  int above = 0;
  for (QTextBlock block = hit.previous().isValid() ? hit.previous() : hit; block.isValid();
       block = block.next()) {
    const double top = document()->documentLayout()->blockBoundingRect(block).top();
    for (int line = 0; line < block.layout()->lineCount(); ++line) {
      const QRectF words = block.layout()->lineAt(line).rect();
      const int foot = static_cast<int>(std::ceil(top + words.bottom()));
      if (foot == y) return {y, y};
      if (foot > y) return {above, foot};
      above = foot;
    }
  }
  return {above, std::max(above, y)};
}

int ReportView::WholeFoot() const {
  const int top = verticalScrollBar()->value(), high = viewport()->height();
  const int foot = FootAbove(top + high) - top;
  return foot > 0 ? std::min(foot, high) : high;  // a line may be higher than all of it
}

/// A page ends with a whole line, and so the next begins with the one after it, up to the last.
void ReportView::KeepLinesWhole() {
  QScrollBar* const bar = verticalScrollBar();
  connect(bar, &QScrollBar::rangeChanged, this, [this, bar](int, int most) {
    if (most > 0) bar->setMaximum(FootBelow(most));
  });
  connect(bar, &QScrollBar::valueChanged, this, &ReportView::ScrollTo);
}

void ReportView::ScrollTo(int value) {
  int line = value;
  if (value > top_) line = FootAbove(value) > top_ ? FootAbove(value) : FootBelow(value);
  if (value < top_ && value > 0)
    line = FootBelow(value) < top_ ? FootBelow(value) : FootAbove(value);
  top_ = std::min(line, verticalScrollBar()->maximum());
  if (top_ != value) verticalScrollBar()->setValue(top_);
}

/// Where a line stood cut, its pieces are not to be moved about.
void ReportView::scrollContentsBy(int dx, int dy) {
  QTextEdit::scrollContentsBy(dx, dy);
  viewport()->update();
}

void ReportView::Show() {
  clear();
  links_.clear();
  marked_ = -1;
  const Colours& colours = ColoursOf(this);
  QTextCursor cursor(document());
  cursor.beginEditBlock();  // it is laid out once, when all is written
  bool first = true;
  for (const auto& paragraph : control_.Paragraphs()) {
    const QTextBlockFormat block = BlockOf(paragraph.As, first);
    const QTextCharFormat letters = LettersOf(paragraph.As, colours);
    if (first) {
      cursor.setBlockFormat(block);
      cursor.setCharFormat(letters);
    } else {
      cursor.insertBlock(block, letters);
    }
    Write(cursor, paragraph, letters);
    first = false;
  }
  // Letters that have been shaped are not shaped again for another width, nor to be painted.
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
    block.layout()->setCacheEnabled(true);
  cursor.endEditBlock();
  moveCursor(QTextCursor::Start);  // a size that changes later keeps the cursor in sight
  verticalScrollBar()->setValue(0);
  FitWords();
  if (control_.Grows) ShowGrowth();
}

/// The last words stay in sight, and a screen reader hears those that are new.
void ReportView::ShowGrowth() {
  const QString words = Shown(control_.Text.Get());
  const auto [before, now] = std::ranges::mismatch(words_, words);
  const QString added = words.sliced(now - words.begin()).trimmed();
  words_ = words;
  verticalScrollBar()->setValue(verticalScrollBar()->maximum());
  setAccessibleDescription(added);
  if (!added.isEmpty()) Announce(*this);
}

/// What leads somewhere can be clicked; it looks like all else.
void ReportView::Write(QTextCursor& cursor, const ui::Report::Paragraph& paragraph,
                       const QTextCharFormat& letters) {
  const std::string_view words = paragraph.Words;
  std::size_t written = 0;
  for (const ui::Report::Lead& lead : paragraph.Leads) {
    WriteNames(cursor, words.substr(written, lead.From - written), letters);
    QTextCharFormat leads = letters;
    leads.setAnchor(true);
    leads.setAnchorHref(QString::number(links_.size()));
    const auto from = static_cast<std::size_t>(cursor.position());
    links_.push_back({from, lead.Length, [this, key = lead.Key] { control_.OnLead(key); }});
    WriteNames(cursor, words.substr(lead.From, lead.Length), leads);
    written = lead.From + lead.Length;
  }
  WriteNames(cursor, words.substr(written), letters);
}

/// Names that lead to a page stand out and can be clicked.
void ReportView::WriteNames(QTextCursor& cursor, std::string_view text,
                            const QTextCharFormat& letters) {
  std::size_t written = 0;
  for (ui::Link& link : OnStage().Desk().LinksIn(text)) {
    QTextCharFormat linked = letters;
    linked.setAnchor(true);
    linked.setAnchorHref(QString::number(links_.size()));
    linked.setForeground(ColoursOf(this).Blue);
    cursor.insertText(Shown(text.substr(written, link.From - written)), letters);
    written = link.From + link.Length;
    const std::string_view name = text.substr(link.From, link.Length);
    link.From = static_cast<std::size_t>(cursor.position());
    cursor.insertText(Shown(name), linked);
    links_.push_back(std::move(link));
  }
  cursor.insertText(Shown(text.substr(written)), letters);
}

const ui::Link* ReportView::LinkAt(const QMouseEvent& event) const {
  const QString address = anchorAt(event.position().toPoint());
  const auto place = static_cast<std::size_t>(address.toUInt());
  const bool isSeen = event.position().y() < WholeFoot();
  return address.isEmpty() || !isSeen || place >= links_.size() ? nullptr : &links_[place];
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

/// Lines end where they can still be read.
void ReportView::FitWords() {
  const int wide = std::min(viewport()->width(), ReadableWidth());
  if (lineWrapColumnOrWidth() != wide) setLineWrapColumnOrWidth(wide);
  if (!control_.Brief) return;
  document()->setTextWidth(wide);
  setFixedHeight(static_cast<int>(std::ceil(document()->size().height())));
}

/// The end of what grows stays in sight also where its room shrinks.
void ReportView::resizeEvent(QResizeEvent* event) {
  QScrollBar& bar = *verticalScrollBar();
  const bool wasAtEnd = control_.Grows && bar.value() == bar.maximum();
  QTextEdit::resizeEvent(event);
  FitWords();
  if (wasAtEnd) bar.setValue(bar.maximum());
}

void ReportView::focusInEvent(QFocusEvent* event) {
  const Qt::FocusReason reason = event->reason();
  if (!IsMeanwhile(*event))
    isReached_ = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason;
  QTextEdit::focusInEvent(event);
  viewport()->update();
}

void ReportView::focusOutEvent(QFocusEvent* event) {
  isReached_ = isReached_ && IsMeanwhile(*event);
  QTextEdit::focusOutEvent(event);
  viewport()->update();
}

void ReportView::paintEvent(QPaintEvent* event) {
  QPaintEvent whole(event->region() & QRect(0, 0, viewport()->width(), WholeFoot()));
  if (!whole.rect().isEmpty()) QTextEdit::paintEvent(&whole);
  if (!isReached_) return;
  QPainter painter(viewport());
  DrawFocus(painter, viewport()->rect(), Px(3), palette());
}

void ReportView::StepLink(int by) {
  const auto count = static_cast<int>(links_.size());
  const int before = marked_ < 0 && by < 0 ? 0 : marked_;
  marked_ = (before + by + count) % count;
  const ui::Link& link = links_[static_cast<std::size_t>(marked_)];
  QTextCursor cursor(document());
  cursor.setPosition(static_cast<int>(link.From));
  cursor.setPosition(static_cast<int>(link.From + link.Length), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  ensureCursorVisible();
  QScrollBar* const bar = verticalScrollBar();
  if (cursorRect().bottom() >= WholeFoot())
    bar->setValue(FootBelow(bar->value() + cursorRect().bottom() + 1 - viewport()->height()));
  setAccessibleDescription(cursor.selectedText());
  Announce(*this);
}

/// Arrows and pages scroll, those to the sides go from link to link; Enter and Escape are the
/// screen's.
void ReportView::keyPressEvent(QKeyEvent* event) {
  if (marked_ >= 0 && IsEnter(event->key()) && event->modifiers().testFlag(Qt::ControlModifier))
    return Follow(links_[static_cast<std::size_t>(marked_)].Open);
  const bool aside = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right;
  if (aside && event->modifiers() == Qt::NoModifier && !links_.empty())
    return StepLink(event->key() == Qt::Key_Left ? -1 : 1);
  static const std::map<int, QAbstractSlider::SliderAction> kScrolls = {
      {Qt::Key_Down, QAbstractSlider::SliderSingleStepAdd},
      {Qt::Key_Up, QAbstractSlider::SliderSingleStepSub},
      {Qt::Key_Space, QAbstractSlider::SliderPageStepAdd},
      {Qt::Key_PageDown, QAbstractSlider::SliderPageStepAdd},
      {Qt::Key_PageUp, QAbstractSlider::SliderPageStepSub},
      {Qt::Key_Home, QAbstractSlider::SliderToMinimum},
      {Qt::Key_End, QAbstractSlider::SliderToMaximum}};
  QScrollBar* bar = verticalScrollBar();
  const bool isRead = event->key() == Qt::Key_Space && bar->value() >= bar->maximum();
  if (const auto scroll = kScrolls.find(event->key()); scroll != kScrolls.end() && !isRead)
    return bar->triggerAction(scroll->second);
  if (event->matches(QKeySequence::Copy)) return copy();
  event->ignore();
}

}  // namespace

ControlView* NewView(ui::Report& report, Stage& stage, QWidget* parent) {
  return new ReportView(report, stage, parent);
}

}  // namespace grapplemont::desktop
