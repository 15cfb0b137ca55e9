#include <QScopedValueRollback>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "desktop/tableview.h"

// How a table shares out its width among its columns.

namespace grapplemont::desktop {

namespace {

constexpr int kMeasuredRows = 200;  // rows that are measured one by one for a column's width
constexpr int kReadRows = 2000;     // of those behind them; of more, some that lie far apart
constexpr int kSentence = 200;      // texts from this width on are read at length
constexpr int kColumnsApart = 120;  // from the end of a text to the next column, at most
constexpr int kTagsRead = 124;      // two tags, or one and the beginning of the next
// What columns of words keep where there is little room.
constexpr int kNameWhole = 220, kNameCut = 110;
constexpr int kTextRead = 180, kTextGlanced = 110, kTextCut = 80;

/// Hands out the room left over by shares.
void Spread(int room, const std::vector<double>& shares, std::vector<int>& widths) {
  double all = std::accumulate(shares.begin(), shares.end(), 0.0);
  for (std::size_t i = 0; room > 0 && all > 0 && i < widths.size(); ++i) {
    const int more = static_cast<int>(std::lround(room * shares[i] / all));
    widths[i] += more;
    room -= more;
    all -= shares[i];
  }
}

/// No column stands further from the next than the eye reaches; what a last column of words has
/// beyond that is room for them.
void KeepTogether(const std::vector<int>& wanted, std::vector<int>& widths) {
  for (std::size_t place = 0; place < widths.size(); ++place)
    widths[place] =
        std::min(widths[place], wanted[place] + std::max(Px(kColumnsApart), wanted[place] / 2));
}

/// Takes what is missing bit by bit from what exceeds its least width most; gives what is missing
/// still.
int Squeeze(int missing, const std::vector<int>& least, std::vector<int>& widths) {
  while (missing > 0) {
    std::size_t widest = 0;
    for (std::size_t i = 1; i < widths.size(); ++i)
      if (widths[i] - least[i] > widths[widest] - least[widest]) widest = i;
    const int take = std::min({widths[widest] - least[widest], missing, Px(16)});
    if (take <= 0) break;
    widths[widest] -= take;
    missing -= take;
  }
  return missing;
}

}  // namespace

const std::vector<int>& TableView::NaturalWidths() {
  if (natural_.empty() || naturalScale_ != Px(kUsualText)) {
    natural_ = MeasuredWidths();
    naturalScale_ = Px(kUsualText);
  }
  return natural_;
}

/// Walks over the rows once, as they lie in memory.
std::vector<int> TableView::MeasuredWidths() const {
  const auto& columns = table_.Columns();
  const TableHeading& heading = grid_->Heading();
  std::vector<int> widths;
  for (const int column : columns)
    widths.push_back(std::max(heading.HeadingWidth(column), heading.minimumSectionSize()));
  const auto widen = [&](std::size_t place, const ui::Cell& cell) {
    widths[place] = std::max(widths[place], CellWidth(cell, model_.Column(columns[place])));
  };
  const int rows = model_.rowCount();
  for (int row = 0; row < std::min(rows, kMeasuredRows); ++row)
    for (std::size_t place = 0; place < columns.size(); ++place)
      widen(place, table_.At(row, columns[place]));
  std::vector<ui::Cell> longest(columns.size(), ui::Cell(""));
  const int step = std::max(1, (rows - kMeasuredRows) / kReadRows);
  for (int row = kMeasuredRows; row < rows; row += step)
    for (std::size_t place = 0; place < columns.size(); ++place)
      if (ui::Cell cell = table_.CellAt(row, columns[place]);
          cell.Text.size() > longest[place].Text.size())
        longest[place] = std::move(cell);
  for (std::size_t place = 0; place < columns.size(); ++place) {
    if (!longest[place].Text.empty()) widen(place, longest[place]);
    if (rows > 0) widths[place] += DrawnWidth(model_.Column(columns[place]), table_.KeyAt(0));
  }
  return widths;
}

bool TableView::IsText(std::size_t place) const {
  const ui::ColumnKind kind = model_.Column(table_.Columns()[place]).Kind;
  return kind == ui::ColumnKind::Text || kind == ui::ColumnKind::Tags;
}

bool TableView::IsTags(std::size_t place) const {
  const ui::ColumnKind kind = model_.Column(table_.Columns()[place]).Kind;
  return kind == ui::ColumnKind::Tag || kind == ui::ColumnKind::Tags;
}

bool TableView::IsWords(std::size_t place) const {
  return IsText(place) || IsTags(place);
}

int TableView::HeadingWidth(std::size_t place) const {
  return grid_->Heading().HeadingWidth(table_.Columns()[place]);
}

/// The place of the sentences beside the name: the widest texts, if they are wide; else the name's.
std::size_t TableView::SentencePlace(const std::vector<int>& widths) const {
  const std::size_t name = Index(table_.NamePlace());
  std::size_t widest = name;
  for (std::size_t place = 0; place < widths.size(); ++place)
    if (place != name && IsText(place) && widths[place] > Px(kSentence) &&
        (widest == name || widths[place] > widths[widest]))
      widest = place;
  return widest;
}

/// Sentences give way first, then bars leave their number alone, then tags, then the other texts;
/// what is read first gives way last, and no further than a usual name needs, unless the end of a
/// name is all that keeps a column out of sight. No heading is ever cut, and a number keeps its
/// width.
void TableView::SqueezeTexts(int missing, std::vector<int>& widths) {
  const std::size_t name = Index(table_.NamePlace()), sentence = SentencePlace(widths);
  const int room = grid_->viewport()->width();
  const int least = std::max(Px(kNameCut), std::min(Px(kNameWhole), room * 3 / 4));
  const std::vector<int> asked = widths;
  const auto shrink = [&](int ofName, int ofSentence, int ofTexts, int ofTags) {
    std::vector<int> floors = widths;
    for (std::size_t place = 0; place < widths.size(); ++place) {
      if (!IsWords(place)) continue;
      const int words = place == name       ? ofName
                        : place == sentence ? ofSentence
                        : IsTags(place)     ? ofTags
                                            : ofTexts;
      floors[place] = std::min(widths[place], std::max(HeadingWidth(place), words));
    }
    missing = Squeeze(missing, floors, widths);
  };
  const int read = Px(kTextRead), glanced = Px(kTextGlanced), cut = Px(kTextCut);
  shrink(asked[name], sentence == name ? asked[name] : read, room, room);
  missing -= DropBars(missing, widths);
  if (missing > 0) shrink(asked[name], read, glanced, glanced);
  if (missing < 0) {
    std::vector<double> shortened(widths.size());
    for (std::size_t place = 0; place < widths.size(); ++place)
      if (IsWords(place)) shortened[place] = asked[place] - widths[place];
    shortened[name] += 1;
    return Spread(-missing, shortened, widths);
  }
  shrink(asked[name], read, glanced, cut);
  shrink(least, read, cut, cut);
  shrink(least, cut, cut, cut);
  const int shortened = std::min(Px(kNameWhole), room * 4 / 10);
  shrink(std::max({Px(kNameCut), asked[name] * 3 / 4, shortened}), cut, cut, cut);
  shrink(std::max(Px(kNameCut), shortened), cut, cut, cut);
  if (missing > 0) ScrollRest(asked, widths);
}

/// What a column of bars needs for its numbers, and for the tags that stand in place of some.
int TableView::BareWidthOf(int column) const {
  const int rows = std::min(model_.rowCount(), kMeasuredRows);
  int width = 0;
  for (int row = 0; row < rows; ++row)
    width = std::max(width, BareWidth(table_.At(row, column), model_.Column(column)));
  return width;
}

/// Takes the bars from where they stand before a number, from the last column on, until nothing
/// is missing; gives the room that has come free.
int TableView::DropBars(int missing, std::vector<int>& widths) {
  int freed = 0;
  for (std::size_t place = widths.size(); place-- > 0 && freed < missing;) {
    const int column = table_.Columns()[place];
    if (model_.Column(column).Kind != ui::ColumnKind::Percent) continue;
    const int bare =
        std::max({HeadingWidth(place), widths[place] - Px(kBarRoom), BareWidthOf(column)});
    if (bare >= widths[place]) continue;
    freed += widths[place] - bare;
    widths[place] = bare;
    model_.Bare.push_back(column);
  }
  return freed;
}

/// Where it does not all fit, the rest is scrolled beside the name, which is shown whole as long as
/// it leaves some room, and a number that nearly fits beside it stays in sight. Then nothing need
/// be cut short any more.
void TableView::ScrollRest(const std::vector<int>& asked, std::vector<int>& widths) {
  const std::size_t name = Index(table_.NamePlace()), sentence = SentencePlace(asked);
  const int room = grid_->viewport()->width(), whole = std::min(Px(kNameWhole), room * 3 / 4);
  for (std::size_t place = 0; place < widths.size(); ++place) {
    if (!IsWords(place)) continue;
    const bool tags = model_.Column(table_.Columns()[place]).Kind == ui::ColumnKind::Tags;
    const int read = place == name       ? std::max(room * 45 / 100, whole)
                     : tags              ? Px(kTagsRead)
                     : place == sentence ? Px(kTextRead)
                                         : Px(kTextGlanced);
    widths[place] = std::max(widths[place], std::min(asked[place], read));
  }
  // Where the edge would leave a stump of a column, those before it share its room.
  std::size_t cut = 0;
  int rest = room;
  while (cut < widths.size() && widths[cut] <= rest) rest -= widths[cut++];
  if (cut > name && cut < widths.size() && !IsWords(cut)) {
    const int shortened = widths[name] - (widths[cut] - rest);
    if (shortened >= std::max(Px(kNameCut), room * 45 / 100)) {
      widths[name] = shortened;
      return;
    }
  }
  if (cut <= name || cut == widths.size() || (IsWords(cut) && rest >= Px(kTextCut))) return;
  std::vector<double> shares(widths.size());
  for (std::size_t place = 0; place < cut; ++place)
    if (IsWords(place) && (place != name || widths[name] < asked[name]))
      shares[place] = widths[place];
  if (std::accumulate(shares.begin(), shares.end(), 0.0) == 0) shares[cut - 1] = 1;
  Spread(rest, shares, widths);
}

/// The columns up to the name, unless they take most of the room.
int TableView::PinnedIn(const std::vector<int>& widths) const {
  const int pinned = widths.empty() ? 0 : table_.NamePlace() + 1;
  const int taken = std::accumulate(widths.begin(), widths.begin() + pinned, 0);
  return taken * 10 > grid_->viewport()->width() * 6 ? 0 : pinned;
}

/// Whether nothing stands below the heading.
bool TableView::IsEmpty(int column) const {
  for (int row = 0; row < model_.rowCount(); ++row)
    if (!table_.CellAt(row, column).Text.empty()) return false;
  return model_.rowCount() > 0;
}

/// Where there is no room for all, columns in which nothing stands leave theirs to the others, the
/// last first. Gives what is missing still, below 0.
int TableView::DropEmpty(int room, std::vector<int>& widths) const {
  for (std::size_t place = widths.size(); room < 0 && place-- > 0;) {
    const int column = table_.Columns()[place];
    const ui::Column& shown = model_.Column(column);
    const bool holdsMore = shown.Draws || shown.Kind == ui::ColumnKind::Button;
    if (place == Index(table_.NamePlace()) || holdsMore || !IsEmpty(column)) continue;
    room += std::exchange(widths[place], 0);
  }
  return room;
}

/// Each column gets what its contents ask for; what is left over goes to those with a share, else
/// to the texts.
void TableView::FitColumns() {
  const auto& shown = table_.Columns();
  std::vector<int> widths = NaturalWidths();
  std::vector<double> shares;
  const bool anyShare =
      std::ranges::any_of(shown, [&](int column) { return model_.Column(column).Width > 0; });
  int room = grid_->viewport()->width();
  for (std::size_t i = 0; i < shown.size(); ++i) {
    const ui::Column& column = model_.Column(shown[i]);
    const auto byHand = table_.State().Widths.find(ui::ColumnId(control_.Columns(), shown[i]));
    double share = anyShare                              ? column.Width
                   : column.Kind == ui::ColumnKind::Text ? widths[i]
                                                         : widths[i] * 0.3;
    if (byHand != table_.State().Widths.end()) {
      widths[i] = std::max(Px(28), Px(byHand->second));
      share = 0;
    }
    shares.push_back(share);
    room -= widths[i];
  }
  const std::vector<int> wanted = widths;
  Spread(room, shares, widths);
  if (room > 0) KeepTogether(wanted, widths);
  room = DropEmpty(room, widths);
  model_.Bare.clear();
  if (room < 0 && !widths.empty()) SqueezeTexts(-room, widths);
  const QScopedValueRollback<bool> arranging(arranging_, true);
  for (std::size_t i = 0; i < shown.size(); ++i) {
    grid_->setColumnHidden(shown[i], widths[i] == 0);
    if (widths[i] > 0) grid_->setColumnWidth(shown[i], widths[i]);
  }
  const bool scrolls = model_.rowCount() > 0;
  grid_->setHorizontalScrollBarPolicy(scrolls ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  grid_->SetAcross(scrolls &&
                   std::accumulate(widths.begin(), widths.end(), 0) > grid_->viewport()->width());
  grid_->SetPinned(rowButtons_.empty() ? PinnedIn(widths) : 0);
  PlaceRowButtons();
}

}  // namespace grapplemont::desktop
