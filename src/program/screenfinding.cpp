#include "program/screenfinding.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <iterator>

#include "calendar/events.h"
#include "info/screens/glossary.h"
#include "info/search.h"
#include "program/screenways.h"
#include "records/modWresCheck.h"
#include "storylines/partners.h"
#include "storylines/titles.h"
#include "ui/acts.h"
#include "ui/goingback.h"
#include "ui/pictureof.h"

namespace grapplemont {

namespace {

using Kind = Found::Kind;

/// Where a kind of record is listed.
struct Room {
  const char* Screen;
  const char* List;
};

/// The row of this key, or without a key the first that shows these words; 0 for none.
int RowIn(const ui::ListBox& list, int key, std::string_view words) {
  const auto shows = [words](const ui::Cell& cell) { return cell.Text == words; };
  for (int row = 1; row <= list.Count(); ++row)
    if (key != 0 ? list.KeyOf(row) == key : std::ranges::any_of(list.RowOf(row).Cells, shows))
      return row;
  return 0;
}

void EnterAt(ui::Desk& desk, const Room& room, int key, std::string_view words = {}) {
  ui::Screen* const screen = Enter(desk, room.Screen);
  const auto* list = screen ? dynamic_cast<ui::ListBox*>(screen->Find(room.List)) : nullptr;
  if (!list) return;
  if (const int row = RowIn(*list, key, words)) ui::Pick(desk, *screen, room.List, row);
}

void OpenPromotionOf(Game& game, int uid) {
  if (game.OpenPromotion) game.OpenPromotion(uid);
}

void OpenTitle(Game& game, int number) {
  constexpr int kEverybodys = 2;
  ui::Desk& desk = game.Desk();
  ui::Screen* const screen = Enter(desk, "frmBelts");
  if (!screen) return;
  if (!IsPlayers(game.World(), game.World().Titles()[number]))
    ui::Pick(desk, *screen, "cmbwhose", kEverybodys);
  EnterAt(desk, {"frmBelts", "lsttitles"}, number);
}

/// One of the player's stands under a button of its own.
void OpenShow(Game& game, const Show& show) {
  ui::Desk& desk = game.Desk();
  const std::string name = show.Name.Str();
  if (show.Owner != game.World().PlayerUid())
    return EnterAt(desk, {"frmViewShows", "lstshows"}, 0, name);
  ui::Screen* const screen = Enter(desk, "frmTelevision");
  if (!screen) return;
  for (const ui::Control* control : screen->Controls())
    if (control->Is() == ui::Kind::Button && control->Text.Get() == name) {
      ui::Click(desk, *screen, control->Name());
      return;
    }
}

void OpenEvent(Game& game, const Event& event) {
  if (event.Owner != game.World().PlayerUid()) return OpenPromotionOf(game, event.Owner);
  EnterAt(game.Desk(), {"frmEvent", "lstevents"}, event.Month);
}

void OpenTeam(Game& game, int number) {
  const World& world = game.World();
  const Team& team = world.Teams()[number];
  if (std::ranges::count(PlayerTeams(world), &team) > 0)
    return EnterAt(game.Desk(), {"frmTagTeams", "lstteams"}, number);
  if (game.OpenWorker) game.OpenWorker(team.Worker1);
}

void OpenStable(Game& game, int number) {
  const Stable& stable = game.World().Stables()[number];
  if (stable.Owner != game.World().PlayerUid()) return OpenPromotionOf(game, stable.Owner);
  EnterAt(game.Desk(), {"frmStables", "lststables"}, number);
}

void OpenStaff(Game& game, const Staff& person) {
  const bool own = WorksForPlayer(game.World(), person);
  EnterAt(game.Desk(), {own ? "frmStaff" : "frmOtherStaff", "lststaff"}, person.Uid);
}

void OpenSponsor(Game& game, const Sponsor& sponsor) {
  ui::Screen* const screen = Enter(game.Desk(), "frmFedSponsor");
  if (!screen) return;
  ui::Check(game.Desk(), *screen, "chkfilter", false);
  EnterAt(game.Desk(), {"frmFedSponsor", "lstsponsors"}, sponsor.Uid);
}

void OpenFound(Game& game, const Found& found) {
  const World& world = game.World();
  if (!IsStill(world, found))
    return game.Desk().Say("Gone", found.Name + " is not there any more.");
  switch (found.Is) {
    case Kind::Worker:
      return game.OpenWorker ? game.OpenWorker(world.Workers()[found.Number].Uid) : void();
    case Kind::Promotion:
      return OpenPromotionOf(game, world.Promotions()[found.Number].Uid);
    case Kind::Title:
      return OpenTitle(game, found.Number);
    case Kind::Show:
      return OpenShow(game, world.Shows()[found.Number]);
    case Kind::Event:
      return OpenEvent(game, world.Events()[found.Number]);
    case Kind::Team:
      return OpenTeam(game, found.Number);
    case Kind::Stable:
      return OpenStable(game, found.Number);
    case Kind::Staff:
      return OpenStaff(game, world.AllStaff()[found.Number]);
    case Kind::Network:
      return EnterAt(game.Desk(), {"frmViewNetworks", "lstnetworks"},
                     world.Networks()[found.Number].Uid);
    case Kind::Sponsor:
      return OpenSponsor(game, world.Sponsors()[found.Number]);
    case Kind::Mail:
      return Enters(game.Desk()) ? game.OpenMail(found.Number) : void();
  }
}

ui::Drawing CrestOfUid(const World& world, int uid) {
  const Promotion* promotion = uid > 0 ? world.FindPromotion(uid) : nullptr;
  return promotion ? ui::Drawing(CrestOf(*promotion)) : ui::Drawing();
}

/// What belongs to a promotion bears its crest.
ui::Drawing PictureOf(const World& world, const Found& found) {
  const int number = found.Number;
  switch (found.Is) {
    case Kind::Worker:
      return PortraitOf(world.Workers()[number]);
    case Kind::Staff:
      return PortraitOf(world.AllStaff()[number]);
    case Kind::Promotion:
      return CrestOf(world.Promotions()[number]);
    case Kind::Title:
      return PlateOf(world.Titles()[number], number);
    case Kind::Show:
      return CrestOfUid(world, world.Shows()[number].Owner);
    case Kind::Event:
      return CrestOfUid(world, world.Events()[number].Owner);
    case Kind::Stable:
      return CrestOfUid(world, world.Stables()[number].Owner);
    default:
      return {};
  }
}

void AddNames(Game& game, const NameSearch& names, std::string_view typed, std::size_t most,
              std::vector<ui::Finding>& findings) {
  for (Found& found : names.Find(typed, most)) {
    ui::Finding finding{
        std::string(KindOfFound(found.Is)), found.Name, AboutFound(game.World(), found),
        PictureOf(game.World(), found),     {},         found.Fit};
    finding.Open = [&game, found = std::move(found)] { OpenFound(game, found); };
    findings.push_back(std::move(finding));
  }
}

/// "Go back to the morning of ..."; the days are told only to who looks for them. What is under way
/// does not stand in its way: it is part of the road that is left.
void AddMoments(Game& game, std::string_view typed, std::size_t most,
                std::vector<ui::Finding>& findings) {
  std::vector<ui::Finding> found;
  for (const PastMoment& past : PastMoments(game)) {
    std::string text = MomentText(past.Of);
    text.front() = static_cast<char>(std::tolower(static_cast<unsigned char>(text.front())));
    const int fit = FitOfName("Go back to " + text, "undo earlier day", typed);
    if (fit < 0 || found.size() >= most) continue;
    found.push_back({"Back in time",
                     "Go back to " + text,
                     SinceText(game, past),
                     {},
                     [&game, past] { AskAndGoBack(game, past); },
                     fit});
  }
  std::ranges::move(found, std::back_inserter(findings));
}

void AddTerms(Game& game, std::string_view typed, std::size_t most,
              std::vector<ui::Finding>& findings) {
  for (const auto& [term, fit] : TermsLike(typed, most))
    findings.push_back({"Glossary",
                        term->Name,
                        term->Of,
                        {},
                        [&game, term = term] { game.Desk().OpenGlossary(term->Name); },
                        fit});
}

}  // namespace

void ConnectFinding(Game& game) {
  game.Desk().BeginSearch = [&game]() -> ui::NameSearch {
    const auto names = game.HasWorld() ? std::make_shared<NameSearch>(game.World()) : nullptr;
    return [&game, names](std::string_view typed, std::size_t most) {
      std::vector<ui::Finding> findings;
      AddPages(game, typed, most, findings);
      if (names && game.HasWorld()) AddNames(game, *names, typed, most, findings);
      if (game.HasWorld()) AddMoments(game, typed, most, findings);
      AddTerms(game, typed, most, findings);
      return findings;
    };
  };
}

}  // namespace grapplemont
