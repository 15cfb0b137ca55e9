#include "desktop/topbar.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QRegularExpression>
#include <algorithm>

#include "desktop/dates.h"
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

constexpr int kHeight = 52, kSide = 20, kBetween = 18, kSecondRow = 10;
constexpr int kEnterSign = 20;                  // what the sign adds to a button
constexpr int kStep = 24;                       // a number's room grows by so much at once
constexpr int kShortName = 96, kBareName = 88;  // what is left of a long name

/// "Monday, 09 March 2026" as "Mon, 09 Mar 2026".
QString WithShortNames(QString date) {
  static const QRegularExpression kLongWord(
      "([A-Za-z\\x{C0}-\\x{24F}]{3})[A-Za-z\\x{C0}-\\x{24F}]+");
  return date.replace(kLongWord, "\\1");
}

/// How wide a date may come to be: the widest month with the widest day of the week.
int WidestDate(const QFont& font, bool shortened) {
  const QFontMetrics metrics(font);
  const auto widest = [&](const std::vector<QString>& dates) {
    int width = 0;
    for (const QString& date : dates)
      width = std::max(width, metrics.horizontalAdvance(shortened ? WithShortNames(date) : date));
    return width;
  };
  const DateSamples& samples = SamplesOfDates();
  return widest(samples.Months) + widest(samples.Days) - widest({samples.Days.front()});
}

}  // namespace

/// A label of the bar. Its weight tells what matters: "Image **62%**", "**The promotion** · Cult".
class TopBar::Fact : public ViewOf<QWidget, ui::Label> {
 public:
  Fact(ui::Label& label, bool first, Stage& stage, QWidget* parent)
      : ViewOf(label, stage, parent), first_(first) {
    Means(*this, QAccessible::StaticText);
    setObjectName(Shown(label.Name()));
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
  }
  QSize sizeHint() const override {
    const int most = IsName() && form_ != Form::Bare ? WidthOf(pieces_) + 2 : Least(form_);
    return {most, Px(32)};
  }
  QSize minimumSizeHint() const override { return {Least(form_), Px(32)}; }
  /// What it needs at least, whatever the day puts in.
  int Least(Form form) const {
    const int needed = WidthOf(InForm(form)) + 2;
    if (first_)
      return std::max(needed, WidestDate(FontOf(pieces_.front()), form != Form::Long) + 2);
    if (IsName()) {
      const int cut =
          form == Form::Short ? Px(kShortName) + WidthOf({pieces_.back()}) : Px(kBareName);
      return form == Form::Long ? needed : std::min(needed, cut);
    }
    const int sign = control_.Trend == 0 ? WidthOf({{TrendSign(1), false}}) : 0;
    return (needed + sign + Px(kStep) - 1) / Px(kStep) * Px(kStep);
  }
  void SetForm(Form form) {
    if (form_ == form) return;
    form_ = form;
    updateGeometry();
    update();
  }

 protected:
  void Show() override {
    TakeApart(Dated(control_.Text.Get()));
    setAccessibleName(Dated(control_.Text.Get()));
    if (control_.Tip->empty()) setToolTip(Dated(control_.Text.Get()));
    if (control_.Trend != 0) pieces_.push_back({TrendSign(control_.Trend), false});
    updateGeometry();
    update();
  }

  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const Colours& c = ColoursOf(this);
    const Pieces pieces = InForm(form_);
    int rest = WidthOf(pieces), x = 0;
    for (const Piece& piece : pieces) {
      // What is too long is cut in its first words; what follows them stays.
      rest -= WidthOf({piece});
      const QFontMetrics metrics(FontOf(piece));
      const QString words =
          metrics.elidedText(piece.Words, Qt::ElideRight, std::max(0, width() - x - rest));
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

  bool IsName() const { return !first_ && pieces_.size() == 2 && pieces_.front().Matters; }

  int WidthOf(const Pieces& pieces) const {
    int width = 0;
    for (const Piece& piece : pieces)
      width += QFontMetrics(FontOf(piece)).horizontalAdvance(piece.Words);
    return width;
  }

  /// A date with short names; bare, what matters without its caption.
  Pieces InForm(Form form) const {
    Pieces pieces = pieces_;
    if (first_ && form != Form::Long)
      for (Piece& piece : pieces) piece.Words = WithShortNames(piece.Words);
    if (first_ || form != Form::Bare) return pieces;
    if (IsName()) pieces.pop_back();
    if (pieces.size() > 1 && !pieces.front().Matters) pieces.erase(pieces.begin());
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
  Form form_ = Form::Long;
  Pieces pieces_ = {{QString(), true}};
};

TopBar::TopBar(const ui::Page& page, Stage& stage, QWidget* parent)
    : QWidget(parent),
      all_(NewLayout<QHBoxLayout>(this, 0, {kSide, 0, kSide, 1})),
      actions_(new FlowLayout(Px(kBetween), Qt::AlignRight | Qt::AlignVCenter)) {
  setFixedHeight(Px(kHeight));
  auto* facts = NewLayout<QHBoxLayout>(nullptr, kBetween);
  for (ui::Label* label : page.Top) {
    facts_.push_back(new Fact(*label, facts_.empty(), stage, this));
    views_.push_back(facts_.back());
    facts->addWidget(facts_.back());
  }
  facts->addStretch(1);
  for (ui::Button* action : page.TopActions) {
    auto* view = dynamic_cast<ButtonView*>(MakeView(*action, stage, this));
    view->Pressed = [this, action] { Pressed(*action); };
    views_.push_back(view);
    actions_->addWidget(view);
    if (action == page.Main) {
      main_ = view;
      view->SetGold(true);
    }
  }
  all_->addLayout(facts, 1);
  all_->addLayout(actions_);
  actions_->SetOneRow(true);
}

int TopBar::FactsWidth(Form form) const {
  int width = 0;
  for (const Fact* fact : facts_) width += (width > 0 ? Px(kBetween) : 0) + fact->Least(form);
  return width;
}

void TopBar::Fit() {
  if (!isPlaced_) return;
  constexpr std::pair<bool, Form> kWays[] = {{true, Form::Long},
                                             {true, Form::Short},
                                             {false, Form::Long},
                                             {false, Form::Short},
                                             {false, Form::Bare}};
  const int room = width() - 2 * Px(kSide);
  const int enter = main_ && !main_->ShowsEnter() ? Px(kEnterSign) : 0;  // it comes and goes
  const int actions = Px(kBetween) + actions_->sizeHint().width() + enter;
  for (const auto& [oneRow, form] : kWays)
    if (form == Form::Bare || FactsWidth(form) + (oneRow ? actions : 0) <= room)
      return Take(oneRow, form);
}

void TopBar::Take(bool oneRow, Form form) {
  for (Fact* fact : facts_) fact->SetForm(form);
  actions_->SetOneRow(oneRow);
  all_->setDirection(oneRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  const int second =
      oneRow ? 0 : actions_->heightForWidth(width() - 2 * Px(kSide)) + Px(kSecondRow);
  all_->setContentsMargins(Px(kSide), 0, Px(kSide), oneRow ? 1 : Px(kSecondRow));
  if (height() != Px(kHeight) + second) setFixedHeight(Px(kHeight) + second);
}

void TopBar::Refresh() {
  for (ControlView* view : views_) view->Refresh();
  Fit();
}

void TopBar::SetEnter(const ui::Button* pressed) {
  if (main_) main_->SetEnter(&main_->Shows() == pressed);
}

void TopBar::Hold(const std::string& why) {
  for (ControlView* view : views_)
    if (view->Shows().Is() == ui::Kind::Button) view->Hold(why);
}

void TopBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const Colours& c = ColoursOf(this);
  painter.fillRect(rect(), c.Bar);
  painter.fillRect(0, height() - 1, width(), 1, c.Line);
}

}  // namespace grapplemont::desktop
