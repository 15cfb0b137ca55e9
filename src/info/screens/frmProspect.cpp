#include "info/morning.h"
#include "info/prospect.h"
#include "info/screens/infotables.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

using Style = ui::Report::Style;

using K = ui::ColumnKind;

ui::Cell StepCell(int step) {
  return {static_cast<double>(step), Signed(step),
          step > 0   ? ui::Tone::Green
          : step < 0 ? ui::Tone::Red
                     : ui::Tone::Muted};
}

const CellColumns<BandThere> kBandTable = {
    {{"Rating", K::Number, 2, "Of the whole show, in percent."},
     [](const BandThere& band) {
       return ui::Cell(band.From, std::to_string(band.From) + " to " + std::to_string(band.To),
                       band.IsExpected ? ui::Tone::Gold : ui::Tone::Plain);
     }},
    {{"Event", K::Number, 1, "What an Event of this rating does to the image there."},
     [](const BandThere& band) { return StepCell(band.EventStep); }},
    {{"Television", K::Number, 1, "What a television show of this rating does to it."},
     [](const BandThere& band) { return StepCell(band.TvStep); }},
    {{"", K::Tag, 1}, [](const BandThere& band) {
       return band.IsExpected ? ui::Cell("Ours", ui::Tone::Gold) : ui::Cell("");
     }}};

const CellColumns<PlaceThere> kPlaceTable = {
    {{"Place on the card", K::Text, 3},
     [](const PlaceThere& place) { return PositionText(place.Position); }},
    {{"Here", K::Number, 1, "How many who can wrestle have the Over for it today."},
     [](const PlaceThere& place) { return place.Here; }},
    {{"There", K::Number, 1, "How many would have it there."}, [](const PlaceThere& place) {
       return ui::Cell(place.There, place.There < place.Here ? ui::Tone::Red : ui::Tone::Plain);
     }}};

/// What the promotion would be in the size class that is in sight.
class frmProspect : public GameScreen {
 public:
  explicit frmProspect(Game& game) : GameScreen(game, "frmProspect", "The Next Class") {
    lstsign.EmptyText =
        "Nobody better than half of the roster would come whose first year the money in hand "
        "pays.";
    txtprospect.Brief = true;
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns(
            {ui::Rows({ui::Group("What a rating does there", {ui::Grow(lstbands)}).Grow(3),
                       ui::Group("Places on the card", {ui::Grow(lstplaces)}).Grow(2)})
                 .Grow(),
             ui::Rows({ui::Group("", {txtprospect}),
                       ui::Group("Who would come and can be paid", {ui::Grow(lstsign)}).Grow()})
                 .Grow()}),
        &lblfacts);
  }

  void Return() override {
    const Prospect prospect = ProspectOf(world());
    Title = ProspectTitle(prospect);
    lblfacts.Text = FactsLine(prospect);
    lstbands.Fill(NumberedRows(kBandTable, prospect.Bands));
    lstplaces.Fill(NumberedRows(kPlaceTable, prospect.Places));
    FillTable(lstsign, RecruitTable(), prospect.Recruits,
              [](const RecruitThere& recruit) { return recruit.Uid; });
    WriteWords(prospect);
  }

 private:
  std::string FactsLine(const Prospect& prospect) {
    return "Our image is " + std::to_string(world().Player().Image) + "%; at " +
           (prospect.IsRise ? "100% we rise to " : "nothing we fall to ") +
           std::string(SizeText(prospect.Size)) + ".";
  }

  CellColumns<RecruitThere> RecruitTable() {
    const World& of = world();
    return {{{"Name", K::Text, 3},
             [&of](const RecruitThere& recruit) { return WorkerName(of, recruit.Uid); }},
            {{"Works for", K::Text, 1},
             [&of](const RecruitThere& recruit) {
               return PromotionInitials(of, of.FindWorker(recruit.Uid)->Employer);
             }},
            {{"Over", K::Percent, 1},
             [&of](const RecruitThere& recruit) { return int(of.FindWorker(recruit.Uid)->Over); }},
            {{"Asks", K::Number, 1, "Thousands of dollars a month, there."},
             [](const RecruitThere& recruit) {
               return ui::Cell(recruit.Wants.Wage, WageText(recruit.Wants.Wage));
             }},
            {{"Months", K::Number, 1},
             [](const RecruitThere& recruit) { return recruit.Wants.Months; }}};
  }

  void WriteWords(const Prospect& prospect) {
    std::vector<ui::Report::Paragraph> words = {{Style::Heading, Expectation(prospect)}};
    for (const std::string& fact : prospect.Facts) words.push_back({Style::Line, fact});
    if (!prospect.WillLeave.empty())
      words.push_back(
          {Style::Line, "Would not sign again there: " + Joined(prospect.WillLeave) + "."});
    txtprospect.Write(std::move(words));
  }

  static std::string Expectation(const Prospect& prospect) {
    if (prospect.Event.High == 0) return "The roster as it is could not fill an Event there.";
    return "An Event of ours would be rated " + std::to_string(prospect.Event.Low) + " to " +
           std::to_string(prospect.Event.High) + "% there.";
  }

  void lstsign_Open() {
    if (lstsign.Key() != 0) game_.OpenWorker(lstsign.Key());
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstbands{*this, "lstbands", HeadingsOf(kBandTable)};
  ui::ListBox lstplaces{*this, "lstplaces", HeadingsOf(kPlaceTable)};
  ui::Report txtprospect{*this, "txtprospect"};
  ui::ListBox lstsign{*this, "lstsign", HeadingsOf(RecruitTable()), ui::Handler{},
                      [this] { lstsign_Open(); }};
};

}  // namespace

SCREEN(frmProspect)

}  // namespace grapplemont
