#include "records/tables/tablekinds.h"

#include <algorithm>

#include "records/fields/fields.h"
#include "records/world.h"

namespace grapplemont {

namespace {

// What a table leaves out is 0, "no", nobody or empty, except for what these say.

void Fill(Worker& worker) {
  worker.ContractType = "Non";
  worker.Status = "Nor";
  worker.Stable = "None";
  worker.Split = "None";
}

void Fill(Promotion& promotion) {
  promotion.Active = true;
  for (auto& split : promotion.Split) split = "None";
  promotion.CampName = "None";
  promotion.DevName = "None";
}

void Fill(Staff& staff) {
  staff.ContractType = "Non";
}

void Fill(Title& title) {
  for (Reign& reign : title.Reigns) {
    reign.Won = kNoTitleDate;
    reign.Holder = "None";
    reign.Lost = kNoTitleDate;
  }
}

void Fill(GameInfo& game) {
  for (Job& job : game.Jobs) job.Promotion = "None";
  game.Version = kVersion;
}

void Fill(Segment& segment) {
  segment.TitleName = "None";
  segment.Text = "None";
}

void Fill(KeptRow& row) {
  Fill(row.Booked);
}

void Fill(HeldMatch& bout) {
  bout.Title = "None";
}

void Fill(TitleReign& reign) {
  reign.From = kNoTitleDate;
  reign.Until = kNoTitleDate;
}

template <class T>
void Fill(T&) {}

template <class T>
TableKind Kind(std::string_view name, bool ofGame = false) {
  T record{};
  Fill(record);
  const auto bytes = std::as_bytes(std::span(&record, 1));
  return {name, &LayoutOf<T>(), Bytes(bytes.begin(), bytes.end()), ofGame};
}

std::vector<TableKind> MakeKinds() {
  return {Kind<Promotion>("promotions.csv"),
          Kind<Worker>("workers.csv"),
          Kind<Staff>("staff.csv"),
          Kind<Team>("teams.csv"),
          Kind<Stable>("stables.csv"),
          Kind<Title>("titles.csv"),
          Kind<Show>("shows.csv"),
          Kind<Network>("networks.csv"),
          Kind<Sponsor>("sponsors.csv"),
          Kind<Event>("events.csv"),
          Kind<GameInfo>(kGameTable, true),
          Kind<Mail>("mails.csv", true),
          Kind<Feud>("feuds.csv", true),
          Kind<Segment>("segments.csv", true),
          Kind<Incident>("incidents.csv", true),
          Kind<ShowRun>("showruns.csv", true),
          Kind<HistoryEntry>("history.csv", true),
          Kind<HeldMatch>("bouts.csv", true),
          Kind<MatchTally>("tallies.csv", true),
          Kind<TitleReign>("reigns.csv", true),
          Kind<ReportPart>("reports.csv", true),
          Kind<YearAward>("awards.csv", true),
          Kind<YearEnd>("yearends.csv", true),
          Kind<Deed>("deeds.csv", true),
          Kind<GuideState>("guides.csv", true),
          Kind<WorkerMonths>("months.csv", true),
          Kind<MoodChange>("moods.csv", true),
          Kind<KeptRow>("cards.csv", true),
          Kind<ShowNote>("mornings.csv", true),
          Kind<ReadMail>("mailread.csv", true),
          Kind<WorldKey>("worldkeys.csv", true),
          Kind<BoardState>("boards.csv", true),
          Kind<OwnerWish>("wishes.csv", true),
          Kind<MonthPlan>("monthplans.csv", true),
          Kind<HouseRules>("houserules.csv", true),
          Kind<CardMatch>("rivalcards.csv", true),
          Kind<Grudge>("grudges.csv", true),
          Kind<RingName>("ringnames.csv", true),
          Kind<SaidLine>("said.csv", true),
          Kind<TotalsState>("totals.csv", true),
          Kind<Career>("careers.csv", true),
          Kind<Tenure>("tenures.csv", true),
          Kind<Partnership>("pairs.csv", true),
          Kind<Feat>("feats.csv", true),
          Kind<YearLine>("yearbook.csv", true),
          Kind<HallMember>("hall.csv", true),
          Kind<TellingHabit>("tellings.csv", true),
          Kind<Annal>("annals.csv", true)};
}

}  // namespace

std::span<const TableKind> TableKinds() {
  static const std::vector<TableKind> kKinds = MakeKinds();
  return kKinds;
}

const TableKind* FindTableKind(std::string_view name) {
  for (const TableKind& kind : TableKinds())
    if (kind.Name == name) return &kind;
  return nullptr;
}

const TableKind& TableKindOf(const RecordLayout& layout) {
  const auto kinds = TableKinds();
  return *std::find_if(kinds.begin(), kinds.end(),
                       [&](const TableKind& kind) { return kind.Layout == &layout; });
}

std::vector<Column> ColumnsOfTable(const TableKind& kind) {
  std::vector<Column> columns;
  // Fields that are numbered side by side stand in turn: Won1, Holder1, Lost1, Won2.
  for (const Field& field : kind.Layout->Fields)
    for (int index = 0; index < field.Count; ++index) columns.push_back({&field, index});
  std::stable_sort(columns.begin(), columns.end(), [](const Column& a, const Column& b) {
    return a.Of->Offset + a.Index * a.Of->Stride < b.Of->Offset + b.Index * b.Of->Stride;
  });
  return columns;
}

bool IsUid(const Field& field) {
  return field.IsKey && field.Name == "Uid";
}

bool HasDefault(const TableKind& kind, const Column& column) {
  const Field& field = *column.Of;
  if (field.IsKey) return IsUid(field);
  const std::byte* record = kind.Default.data();
  switch (field.Kind) {
    case FieldKind::Date:
      return true;
    case FieldKind::Text:
      return field.Words.empty() ||
             !Says(field.Words, FieldText(field, record, column.Index)).empty();
    case FieldKind::Flag:
      return field.Words.empty();  // nobody is a woman only because nothing is said
    default: {
      const long long number = FieldNumber(field, record, column.Index);
      if (!field.Words.empty()) return !Says(field.Words, static_cast<int>(number)).empty();
      return number >= field.Min && number <= field.Max;
    }
  }
}

}  // namespace grapplemont
