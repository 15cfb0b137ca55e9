#include "calendar/screens/screendesk.h"

#include "business/past.h"
#include "calendar/deskwork.h"
#include "rivals/endstories.h"
#include "storylines/feuds.h"
#include "storylines/titles.h"
#include "ui/goingback.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

/// How many month ends the lines go back.
constexpr std::size_t kMonthsShown = 12;

/// What a feud or a chart needs beside others.
constexpr int kLettersOfCard = 30;

/// What keeps somebody away, in a word or two.
ui::Cell AwayCell(const Worker& worker) {
  if (!IsAway(worker)) return std::to_string(worker.Condition) + "%";
  return {worker.Status == "Inj"   ? worker.InjuryName.Str()
          : worker.Status == "Sus" ? "Suspended"
          : worker.Status == "Reh" ? "In rehab"
                                   : "Sitting out",
          ui::Tone::Red};
}

const CellColumns<Worker> kHurt = {
    {{"Worker", K::Text, 5}, [](const Worker& worker) { return worker.Name.View(); }},
    {{"Condition", K::Text, 4}, AwayCell},
    {{"Months", K::Number, 2, "Until they are back."}, [](const Worker& worker) {
       return IsAway(worker) ? ui::Cell(int(worker.StatusMonths)) : ui::Cell(0.0, "");
     }}};
const CellColumns<Worker> kUnhappy = {
    {{"Worker", K::Text, 5}, [](const Worker& worker) { return worker.Name.View(); }},
    {{"Morale", K::Percent, 4}, [](const Worker& worker) { return int(worker.Morale); }}};
const CellColumns<Worker> kEnding = {
    {{"Worker", K::Text, 5}, [](const Worker& worker) { return worker.Name.View(); }},
    {{"Months", K::Number, 2, "Months left."}, [](const Worker& worker) {
       return ui::Cell(int(worker.ContractMonths),
                       worker.ContractMonths <= 1 ? ui::Tone::Red : ui::Tone::Plain);
     }}};

}  // namespace

DeskCards::DeskCards(ui::Screen& screen, Game& game)
    : game_(game),
      lstchampions(screen, "lstchampions", {{"Champion", K::Text, 5}, {"Title", K::Text, 5}},
                   ui::Handler{}, [this] { game_.Desk().Open("frmBelts"); }),
      lstfeuds(screen, "lstfeuds", {{"Feud", K::Text, 6}, {"Heat", K::Percent, 4}}, ui::Handler{},
               [this] { game_.Desk().Open("frmFeuds"); }),
      lsthurt(screen, "lsthurt", WithFaces(kHurt), ui::Handler{},
              [this] { OpenWorkerOf(lsthurt); }),
      lstunhappy(screen, "lstunhappy", WithFaces(kUnhappy), ui::Handler{},
                 [this] { OpenWorkerOf(lstunhappy); }),
      lstcontracts(screen, "lstcontracts", WithFaces(kEnding), ui::Handler{},
                   [this] { OpenWorkerOf(lstcontracts); }),
      chtimage(screen, "chtimage"),
      chtmoney(screen, "chtmoney") {
  chtmoney.Unit = "$";
  lstchampions.EmptyText = "Nobody holds a Title. Award one on the Titles page.";
  lstfeuds.EmptyText = "No feud is on. Start one on the Feuds page.";
  lsthurt.EmptyText = "Everybody is fit.";
  lstunhappy.EmptyText = "Nobody is unhappy.";
  lstcontracts.EmptyText = "No contract ends within half a year.";
  for (ui::ListBox* list : {&lstchampions, &lstfeuds, &lsthurt, &lstunhappy, &lstcontracts})
    list->Room = 4;
  for (ui::ListBox* list : {&lstchampions, &lstfeuds}) list->Least = 2;
  for (ui::ListBox* list : {&lsthurt, &lstunhappy, &lstcontracts}) list->Least = 1;
}

ui::Box DeskCards::People() {
  return ui::Columns({ui::Group("Hurt and worn", {ui::Grow(lsthurt)}).Grow(),
                      ui::Group("Unhappy", {ui::Grow(lstunhappy)}).Grow(),
                      ui::Group("Contracts that end", {ui::Grow(lstcontracts)}).Grow()});
}

ui::Box DeskCards::Standing() {
  // Names need more room than lines; the name that a table begins with is cut last.
  return ui::Columns({ui::Group("Champions", {ui::Grow(lstchampions)}).Grow(5),
                      ui::Group("Hottest feuds", {ui::Grow(lstfeuds)}).Grow(3),
                      ui::Group("Image", {ui::Grow(chtimage)}).Grow(2),
                      ui::Group("Money", {ui::Grow(chtmoney)}).Grow(2)})
      .Wide(kLettersOfCard);
}

void DeskCards::ShowStories() {
  std::vector<ui::ListBox::Row> champions, feuds;
  for (const Title* title : HeldTitles(world())) {
    champions.push_back(
        {{ChampionText(world(), *title), title->Name.View()}, world().Titles().NumberOf(*title)});
  }
  for (const Feud* feud : HottestFeuds(world())) {
    const FeudSides sides = SidesOf(*feud);
    feuds.push_back(
        {{SideName(world(), sides.One) + " vs " + SideName(world(), sides.Two), int(feud->Heat)},
         world().Feuds().NumberOf(*feud)});
  }
  lstchampions.Fill(std::move(champions));
  lstfeuds.Fill(std::move(feuds));
}

/// The last twelve month ends and today.
void DeskCards::ShowLines() {
  const auto standings = StandingsOf(world(), world().Player(), static_cast<int>(kMonthsShown) + 1);
  std::vector<double> images, money, places;
  std::vector<std::string> months;
  for (const PastStanding& standing : standings) images.push_back(standing.Image);
  chtimage.Captions = CaptionsOf(standings);
  chtimage.Places = PlacesOf(standings);
  chtimage.Lines = std::vector<ui::Chart::Series>{{"", std::move(images), ui::Tone::Gold}};
  chtimage.Tip = "In percent. At 100 the promotion rises to the next size, at 0 it falls.";
  const auto points = MoneyOverTime(world(), world().Player());
  for (std::size_t i = points.size() > kMonthsShown + 1 ? points.size() - kMonthsShown - 1 : 0;
       i < points.size(); ++i) {
    money.push_back(points[i].Dollars);
    months.push_back(points[i].When);
    places.push_back(PlaceOf(points[i].On));
  }
  chtmoney.Captions = std::move(months);
  chtmoney.Places = std::move(places);
  chtmoney.Lines = std::vector<ui::Chart::Series>{{"", std::move(money)}};
}

void DeskCards::Show() {
  ShowStories();
  ShowLines();
  FillTable(lsthurt, kHurt, HurtAndWorn(world()));
  FillTable(lstunhappy, kUnhappy, Unhappy(world()));
  FillTable(lstcontracts, kEnding, ContractsThatEnd(world()));
  // The line below the title says of whom there is nobody.
  for (ui::ListBox* list : {&lsthurt, &lstunhappy, &lstcontracts})
    list->Visible = list->Count() > 0;
}

void DeskCards::OpenWorkerOf(const ui::ListBox& list) {
  if (list.Key() != 0 && game_.OpenWorker) game_.OpenWorker(list.Key());
}

/// The headings of a table of workers, with their faces before the names.
std::vector<ui::Column> DeskCards::WithFaces(const CellColumns<Worker>& table) {
  std::vector<ui::Column> columns = HeadingsOf(table);
  columns.front().Draws = [this](int uid) { return FaceOf(world(), uid); };
  return columns;
}

std::string WaysAfterTheEnd(Game& game) {
  const World& world = game.World();
  const bool goesBack = WhyNoWayBack(game).empty();
  return StoryOfTheEnd(world, world.Game().EndCode).Headline + " " + kCareerIsOver +
         " Play On, behind your name, leads to another chair" +
         (goesBack ? ", and Back In Time to an earlier morning." : ".");
}

}  // namespace grapplemont
