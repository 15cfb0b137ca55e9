#include "program/screenways.h"

#include <algorithm>

#include "business/tvtalks.h"
#include "futures/futures.h"
#include "info/search.h"
#include "show/nightbook.h"
#include "ui/acts.h"

namespace grapplemont {

namespace {

/// What is seen through to its end before another room is entered.
constexpr std::string_view kSeenThrough[] = {"frmBooking",     "frmPPVBooking", "frmAutoBook",
                                             "frmMatchOutput", "frmPostShow",   "frmIncident",
                                             "frmPinky",       "frmTheEnd"};
constexpr const char* kUnderWay = "What is under way has to be seen through to its end first.";

bool MayEnterRooms(const ui::Desk& desk) {
  return std::ranges::none_of(desk.Screens(), [](const auto& screen) {
    return std::ranges::find(kSeenThrough, screen->Name()) != std::end(kSeenThrough);
  });
}

std::string WhyNoMorning(const World& world) {
  return HasAnyNight(world) ? "" : "No show has been held yet.";
}
std::string WhyNoOffer(const World& world) {
  return world.Game().TvOfferWait != 0 ? "" : "No network waits for an answer.";
}

/// A page of a game, or of the start: its screen, or the button of the screen that leads to it.
struct PageRow {
  const char* Title;
  const char* Also;
  const char* Screen;
  const char* Button = nullptr;
  std::string (*WhyNot)(const World&) = nullptr;
};
constexpr PageRow kInGamePages[] = {
    {"A Hundred Futures", "what if forecast simulate worlds ahead spread chances", "frmFutures",
     nullptr, WhyNoFutures},
    {"Advertising", "promotion spending publicity", "frmFed", "cmdadvertising"},
    {"Awards", "prizes year best of", "frmAwards"},
    {"Career", "user jobs reputation player me", "frmUser"},
    {"Charity", "donation give money", "frmCharity"},
    {"Chronicle", "book history past story chapter chronicles", "frmChronicle"},
    {"Compare", "versus side by side workers", "frmRoster", "cmdcompare"},
    {"Drafts", "plan ahead card coming shows booking auto booker", "frmDrafts"},
    {"Family Trees", "Title lineage history champions teams partners", "frmFamilyTree"},
    {"Hall of Fame", "legends honours greatest retired", "frmHall"},
    {"Loan", "bank borrow debt credit", "frmLoan"},
    {"Loading Screens", "pictures", "frmLoadingScreens"},
    {"Managers", "clients", "frmManagers"},
    {"Merchandising", "shirts sales spending", "frmFed", "cmdmerch"},
    {"Networks", "channels television", "frmViewNetworks"},
    {"Production", "quality spending lights", "frmFedProd"},
    {"Promo Tape", "demo network television", "frmPromoTape", nullptr, WhyNoTape},
    {"Reigns", "Title history champions past holders", "frmReigns"},
    {"Report Column", "reports past shows matches", "frmReports"},
    {"Shortlist", "watched wanted favourites", "frmShortlist"},
    {"Sponsors", "money adverts", "frmFedSponsor"},
    {"Start A Feud", "new feud rivalry", "frmFeudStart"},
    {"Television Offer", "network contract", "frmTvOffer", nullptr, WhyNoOffer},
    {"Television Ranking", "ratings viewers", "frmTVRank"},
    {"Television Shows", "all shows programmes", "frmViewShows"},
    {"The morning after", "results last show recap", "frmMorning", nullptr, WhyNoMorning},
    {"Ticket Prices", "seats gate admission raise lower change", "frmTicket"},
    {"Turns", "heel face change sides", "frmTurn"},
    {"Wages", "salaries pay costs raise", "frmWages"},
    {"Yearbook", "annual review past years history", "frmYearbook"},
    {"What We Are Worth", "value company worth", "frmFedValue"},
};
constexpr PageRow kStartPages[] = {
    {"New Game", "begin start career", "frmNewGame"},
    {"Load Game", "continue save slots import export", "frmLoadGame"},
    {"File Editor", "data records change", "frmEditor"},
    {"Credits", "authors makers", "frmCredits"},
};
constexpr PageRow kAbout{"About Grapplemont",
                         "version licence license libraries new changes log faults bug report",
                         "frmAbout"};

void OpenPage(Game& game, const PageRow& page, const std::string& why) {
  if (!why.empty()) return game.Desk().Say("Not now", why);
  ui::Screen* const screen = Enter(game.Desk(), page.Screen);
  if (!screen || !page.Button) return;
  if (const std::string cannot = ui::Click(game.Desk(), *screen, page.Button); !cannot.empty())
    game.Desk().Say("Not now", cannot);
}

void AddPage(Game& game, const PageRow& page, std::string_view typed, const std::string& why,
             std::vector<ui::Finding>& findings) {
  const int fit = FitOfName(page.Title, page.Also, typed);
  if (fit < 0) return;
  findings.push_back({"Pages",
                      page.Title,
                      why.empty() ? why : "Not now: " + why,
                      {},
                      [&game, &page, why] { OpenPage(game, page, why); },
                      fit});
}

}  // namespace

bool Enters(ui::Desk& desk) {
  const bool may = MayEnterRooms(desk);
  if (!may) desk.Say("Not now", kUnderWay);
  return may;
}

ui::Screen* Enter(ui::Desk& desk, const char* screen) {
  if (!Enters(desk)) return nullptr;
  if (!desk.Top() || desk.Top()->Name() != screen) desk.Open(screen);
  return desk.Top();
}

void AddPages(Game& game, std::string_view typed, std::size_t most,
              std::vector<ui::Finding>& findings) {
  std::vector<ui::Finding> pages;
  const std::string under = MayEnterRooms(game.Desk()) ? "" : kUnderWay;
  const bool plays = game.HasWorld();
  for (const PageRow& page : kInGamePages)
    if (plays)
      AddPage(game, page, typed, under.empty() && page.WhyNot ? page.WhyNot(game.World()) : under,
              pages);
  for (const PageRow& page : kStartPages)
    AddPage(game, page, typed, plays ? "Quit leads to the menu, where it stands." : "", pages);
  AddPage(game, kAbout, typed, plays ? under : "", pages);
  std::ranges::stable_sort(pages, {}, &ui::Finding::Fit);
  pages.resize(std::min(pages.size(), most));
  findings.insert(findings.end(), pages.begin(), pages.end());
}

}  // namespace grapplemont
