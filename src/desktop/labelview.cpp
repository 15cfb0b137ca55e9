#include "desktop/labelview.h"

#include <QMenu>
#include <QMouseEvent>
#include <algorithm>

#include "desktop/letters.h"
#include "desktop/look.h"
#include "desktop/palette.h"

namespace grapplemont::desktop {

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
