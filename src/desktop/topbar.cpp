#include "desktop/topbar.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QRegularExpression>

#include "desktop/spoken.h"
#include "desktop/textviews.h"

namespace grapplemont::desktop {

HubFrame::HubFrame(const ui::Page& page, Stage& stage, QWidget* parent)
    : QWidget(parent),
      side_(new SideBar(page, stage, this)),
      top_(new TopBar(page, stage, this)),
      room_(new QStackedWidget(this)) {
  auto* columns = NewLayout<QHBoxLayout>(this, 0);
  auto* rows = NewLayout<QVBoxLayout>(nullptr, 0);
  rows->addWidget(top_);
  rows->addWidget(room_, 1);
  columns->addWidget(side_);
  columns->addLayout(rows, 1);
}

namespace {

/// A label of the bar. Its weight tells what matters: "Image **62%**", "**The promotion** · Cult".
class TopLabel : public ViewOf<QWidget, ui::Label> {
 public:
  TopLabel(ui::Label& label, bool first, Stage& stage, QWidget* parent)
      : ViewOf(label, stage, parent), first_(first) {
    Means(*this, QAccessible::StaticText);
    setObjectName(Shown(label.Name()));
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  }
  QSize sizeHint() const override { return {WidthOf(pieces_) + 2, Px(32)}; }
  /// Whose promotion it is may be cut; a date may be shortened.
  QSize minimumSizeHint() const override {
    const int whole = WidthOf(pieces_) + 2;
    if (first_) return {WidthOf(InShort()) + 2, Px(32)};
    const bool name = pieces_.size() == 2 && pieces_.front().Matters;
    return {name ? std::min(whole, Px(64)) : whole, Px(32)};
  }

 protected:
  void Show() override {
    TakeApart(Shown(control_.Text.Get()));
    setAccessibleName(Shown(control_.Text.Get()));
    if (control_.Tip->empty()) setToolTip(Shown(control_.Text.Get()));
    if (control_.Trend != 0) pieces_.push_back({TrendSign(control_.Trend), false});
    updateGeometry();
    update();
  }

  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const Colours& c = ColoursOf(this);
    const bool shorten = first_ && width() < WidthOf(pieces_);
    int x = 0;
    for (const Piece& piece : shorten ? InShort() : pieces_) {
      const QFontMetrics metrics(FontOf(piece));
      const QString words = metrics.elidedText(piece.Words, Qt::ElideRight, width() - x);
      painter.setFont(FontOf(piece));
      painter.setPen(piece.Matters ? TextColour(c, control_.Colour.Get()) : c.Muted);
      painter.drawText(QRect(x, 0, width() - x, height()), Qt::AlignVCenter, words);
      x += metrics.horizontalAdvance(words);
    }
  }

 private:
  struct Piece {
    QString Words;
    bool Matters;
  };

  using Pieces = std::vector<Piece>;

  int WidthOf(const Pieces& pieces) const {
    int width = 0;
    for (const Piece& piece : pieces)
      width += QFontMetrics(FontOf(piece)).horizontalAdvance(piece.Words);
    return width;
  }

  /// "Monday, 09 March 2026" as "Mon, 09 Mar 2026".
  Pieces InShort() const {
    Pieces pieces = pieces_;
    static const QRegularExpression kLongWord("([A-Za-z]{3})[A-Za-z]+");
    for (Piece& piece : pieces) piece.Words.replace(kLongWord, "\\1");
    return pieces;
  }

  QFont FontOf(const Piece& piece) const {
    if (first_) return TextFont(15, QFont::DemiBold);
    return TextFont(13, piece.Matters ? QFont::DemiBold : QFont::Normal);
  }

  /// Parts what matters from what it is called.
  void TakeApart(const QString& text) {
    pieces_.clear();
    const auto bracket = text.lastIndexOf(" (");
    const auto blank = text.lastIndexOf(' ');
    if (first_) {
      pieces_ = {{text, true}};
    } else if (bracket > 0 && text.endsWith(')')) {
      pieces_ = {{text.left(bracket), true},
                 {QStringLiteral(" \u00B7 ") + text.mid(bracket + 2).chopped(1), false}};
    } else if (blank > 0 && blank + 1 < text.size() &&
               (text[blank + 1].isDigit() || text[blank + 1] == '$' || text[blank + 1] == '-')) {
      pieces_ = {{text.left(blank + 1), false}, {text.mid(blank + 1), true}};
    } else {
      pieces_ = {{text, true}};
    }
  }

  bool first_;
  Pieces pieces_;
};

}  // namespace

TopBar::TopBar(const ui::Page& page, Stage& stage, QWidget* parent) : QWidget(parent) {
  setFixedHeight(Px(52));
  auto* row = NewLayout<QHBoxLayout>(this, 18);
  row->setContentsMargins(Px(20), 0, Px(20), 1);
  for (ui::Label* label : page.Top) {
    auto* view = new TopLabel(*label, views_.empty(), stage, this);
    views_.push_back(view);
    row->addWidget(view);
  }
  row->addStretch(1);
  for (ui::Button* action : page.TopActions) {
    auto* view = dynamic_cast<ButtonView*>(MakeView(*action, stage, this));
    view->Pressed = [this, action] { Pressed(*action); };
    views_.push_back(view);
    row->addWidget(view);
    if (action == page.Main) {
      main_ = view;
      view->SetGold(true);
    }
  }
}

void TopBar::Refresh() {
  for (ControlView* view : views_) view->Refresh();
}

void TopBar::SetEnter(bool enter) {
  if (main_) main_->SetEnter(enter && main_->isEnabled());
}

void TopBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const Colours& c = ColoursOf(this);
  painter.fillRect(rect(), c.Bar);
  painter.fillRect(0, height() - 1, width(), 1, c.Line);
}

}  // namespace grapplemont::desktop
