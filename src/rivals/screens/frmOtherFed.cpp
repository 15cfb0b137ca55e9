#include <algorithm>

#include "business/past.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "rivals/ownership.h"
#include "rivals/promotionfacts.h"
#include "rivals/purse.h"
#include "rivals/rivals.h"
#include "rivals/screens/rivalscreens.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/titles.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

constexpr int kLettersOfFacts = 50;  // beside which a table has room
/// Month ends that the chart shows.
constexpr int kChartMonths = 36;

ui::Cell SinceCell(const Title& title) {
  const Day won = title.Reigns[0].Won;
  if (title.Holder == 0 || won == kNoTitleDate) return {0.0, ""};
  return DayCell(won);
}

/// What the Title is for, as briefly as a table needs it.
std::string TitleKind(const Title& title) {
  if (title.Suspended) return "Suspended";
  return title.Woman ? "Women" : title.Lightweight ? "Light" : title.Singles ? "Singles" : "Tag";
}

std::string NetworkName(const World& world, const Show& show) {
  const Network* network = world.FindNetwork(show.Network);
  return network ? network->Name.Str() : "None";
}

/// What is known of a promotion, on sheets side by side: the part that the list of all promotions
/// and the page of one have in common.
class PromotionSheets {
 public:
  PromotionSheets(ui::Screen& screen, Game& game) : screen_(screen), game_(game) {
    txtabout.Brief = true;
    lstroster.EmptyText = "Nobody works here yet.";
    lststaff.EmptyText = "There is no staff.";
    lstshows.EmptyText = "No network carries a show of theirs.";
    lstevents.EmptyText = "No Event is planned.";
    lsttitles.EmptyText = "They have no Titles. A roster of eight founds its first.";
    lstsponsors.EmptyText = "Nobody sponsors them.";
    lstpast.EmptyText = "What a promotion was is remembered at the end of each month.";
  }

  ui::Box Layout() {
    return ui::Tabs(
        {ui::Group("Overview", {ui::Columns({ui::Rows({txtabout, ui::Spacer()}).Grow(),
                                             ui::Group("Sponsors", {ui::Grow(lstsponsors)}).Grow()})
                                    .Wide(kLettersOfFacts)
                                    .Grow()}),
         ui::Group("Roster", {ui::Grow(lstroster)}), ui::Group("Staff", {ui::Grow(lststaff)}),
         ui::Group("Shows", {ui::Grow(lstshows), ui::Grow(lstevents)}),
         ui::Group("Titles", {ui::Grow(lsttitles)}),
         ui::Group("History", {ui::Grow(chtstanding), ui::Grow(lstpast)})});
  }

  /// Nothing at all for nullptr.
  void Show(const Promotion* promotion) {
    for (ui::ListBox* list :
         {&lstroster, &lststaff, &lstshows, &lstevents, &lsttitles, &lstsponsors, &lstpast})
      list->Clear();
    chtstanding.Lines = std::vector<ui::Chart::Series>{};
    txtabout.WriteLines(promotion ? AboutPromotion(world(), *promotion) : "");
    if (!promotion) return;
    ShowPeople(promotion->Uid);
    ShowProgramme(promotion->Uid);
    ShowTitles(promotion->Uid);
    ShowSponsors(*promotion);
    ShowPast(*promotion);
  }

 private:
  const World& world() { return game_.World(); }

  void ShowPeople(int uid) {
    for (const Worker* worker : RosterOf(world(), uid))
      lstroster.Add({worker->Name.View(),
                     int(worker->Over),
                     {1.0 * worker->Position, std::string(PositionText(worker->Position))},
                     DispositionCell(*worker),
                     int(worker->Age),
                     StatusCell(*worker)},
                    worker->Uid);
    for (const Staff* staff : StaffOf(world(), uid))
      lststaff.Add({staff->Name.View(),
                    {1.0 * staff->Position, std::string(Says(kStaffPositions, staff->Position))},
                    int(staff->Talent)},
                   staff->Uid);
  }

  void ShowProgramme(int uid) {
    for (const grapplemont::Show& show : world().Shows())
      if (show.Owner == uid && show.Name != kToBeDeleted)
        lstshows.Add({show.Name.View(),
                      {1.0 * DayNumber(show.Day), show.Day.Str()},
                      Says(kTimeSlots, show.Slot),
                      NetworkName(world(), show),
                      {1.0 * show.Rating3, RatingText(show.Rating3)}});
    for (int month = 1; month <= 12; ++month)
      for (const Event& event : world().Events())
        if (event.Owner == uid && event.Month == month)
          lstevents.Add({event.Name.View(),
                         {1.0 * month, std::string(MonthName(month))},
                         Says(kEventTypes, event.Type)});
  }

  void ShowTitles(int uid) {
    std::vector<const Title*> titles;
    for (const Title& title : world().Titles())
      if (title.Owner == uid) titles.push_back(&title);
    std::ranges::stable_sort(titles, [](auto* a, auto* b) { return a->Image > b->Image; });
    for (const Title* title : titles)
      lsttitles.Add({title->Name.View(), TitleKind(*title), ChampionText(world(), *title),
                     SinceCell(*title), int(title->Image)},
                    title->Holder);
  }

  void ShowSponsors(const Promotion& promotion) {
    for (std::size_t i = 0; i < promotion.Sponsor.size(); ++i)
      if (const Sponsor* sponsor = world().FindSponsor(promotion.Sponsor[i]))
        lstsponsors.Add(
            {sponsor->Name.View(), i == 0 ? "Main" : "Minor", int(sponsor->ContractMonths)});
  }

  void ShowPast(const Promotion& promotion) {
    for (const MonthEnd& then : MonthEndsOf(world(), promotion))
      lstpast.Add(
          {then.When, SizeText(then.Size), then.Image, MoneyInWords(then.Size, then.Money)});
    const std::vector<PastStanding> standings = StandingsOf(world(), promotion, kChartMonths);
    ui::Chart::Series line{"Standing", {}, ui::Tone::Gold};
    for (const PastStanding& then : standings) line.Values.push_back(then.Score());
    chtstanding.Captions = CaptionsOf(standings);
    chtstanding.Places = PlacesOf(standings);
    chtstanding.Lines = std::vector{std::move(line)};
  }

  void OpenWorkerOf(const ui::ListBox& list) {
    if (list.Key() != 0 && game_.OpenWorker) game_.OpenWorker(list.Key());
  }

  ui::Screen& screen_;
  Game& game_;
  ui::Report txtabout{screen_, "txtabout"};
  ui::ListBox lstroster{screen_, "lstroster",
                        WithFaces(world(), {{"Name", K::Text, 8},
                                            {"Over", K::Percent, 5, "Popularity."},
                                            {"Position", K::Text, 7},
                                            {"Disposition", K::Tag, 4},
                                            {"Age", K::Number, 2},
                                            {"Status", K::Text, 5}}),
                        ui::Handler{}, [this] { OpenWorkerOf(lstroster); }};
  ui::ListBox lststaff{
      screen_, "lststaff",
      WithStaffFaces(world(),
                     {{"Name", K::Text, 4}, {"Post", K::Text, 3}, {"Talent", K::Percent, 2}})};
  ui::ListBox lstshows{screen_,
                       "lstshows",
                       {{"Show", K::Text, 4},
                        {"Day", K::Date, 2},
                        {"Slot", K::Text, 2},
                        {"Network", K::Text, 3},
                        {"Last rating", K::Number, 2}}};
  ui::ListBox lstevents{
      screen_, "lstevents", {{"Event", K::Text, 4}, {"Month", K::Date, 2}, {"Type", K::Text, 2}}};
  ui::ListBox lsttitles{
      screen_,
      "lsttitles",
      {{"Title", K::Text, 9},
       {"Kind", K::Text, 5},
       {.Title = "Champion", .Width = 9, .Draws = [this](int uid) { return FaceOf(world(), uid); }},
       {"Since", K::Date, 4},
       {"Image", K::Number, 3}},
      ui::Handler{},
      [this] { OpenWorkerOf(lsttitles); }};
  ui::ListBox lstsponsors{
      screen_,
      "lstsponsors",
      {{"Sponsor", K::Text, 4}, {"Place", K::Text, 2}, {"Months left", K::Number, 2}}};
  ui::ListBox lstpast{screen_,
                      "lstpast",
                      {{"Month end", K::Text, 3},
                       {"Size", K::Text, 2},
                       {"Image", K::Percent, 2},
                       {"Money", K::Text, 3}}};
  ui::Chart chtstanding{screen_, "chtstanding"};
};

const Promotion* LivingPromotion(const World& world, int uid) {
  const Promotion* promotion = world.FindPromotion(uid);
  return promotion && IsAlive(*promotion) ? promotion : nullptr;
}

std::string WhyNoBuyOut(const World& world, const Promotion* promotion) {
  if (!promotion) return "Choose a promotion first.";
  if (HasEnded(world.Game())) return kCareerIsOver;
  return promotion->Uid == world.PlayerUid() ? "This is your own promotion." : "";
}

std::string WhyNoCards(const World& world, const Promotion* promotion) {
  if (!promotion) return "Choose a promotion first.";
  return promotion->Uid == world.PlayerUid() ? "Your own shows are under Results." : "";
}

/// The rival's answer; when it is a yes the deals are laid out.
void AttemptBuyOut(Game& game, const Promotion& rival) {
  const bool owned = OwnerOf(game.World(), rival.Uid) != nullptr;
  const std::string who = WhoDecides(game.World(), rival);
  if (!IsForSale(rival)) {
    const char* refuses =
        owned ? " is not interested in selling." : " are not interested in selling.";
    return game.Desk().Say("Rejected!", who + refuses);
  }
  game.Desk().Say("Accepted!", who + (owned ? " is" : " are") + " willing to sell the company.");
  game.Desk().Open(MakefrmTakeover(game, rival.Uid));
}

/// Every promotion of the world, what is known of the selected one beside the list.
class frmOtherFed : public GameScreen {
 public:
  explicit frmOtherFed(Game& game)
      : GameScreen(game, "frmOtherFed", "Other Promotions", {.Manages = true}),
        sheets(*this, game) {
    BackBefore(cmdcards);
  }

  ui::Page Layout() override {
    return PageOf(ui::Columns({ui::Group("", {ui::Grow(lstfeds)}).Grow(), sheets.Layout().Grow()}),
                  &lblfacts, {&cmdcards, &cmdbuyout});
  }

  void Load() override {
    ShowAll();
    lstfeds.Select(1);
    lstfeds_Click();
  }
  void Return() override {
    ShowAll();
    if (lstfeds.Selected() == 0) lstfeds.Select(1);
    lstfeds_Click();
  }

 private:
  const Promotion* Chosen() { return LivingPromotion(world(), lstfeds.Key()); }

  void ShowAll() {
    const Rosters rosters(world());
    std::vector<ui::ListBox::Row> rows;
    for (const Promotion* promotion : PromotionsByStanding(world())) {
      const bool own = promotion->Uid == world().PlayerUid();
      rows.push_back({{ui::Cell(promotion->Name.View(), own ? ui::Tone::Gold : ui::Tone::Plain),
                       {-1.0 * promotion->Size, std::string(SizeText(promotion->Size))},
                       int(promotion->Image),
                       rosters.Of(promotion->Uid),
                       promotion->Initials.View()},
                      promotion->Uid});
    }
    lblfacts.Text = std::to_string(rows.size()) +
                    (rows.size() == 1 ? " promotion, yours." : " promotions, yours in gold.");
    lstfeds.Fill(std::move(rows));
  }

  void lstfeds_Click() {
    sheets.Show(Chosen());
    EnableUnless(cmdcards, WhyNoCards(world(), Chosen()));
    EnableUnless(cmdbuyout, WhyNoBuyOut(world(), Chosen()));
  }
  void cmdbuyout_Click() {
    if (const Promotion* rival = Chosen()) AttemptBuyOut(game_, *rival);
  }

  using K = ui::ColumnKind;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstfeds{
      *this, "lstfeds",
      WithCrests(world(), {{"Promotion", K::Text, 10},
                           {"Size", K::Date, 4},  // words that go by a number
                           {"Image", K::Percent, 4},
                           {"Roster", K::Number, 3, "Workers on the card, managers and the like."},
                           {"Initials", K::Text, 3}}),
      &frmOtherFed::lstfeds_Click};
  PromotionSheets sheets;
  ui::Button cmdcards{*this, "cmdcards", "Last Shows",
                      [this] { desk().Open(MakefrmCards(game_, lstfeds.Key())); }};
  ui::Button cmdbuyout{*this, "cmdbuyout", "Attempt Buy Out", &frmOtherFed::cmdbuyout_Click};
};

/// One promotion alone: what its name leads to.
class frmPromotion : public GameScreen {
 public:
  frmPromotion(Game& game, int uid)
      : GameScreen(game, "frmPromotion", "Promotion"), uid_(uid), sheets(*this, game) {}

  int Uid() const { return uid_; }

  ui::Page Layout() override {
    return PageOf(sheets.Layout().Grow(), &lblfacts, {&cmdchronicle, &cmdcards, &cmdbuyout});
  }

  void Return() override {
    const Promotion* promotion = LivingPromotion(game_.World(), uid_);
    if (promotion) Title = promotion->Name.Str();
    lblfacts.Text = promotion ? promotion->Initials + ", " + std::string(SizeText(promotion->Size))
                              : std::string("It has closed its doors.");
    sheets.Show(promotion);
    EnableUnless(cmdcards,
                 promotion ? WhyNoCards(game_.World(), promotion) : "It has closed its doors.");
    EnableUnless(cmdbuyout,
                 promotion ? WhyNoBuyOut(game_.World(), promotion) : "It has closed its doors.");
  }

 private:
  void cmdbuyout_Click() {
    if (const Promotion* rival = LivingPromotion(game_.World(), uid_)) AttemptBuyOut(game_, *rival);
  }

  int uid_;
  ui::Label lblfacts{*this, "lblfacts"};
  PromotionSheets sheets;
  ui::Button cmdchronicle{*this, "cmdchronicle", "Chronicle",
                          [this] { game_.OpenChapter("Promotions", uid_, ""); }};
  ui::Button cmdcards{*this, "cmdcards", "Last Shows",
                      [this] { desk().Open(MakefrmCards(game_, uid_)); }};
  ui::Button cmdbuyout{*this, "cmdbuyout", "Attempt Buy Out", &frmPromotion::cmdbuyout_Click};
};

}  // namespace

SCREEN(frmOtherFed)

std::unique_ptr<ui::Screen> MakefrmPromotion(Game& game, int uid) {
  return std::make_unique<frmPromotion>(game, uid);
}

void OpenPromotionPage(Game& game, int uid) {
  if (!LivingPromotion(game.World(), uid))
    return game.Desk().Say("Gone", "This promotion is not in the business any more.");
  if (const auto* top = dynamic_cast<frmPromotion*>(game.Desk().Top()); top && top->Uid() == uid)
    return;
  game.Desk().Open(MakefrmPromotion(game, uid));
}

void ConnectRivals(Game& game) {
  game.OpenPromotion = [&game](int uid) { OpenPromotionPage(game, uid); };
}

}  // namespace grapplemont
