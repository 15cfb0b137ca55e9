#include "desktop/pieces.h"

#include <QHelpEvent>
#include <QToolTip>
#include <algorithm>

#include "desktop/housestyle.h"
#include "desktop/wordswidth.h"

namespace grapplemont::desktop {

namespace {

constexpr int kWidest = 520;    // a line that may still stand alone
constexpr int kUnbroken = 190;  // a text as short as this is never broken

}  // namespace

WrappedLabel::WrappedLabel(QWidget* parent, const QString& text, const QFont& font)
    : QLabel(text, parent), unbroken_(kUnbroken) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setFont(font);
}

int WrappedLabel::NaturalWidth() const {
  int widest = 0;
  for (const QString& line : text().split('\n'))
    widest = std::max(widest, WordsWidth(font(), line));
  return widest + 2;
}

QSize WrappedLabel::sizeHint() const {
  const QMargins sides = contentsMargins();
  const int width = std::min(NaturalWidth(), Px(kWidest)) + sides.left() + sides.right();
  return {width, heightForWidth(width)};
}

/// The widest of its words, which alone cannot break.
int WrappedLabel::WordWidth() const {
  int widest = 0;
  for (const QString& word : text().simplified().split(' '))
    widest = std::max(widest, WordsWidth(font(), word));
  return widest + 2;
}

QSize WrappedLabel::minimumSizeHint() const {
  const int natural = NaturalWidth(), least = Px(unbroken_);
  const int word = natural > least && unbroken_ < kUnbroken ? WordWidth() : 0;
  return {std::min(natural, std::max(least, std::min(word, Px(kUnbroken)))),
          fontMetrics().height()};
}

/// A line that is hardly longer than can be read does not leave a word alone in the next.
int WrappedLabel::RoomIn(int width) const {
  const int readable = ReadableWidth();
  return NaturalWidth() <= readable * 6 / 5 ? width : std::min(width, readable);
}

int WrappedLabel::heightForWidth(int width) const {
  const QMargins sides = contentsMargins();
  const int across = sides.left() + sides.right();
  const int room = RoomIn(width - across);
  if (text().isEmpty()) return QLabel::heightForWidth(room + across);
  if (oneLine_) return fontMetrics().height() + sides.top() + sides.bottom();
  const int words = WordsHeight(font(), text(), room);
  return std::max(words + sides.top() + sides.bottom(), minimumHeight());
}

void WrappedLabel::SetOneLine(bool oneLine) {
  if (oneLine_ == oneLine) return;
  oneLine_ = oneLine;
  updateGeometry();
  update();
}

bool WrappedLabel::event(QEvent* event) {
  const bool cut = oneLine_ && NaturalWidth() > width();
  return TipWhatIsCut(*event, *this, text(), cut) || QLabel::event(event);
}

void WrappedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  if (oneLine_)
    return DrawWords(painter, contentsRect(), Qt::AlignVCenter, font(),
                     WordsWithin(font(), text().simplified(), contentsRect().width()));
  QRect room = contentsRect();
  if (alignment() & Qt::AlignLeft) room.setWidth(RoomIn(room.width()));
  DrawWrapped(painter, room, alignment(), font(), text());
}

int ReadableWidth() {
  constexpr int kLetters = 75;
  static const QString kSample =
      "The crowd has waited all night for this, and it lets both hear it.";
  return WordsWidth(ProseFont(), kSample) * kLetters / static_cast<int>(kSample.size());
}

bool TipWhatIsCut(QEvent& event, QWidget& widget, const QString& text, bool cut) {
  if (event.type() != QEvent::ToolTip || !cut || !widget.toolTip().isEmpty()) return false;
  QToolTip::showText(static_cast<QHelpEvent&>(event).globalPos(),
                     "<p>" + text.toHtmlEscaped() + "</p>", &widget);
  return true;
}

void SetInk(QWidget& label, const QColor& colour) {
  QPalette palette = label.palette();
  palette.setColor(QPalette::Text, colour);
  label.setForegroundRole(QPalette::Text);
  label.setPalette(palette);
}

void SetMargins(QLineEdit& line) {
  line.setTextMargins(Px(8), 0, Px(8), 0);
}

QLineEdit* NewLine(QWidget* holder, const QString& name, const QString& text) {
  auto* line = new QLineEdit(text, holder);
  line->setObjectName(name);
  SetMargins(*line);
  return line;
}

BareScroller::BareScroller(QWidget* parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  viewport()->setAutoFillBackground(false);
}

void BareScroller::Hold(QWidget* body) {
  setWidget(body);
  body->setAutoFillBackground(false);
}

QMenu* NewMenu(QWidget* parent, const QString& name) {
  auto* menu = new QMenu(parent);
  menu->setObjectName(name);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  return menu;
}

}  // namespace grapplemont::desktop
