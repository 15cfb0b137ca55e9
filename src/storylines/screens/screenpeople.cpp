#include "storylines/screens/screenpeople.h"

#include <iterator>

#include "records/fields/fields.h"
#include "records/fields/grouping.h"
#include "records/modWresCheck.h"
#include "storylines/titles.h"
#include "ui/pictureof.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

constexpr std::size_t kDayAndMonthLetters = 6, kYearLetters = 5;  // "09 Mar", " 2026"

ui::Cell ChampionCell(const World& world, const Title& title) {
  return {ChampionText(world, title), title.Holder == 0 ? ui::Tone::Muted : ui::Tone::Plain};
}

ui::Cell StandingCell(const World& world, const Title& title) {
  if (title.Suspended) return {"Suspended", ui::Tone::Red};
  const std::string why = WhyNoDefence(world, title);
  return {why.empty() ? why : "Holder " + why, ui::Tone::Amber};
}

const CellColumns<Reign> kReignTable = {
    {{"Holder"}, [](const Reign& reign) { return reign.Holder.View(); }},
    {{"Won", K::Date}, [](const Reign& reign) { return DateCell(reign.Won, kBeforeTheGame); }},
    {{"Lost", K::Date}, [](const Reign& reign) { return DateCell(reign.Lost, ""); }}};

}  // namespace

ui::Tone DispositionTone(const Worker& worker) {
  if (worker.Disposition == "F") return ui::Tone::Blue;
  return worker.Disposition == "H" ? ui::Tone::Red : ui::Tone::Muted;
}

ui::Cell DispositionCell(const Worker& worker) {
  return {DispositionText(worker.Disposition), DispositionTone(worker)};
}

ui::Cell StatusCell(const Worker& worker) {
  if (worker.Status == "Nor") return "";
  return {StatusLine(worker), ui::Tone::Red};
}

std::string BriefDate(Day day) {
  const std::string plain = PlainDate(day);
  return plain.substr(0, kDayAndMonthLetters) + plain.substr(plain.size() - kYearLetters);
}

std::vector<std::string> DayCaptions(const std::vector<Day>& days) {
  constexpr auto kWithoutYear = std::chrono::days{300};
  const bool isLong = !days.empty() && days.back() - days.front() > kWithoutYear;
  std::vector<std::string> captions;
  for (const Day day : days)
    captions.push_back(BriefDate(day).substr(0, isLong ? std::string::npos : kDayAndMonthLetters));
  return captions;
}

ui::Cell CountCell(int count) {
  return {static_cast<double>(count), Grouped(count)};
}

ui::Cell DayCell(Day day) {
  return {static_cast<double>((day - kDayZero).count()), BriefDate(day)};
}

ui::Cell DateCell(Day day, const char* unknown) {
  return day > kNoTitleDate ? DayCell(day) : ui::Cell(unknown, ui::Tone::Muted);
}

constexpr const char* kDisposition = "Disposition";

CellColumns<Worker> PeopleTable(CellColumns<Worker> more) {
  CellColumns<Worker> columns = {
      {{"Name", K::Text, 4}, [](const Worker& worker) { return worker.Name.View(); }},
      {{"Over", K::Number, 1, "Popularity."},
       [](const Worker& worker) { return ui::Cell(worker.Over); }},
      {{.Title = kDisposition,
        .Kind = K::Tag,
        .Width = 2,
        .Tip = "Face, Heel or Tweener.",
        .Short = "Disp."},
       DispositionCell}};
  std::move(more.begin(), more.end(), std::back_inserter(columns));
  return columns;
}

ui::Sign DispositionSign(std::string_view word) {
  constexpr std::pair<std::string_view, ui::Sign> kSigns[] = {
      {"Face", ui::Sign::Face}, {"Heel", ui::Sign::Heel}, {"Tweener", ui::Sign::Tweener}};
  for (const auto& [says, sign] : kSigns)
    if (word == says) return sign;
  return ui::Sign::None;
}

std::vector<ui::Column> NarrowColumns(const CellColumns<Worker>& people) {
  std::vector<ui::Column> columns = HeadingsOf(people);
  for (ui::Column& column : columns)
    if (column.Title == kDisposition) column.SignOf = DispositionSign;
  return columns;
}

std::vector<ui::Column> ShortColumns() {
  return NarrowColumns(PeopleTable());
}

void FillShort(ui::ListBox& list, const std::vector<const Worker*>& people) {
  FillTable(list, PeopleTable(), people);
}

ui::Drawing FaceOf(const World& world, int workerUid) {
  const Worker* worker = world.FindWorker(workerUid);
  return worker ? ui::Drawing(PortraitOf(*worker)) : ui::Drawing();
}

ui::Drawing PlateAt(const World& world, int number) {
  if (number < 1 || number > world.Titles().Count()) return {};
  return PlateOf(world.Titles()[number], number);
}

namespace {

std::vector<ui::Column> WithPictures(std::vector<ui::Column> columns,
                                     std::function<ui::Drawing(int key)> draw) {
  columns.front().Draws = std::move(draw);
  return columns;
}

}  // namespace

std::vector<ui::Column> WithFaces(const World& world, std::vector<ui::Column> columns) {
  return WithPictures(std::move(columns), [&world](int uid) { return FaceOf(world, uid); });
}

std::vector<ui::Column> WithStaffFaces(const World& world, std::vector<ui::Column> columns) {
  return WithPictures(std::move(columns), [&world](int uid) {
    const Staff* staff = world.FindStaff(uid);
    return staff ? ui::Drawing(PortraitOf(*staff)) : ui::Drawing();
  });
}

std::vector<ui::Column> WithCrests(const World& world, std::vector<ui::Column> columns) {
  return WithPictures(std::move(columns), [&world](int uid) {
    const Promotion* promotion = world.FindPromotion(uid);
    return promotion ? ui::Drawing(CrestOf(*promotion)) : ui::Drawing();
  });
}

void EnableUnless(ui::Control& control, const std::string& why) {
  control.Enabled = why.empty();
  control.Tip = why;
}

void EnableUnless(Controls controls, const std::string& why) {
  for (ui::Control& control : controls) EnableUnless(control, why);
}

CellColumns<Title> TitleTable(const World& world) {
  const ui::Column name{.Title = "Title",
                        .Draws = [&world](int number) { return PlateAt(world, number); }};
  return {{name, [](const Title& title) { return title.Name.View(); }},
          {{"Holder"}, [&](const Title& title) { return ChampionCell(world, title); }},
          // The holder's name needs the room more than words for no date do.
          {{"Since", K::Date, 0, "When it was won; a dash where that was before the game."},
           [](const Title& title) {
             return title.Holder == 0 ? ui::Cell("") : DateCell(title.Reigns[0].Won, "-");
           }},
          {{.Title = "Image",
            .Kind = K::Percent,
            .Tip = "How much the fans make of it.",
            .Term = "Title image"},
           [](const Title& title) { return ui::Cell(title.Image); }},
          {{"Kind", K::Tag}, KindText},
          {{"State", K::Tag, 0, "Suspended, or what keeps its holder from defending it."},
           [&](const Title& title) { return StandingCell(world, title); }}};
}

std::vector<ui::Column> ReignColumns() {
  return HeadingsOf(kReignTable);
}

std::vector<ui::ListBox::Row> ReignRows(const Title& title) {
  std::vector<ui::ListBox::Row> rows;
  for (const Reign& reign : title.Reigns)
    if (reign.Holder != "None")
      rows.push_back(RowOf(kReignTable, reign, static_cast<int>(rows.size()) + 1));
  return rows;
}

}  // namespace grapplemont
