#include "roster/screens/rosterscreens.h"

#include "records/nameindex.h"

namespace grapplemont {

namespace {

/// Opens what the name stands for; empty where there is no page for it.
ui::Handler WayTo(Game& game, const NameSpan& name) {
  const auto& page = name.Of == NameSpan::Kind::Worker ? game.OpenWorker : game.OpenPromotion;
  if (!page) return {};
  return [&page, uid = name.Uid] { page(uid); };
}

std::vector<ui::Link> LinksOf(Game& game, NameIndex& names, std::string_view text) {
  std::vector<ui::Link> links;
  if (!game.HasWorld()) return links;
  for (const NameSpan& name : names.Find(game.World(), text))
    if (ui::Handler open = WayTo(game, name))
      links.push_back({name.From, name.Length, std::move(open)});
  return links;
}

}  // namespace

void ConnectRoster(Game& game) {
  game.OpenWorker = [&game](int uid) { OpenWorkerPage(game, uid); };
  game.Desk().FindLinks = [&game, names = std::make_shared<NameIndex>()](std::string_view text) {
    return LinksOf(game, *names, text);
  };
}

}  // namespace grapplemont
