#include <algorithm>

#include "desktop/letters.h"
#include "desktop/tableview.h"

// The names in a table's cells: a click with Ctrl, or the menu, opens their pages.

namespace grapplemont::desktop {

void TableView::ConnectLinks() {
  grid_->LinkOf = [this](const QModelIndex& cell) {
    const auto links = LinksOf(cell.row(), cell.column());
    return links.empty() ? ui::Handler() : links.front().Open;
  };
  grid_->Followed = [this](const ui::Handler& open) { Follow(open); };
  grid_->Cells().HintOf = [this](const QModelIndex& cell) {
    const auto links = LinksOf(cell.row(), cell.column());
    return links.empty() ? QString() : "Ctrl+click opens " + links.front().Words;
  };
}

std::vector<TableView::NamedLink> TableView::LinksOf(int shownRow, int listColumn) const {
  std::vector<NamedLink> links;
  if (!table_.Follows()) return links;
  const std::string_view text = table_.At(shownRow, listColumn).Text;
  for (ui::Link& link : OnStage().Desk().LinksIn(text))
    links.push_back({Shown(text.substr(link.From, link.Length)), std::move(link.Open)});
  return links;
}

std::vector<TableView::NamedLink> TableView::LinksOfRow(const QModelIndex& cell) const {
  if (!cell.isValid()) return {};
  std::vector<NamedLink> links = LinksOf(cell.row(), cell.column());
  for (const int column : table_.Columns())
    for (NamedLink& link : LinksOf(cell.row(), column))
      if (std::none_of(links.begin(), links.end(),
                       [&](const NamedLink& held) { return held.Words == link.Words; }))
        links.push_back(std::move(link));
  return links;
}

}  // namespace grapplemont::desktop
