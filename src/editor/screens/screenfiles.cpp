#include "editor/screens/screenfiles.h"

#include <algorithm>

#include "records/fields/wording.h"
#include "records/tables/worldreport.h"

namespace grapplemont {

std::vector<ui::Column> FaultColumns(std::string what) {
  using K = ui::ColumnKind;
  return {{"File", K::Text, 3},
          {"Record", K::Number, 2},
          {"Name", K::Text, 5},
          {"Field", K::Text, 4},
          {std::move(what), K::Text, 12}};
}

void FillFaults(ui::ListBox& list, const std::vector<Fault>& faults) {
  std::vector<ui::ListBox::Row> rows;
  for (std::size_t i = 0; i < std::min(faults.size(), kMostRows); ++i) {
    const Fault& fault = faults[i];
    rows.push_back({{fault.File, fault.Record == 0 ? ui::Cell("") : ui::Cell(fault.Record),
                     fault.Who, fault.Field, fault.What}});
  }
  list.Fill(std::move(rows), false);
}

std::string ShownOf(std::size_t count) {
  return count <= kMostRows ? ""
                            : ", of which the first " + std::to_string(kMostRows) + " are shown";
}

ui::Cell FateCell(Fate fate) {
  switch (fate) {
    case Fate::Added:
      return {"Added", ui::Tone::Green};
    case Fate::Renumbered:
      return {"New uid", ui::Tone::Amber};
    default:
      return {"Left out", ui::Tone::Red};
  }
}

std::string Tally(const Arrivals& arrivals) {
  const int renumbered = arrivals.Count(Fate::Renumbered);
  const int out = arrivals.Count(Fate::LeftOut);
  const int in = arrivals.Count(Fate::Added) + renumbered;
  const auto records = [](int count, const char* one, const char* many) {
    return Counted(static_cast<std::size_t>(count), "record") + (count == 1 ? one : many);
  };
  std::string text = records(in, " comes in", " come in");
  if (renumbered > 0) text += ", " + std::to_string(renumbered) + " under another uid";
  if (out > 0) text += "; " + std::to_string(out) + (out == 1 ? " stays out" : " stay out");
  return text + ".";
}

namespace {

class EditingWork : public ui::Work {
 public:
  explicit EditingWork(Game& game) : Data(game.Disk(), game.DataFolder()) {}
  void Commit() override { Data.Commit(); }
  void Rollback() override { Data.Rollback(); }
  std::string Explain(const std::exception& fault) const override {
    const auto* overflow = dynamic_cast<const FieldOverflow*>(&fault);
    return overflow ? Data.World().Explain(*overflow) : fault.what();
  }

  DataFolder Data;
};

}  // namespace

DataFolder& EditedData(Game& game) {
  if (const auto editing = std::dynamic_pointer_cast<EditingWork>(game.Joined()))
    return editing->Data;
  const auto editing = std::make_shared<EditingWork>(game);
  game.Join(editing);
  return editing->Data;
}

void StopEditing(Game& game) {
  if (std::dynamic_pointer_cast<EditingWork>(game.Joined())) game.Join(nullptr);
}

}  // namespace grapplemont
