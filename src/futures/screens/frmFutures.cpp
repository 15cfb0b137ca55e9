#include <algorithm>
#include <array>

#include "futures/screens/futurescreens.h"
#include "futures/screens/screenspread.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

constexpr std::array<int, 6> kYears = {1, 2, 3, 5, 7, 10};
const std::vector<std::string> kByHabit{""};

/// "Ann 61%, Bea 20%": those behind the likeliest.
std::string Others(const std::vector<Chance>& chances, std::size_t from) {
  constexpr std::size_t kMost = 3;
  std::vector<std::string> others;
  for (std::size_t at = from; at < std::min(chances.size(), from + kMost); ++at)
    others.push_back(chances[at].What + " " + std::to_string(chances[at].Percent()) + "%");
  return Joined(others);
}

/// A hundred worlds that go on from this morning for years.
class frmFutures : public GameScreen {
 public:
  explicit frmFutures(Game& game) : GameScreen(game, "frmFutures", "A Hundred Futures") {
    lblassumes.Text = HabitsText(world());
    lblassumes.Colour = ui::Tone::Muted;
    for (const int years : kYears) cmbyears.Add(Counted(years, "year"), years);
    cmbyears.Select(1);
    spread_.SetAnswers(kByHabit);
    lstsizes.SetColumns(ChanceColumns("Your class at the end", kByHabit));
    lstchances.SetColumns(ChanceColumns("On the way", kByHabit));
    for (ui::ListBox* list : {&lstsizes, &lstchances, &lsttitles, &lstfeds})
      list->EmptyText = "Play the worlds to see what becomes of them.";
    lstsizes.Room = 3;
    lstchances.Room = 5;
    BackBefore(cmdplay);
  }

  ui::Page Layout() override {
    ui::Page page = PageOf(
        ui::Rows({ui::Group("", {ui::Columns(
                                    {ui::Field("How far", cmbyears), playing_.Layout().Grow()})}),
                  ui::Tabs({ui::Group("Your promotion", {Own()}), spread_.Table("In figures"),
                            ui::Group("Champions", {ui::Grow(lsttitles)}),
                            ui::Group("Promotions", {ui::Grow(lstfeds)})})
                      .Grow(),
                  lblassumes}),
        &lblfacts, {&cmdexport, &playing_.Stop()}, &cmdplay);
    page.Then = &playing_.Stop();  // or a second Enter would end the day
    return page;
  }

  void Load() override {
    lblfacts.Text =
        "A hundred copies of the world go on from this morning, each with luck of its own.";
    ShowButtons();
  }
  /// The world that was looked at may have moved on meanwhile.
  void Return() override {
    const Futures* played = playing_.Played();
    if (played && played->Morning().On != world().Today()) cmbyears_Click();
    ShowButtons();
  }

 private:
  ui::Box Own() {
    return ui::Columns(
               {spread_.Picture().Grow(3), ui::Rows({ui::Group("", {ui::Grow(lstsizes)}).Grow(2),
                                                     ui::Group("", {ui::Grow(lstchances)}).Grow(3)})
                                               .Grow(2)})
        .Grow();
  }

  PlayedWorlds Worlds() const {
    const Futures* played = playing_.Played();
    if (!played) return {};
    return {played->Morning(), played->Days(), kByHabit, played->Lives()};
  }
  int DaysAhead() {
    const std::chrono::year_month_day today{world().Today()};
    const auto then = today + std::chrono::years{cmbyears.Key()};
    return static_cast<int>(
        (Day{then.ok() ? then : then.year() / then.month() / std::chrono::last} - world().Today())
            .count());
  }

  void ShowButtons() {
    const PlayedWorlds worlds = Worlds();
    const bool any = worlds.Morning && !worlds.Lives.front().empty();
    EnableUnless(cmdexport, any ? "" : "No world is finished yet.");
    const std::string why = WhyNoFutures(world());
    EnableUnless(cmdplay, playing_.IsPlaying() ? "The worlds are being played."
                          : playing_.IsDone()
                              ? "They have been played; choose another number of years to play "
                                "others."
                              : why);
  }

  void ShowWorlds() {
    PlayedWorlds worlds = Worlds();
    ShowButtons();
    FillChances(lstsizes, SizesAtLast(worlds.Lives));
    const bool any = worlds.Morning && !worlds.Lives.front().empty();
    if (any)
      FillChances(lstchances, {ChancesOf(worlds.Lives.front(), *worlds.Morning)});
    else
      lstchances.Clear();
    ShowTitles(worlds);
    ShowPromotions(worlds);
    spread_.Show(std::move(worlds));
  }

  void ShowTitles(const PlayedWorlds& worlds) {
    std::vector<ui::ListBox::Row> rows;
    const bool any = worlds.Morning && !worlds.Lives.front().empty();
    for (std::size_t at = 0; any && at < worlds.Morning->Titles.size(); ++at) {
      const FirstTitle& title = worlds.Morning->Titles[at];
      const std::vector<Chance> chances = ChampionsOf(worlds.Lives.front(), at);
      const auto stays = std::ranges::find(chances, title.Champion, &Chance::What);
      rows.push_back(
          {{title.Name,
            {PromotionInitials(world(), title.Owner),
             title.Owner == worlds.Morning->Promotion ? ui::Tone::Gold : ui::Tone::Plain},
            title.Image,
            title.Champion,
            {stays == chances.end() ? 0 : stays->Percent(), ui::Tone::Gold},
            chances.front().What,
            {chances.front().Percent(), ui::Tone::Gold},
            Others(chances, 1)},
           static_cast<int>(at) + 1});
    }
    lsttitles.Fill(std::move(rows));
  }

  void ShowPromotions(const PlayedWorlds& worlds) {
    std::vector<ui::ListBox::Row> rows;
    const bool any = worlds.Morning && !worlds.Lives.front().empty();
    for (std::size_t at = 0; any && at < worlds.Morning->Promotions.size(); ++at) {
      const FirstPromotion& promotion = worlds.Morning->Promotions[at];
      const std::vector<Chance> sizes = SizesOf(worlds.Lives.front(), promotion.Uid);
      ui::ListBox::Row row{
          {{promotion.Name,
            promotion.Uid == worlds.Morning->Promotion ? ui::Tone::Gold : ui::Tone::Plain},
           ui::Cell(promotion.Size, std::string(SizeText(promotion.Size)))},
          promotion.Uid};
      for (const Chance& chance : sizes)
        row.Cells.emplace_back(chance.Percent(),
                               chance.Worlds == 0 ? "" : std::to_string(chance.Percent()) + "%",
                               &chance == &sizes.back() ? ui::Tone::Red : ui::Tone::Plain);
      rows.push_back(std::move(row));
    }
    lstfeds.Fill(std::move(rows));
  }

  static std::vector<ui::Column> PromotionColumns() {
    std::vector<ui::Column> columns{{"Promotion", K::Text, 4},
                                    {"Now", K::Number, 2, "Its class this morning."}};
    for (const Term& size : kSizes)
      columns.push_back(
          {std::string(size.Says), K::Number, 1, "In how many worlds of a hundred it ends there."});
    columns.push_back({"Gone", K::Number, 1, "In how many worlds of a hundred it has closed."});
    return columns;
  }

  void cmbyears_Click() {
    playing_.Clear();
    ShowWorlds();
  }

  void cmdplay_Click() { playing_.Begin({}, DaysAhead()); }

  void cmdexport_Click() {
    const std::string wrote = ExportWorlds(game_, Worlds(), "A Hundred Futures", "futures.csv");
    if (!wrote.empty()) lblfacts.Text = wrote;
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::ComboBox cmbyears{*this, "cmbyears", &frmFutures::cmbyears_Click};
  PlayingCard playing_{*this, game_, [this] { ShowWorlds(); }};
  SpreadCard spread_{*this};
  ui::ListBox lstsizes{*this, "lstsizes"};
  ui::ListBox lstchances{*this, "lstchances"};
  ui::ListBox lsttitles{*this,
                        "lsttitles",
                        {{"Title", K::Text, 4},
                         {"Promotion", K::Text, 1},
                         {"Image", K::Percent, 1},
                         {"Champion now", K::Text, 3},
                         {"Still", K::Percent, 1, "How often they hold it at the end, too."},
                         {"Likeliest at the end", K::Text, 3},
                         {"Chance", K::Percent, 1, "How often the likeliest holds it at the end."},
                         {"Others", K::Text, 4}}};
  ui::ListBox lstfeds{*this, "lstfeds", PromotionColumns()};
  ui::Label lblassumes{*this, "lblassumes"};
  ui::Button cmdexport{*this, "cmdexport", "Export", &frmFutures::cmdexport_Click};
  ui::Button cmdplay{*this, "cmdplay", "Play The Worlds", &frmFutures::cmdplay_Click};
};

}  // namespace

SCREEN(frmFutures)

}  // namespace grapplemont
