#include "desktop/topbar.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QRegularExpression>
#include <algorithm>

#include "desktop/dates.h"
#include "desktop/spoken.h"
#include "desktop/textviews.h"
#include "desktop/wordswidth.h"

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

constexpr int kTopHeight = 52, kTopSide = 20, kBetween = 18, kSecondRow = 10;
constexpr int kLowWindow = 420, kLowTop = 44, kLowSecond = 6;  // in a window no higher than that
constexpr int kStep = 24;                       // a number's room grows by so much at once
constexpr int kShortName = 96, kBareName = 88;  // what is left of a long name
constexpr int kLeastName = 40;                  // less of it says nothing

/// "Mon, 09 Mar 2026" as "09 Mar 2026".
QString WithoutWeekday(QString date) {
  static const QRegularExpression kWeekday("^[^\\d]+[, ]+(?=\\d)");
  return date.remove(kWeekday);
}

/// How wide a date may come to be: the widest month with the widest day of the week.
int WidestDate(const QFont& font, bool shortened, bool weekday) {
  const auto widest = [&](const std::vector<QString>& dates) {
    int width = 0;
    for (QString date : dates) {
      if (shortened) date = WithShortNames(date);
      if (!weekday) date = WithoutWeekday(date);
      width = std::max(width, WordsAdvance(font, date));
    }
    return width;
  };
  const DateSamples& samples = SamplesOfDates();
  return widest(samples.Months) + widest(samples.Days) - widest({samples.Days.front()});
}

/// A share or a sum as wide as it is likely to come to be, so that the day's figures do not decide
/// on the form of the bar; anything else as it is.
QString AtItsWidest(QString words) {
  static const QRegularExpression kNumber("-?\\$?[\\d,]+");
  const bool isShare = words.endsWith('%'), isSum = words.contains('$');
  return isShare || isSum ? words.replace(kNumber, isShare ? "100" : "-$88,888,888") : words;
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
    return {IsName() ? WidthOf(InForm(form_)) + 2 : Least(form_), Px(32)};
  }
  QSize minimumSizeHint() const override { return {Least(form_), Px(32)}; }
  /// What it needs at least, whatever the day puts in.
  int Least(Form form) const {
    const int needed = WidthOf(InForm(form)) + 2;
    if (first_)
      return std::max(
          needed, WidestDate(FontOf(pieces_.front()), form != Form::Long, form != Form::Least) + 2);
    if (IsName()) {
      if (form == Form::Least) return 0;
      const int cut =
          form == Form::Short ? Px(kShortName) + WidthOf({pieces_.back()}) : Px(kBareName);
      return form == Form::Long ? needed : std::min(needed, cut);
    }
    const int sign = control_.Trend == 0 ? WidthOf({{TrendSign(1), false}}) : 0;
    Pieces widest = InForm(form);
    for (Piece& piece : widest) piece.Words = AtItsWidest(piece.Words);
    return (std::max(needed, WidthOf(widest) + 2) + sign + Px(kStep) - 1) / Px(kStep) * Px(kStep);
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
    if (IsName() && width() < Px(kLeastName)) return;
    const Pieces pieces = InForm(form_);
    int rest = WidthOf(pieces), x = 0;
    for (const Piece& piece : pieces) {
      // What is too long is cut in its first words; what follows them stays.
      rest -= WidthOf({piece});
      const QFont font = FontOf(piece);
      const QString words = WordsWithin(font, piece.Words, std::max(0, width() - x - rest));
      painter.setPen(piece.Matters ? TextColour(c, control_.Colour.Get()) : c.Muted);
      DrawWords(painter, QRect(x, 0, width() - x, height()), Qt::AlignVCenter, font, words);
      x += WordsAdvance(font, words);
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
    for (const Piece& piece : pieces) width += WordsAdvance(FontOf(piece), piece.Words);
    return width;
  }

  /// A date with short names, at the least without the day of the week; bare, what matters without
  /// its caption.
  Pieces InForm(Form form) const {
    Pieces pieces = pieces_;
    if (first_ && form != Form::Long)
      for (Piece& piece : pieces) piece.Words = WithShortNames(piece.Words);
    if (first_ && form == Form::Least)
      for (Piece& piece : pieces) piece.Words = WithoutWeekday(piece.Words);
    if (first_ || form == Form::Long || form == Form::Short) return pieces;
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
      more_(new PushButton(this, QStringLiteral("More\u2026"))),
      all_(NewLayout<QHBoxLayout>(this, 0, {kTopSide, 0, kTopSide, 1})),
      actions_(new FlowLayout(Px(kBetween), Qt::AlignRight | Qt::AlignVCenter)) {
  setFixedHeight(Px(kTopHeight));
  auto* facts = NewLayout<QHBoxLayout>(nullptr, kBetween);
  for (ui::Label* label : page.Top) {
    facts_.push_back(new Fact(*label, facts_.empty(), stage, this));
    views_.push_back(facts_.back());
    facts->addWidget(facts_.back());
  }
  facts->addStretch(1);
  more_->setObjectName("topmore");
  more_->hide();
  connect(more_, &QAbstractButton::clicked, this, [this] {
    const auto folded = Foldable();
    OpenFolded({folded.begin(), folded.end()}, *more_);
  });
  actions_->addWidget(more_);
  for (ui::Button* action : page.TopActions) {
    auto* view = dynamic_cast<ButtonView*>(MakeView(*action, stage, this));
    view->Pressed = [this, action] { Pressed(*action); };
    views_.push_back(view);
    buttons_.push_back(view);
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

std::vector<ButtonView*> TopBar::Foldable() const {
  std::vector<ButtonView*> foldable;
  for (ButtonView* view : buttons_)
    if (view != main_ && view->Shows().Visible) foldable.push_back(view);
  return foldable;
}

int TopBar::FactsWidth(Form form) const {
  int width = 0;
  for (const Fact* fact : facts_) width += (width > 0 ? Px(kBetween) : 0) + fact->Least(form);
  return width;
}

int TopBar::ActionsWidth(bool folded) const {
  int width = main_ ? main_->sizeHint().width() : 0;
  const std::vector<ButtonView*> others = Foldable();
  if (folded && !others.empty()) width += more_->sizeHint().width() + Px(kBetween);
  for (const ButtonView* view : others)
    if (!folded) width += view->sizeHint().width() + Px(kBetween);
  return width;
}

bool TopBar::Fits(const Way& way) const {
  const int room = width() - 2 * Px(kTopSide);
  const int facts = FactsWidth(way.Facts), actions = ActionsWidth(way.Folded);
  return way.OneRow ? facts + Px(kBetween) + actions <= room : std::max(facts, actions) <= room;
}

/// In the first way that fits, else in the last. One that goes on fitting is kept while the window
/// is as wide as it was.
void TopBar::Fit() {
  if (!isPlaced_) return;
  static constexpr Way kWays[] = {
      {true, Form::Long, false},  {true, Form::Short, false},  {true, Form::Short, true},
      {true, Form::Bare, true},   {false, Form::Long, false},  {false, Form::Short, false},
      {false, Form::Bare, false}, {false, Form::Least, false}, {false, Form::Least, true}};
  if (!way_ || fittedTo_ != width() || !Fits(*way_)) {
    const auto way = std::ranges::find_if(kWays, [this](const Way& each) { return Fits(each); });
    way_ = way == std::end(kWays) ? std::prev(std::end(kWays)) : way;
    fittedTo_ = width();
  }
  Take(*way_);
}

void TopBar::Take(const Way& way) {
  for (Fact* fact : facts_) fact->SetForm(way.Facts);
  QStringList hidden;
  for (ButtonView* view : Foldable()) {
    view->setVisible(!way.Folded);
    hidden << view->text();
  }
  more_->setVisible(way.Folded && !hidden.isEmpty());
  more_->setToolTip(hidden.join(", "));
  actions_->SetOneRow(way.OneRow);
  all_->setDirection(way.OneRow ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  const bool low = window()->height() < Px(kLowWindow);
  const int first = Px(low ? kLowTop : kTopHeight), below = Px(low ? kLowSecond : kSecondRow);
  const int second = way.OneRow ? 0 : actions_->heightForWidth(width() - 2 * Px(kTopSide)) + below;
  all_->setContentsMargins(Px(kTopSide), 0, Px(kTopSide), way.OneRow ? 1 : below);
  if (height() != first + second) setFixedHeight(first + second);
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
