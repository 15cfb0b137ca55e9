#include "editor/screens/screenfiles.h"

#include <algorithm>

#include "records/fields/grouping.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

}  // namespace

std::vector<ui::Column> FaultColumns(std::string what) {
  return {{"File", K::Text, 3},
          {"Record", K::Number, 2},
          {"Name", K::Text, 5},
          {"Field", K::Text, 4},
          {std::move(what), K::Text, 12}};
}

void FillFaults(ui::ListBox& list, const std::vector<Fault>& faults) {
  std::vector<ui::ListBox::Row> rows;
  for (std::size_t i = 0; i < std::min(faults.size(), FaultList::kMost); ++i) {
    const Fault& fault = faults[i];
    rows.push_back({{fault.File, fault.Record == 0 ? ui::Cell("") : ui::Cell(fault.Record),
                     fault.Who, fault.Field, fault.What}});
  }
  list.Fill(std::move(rows), false);
}

std::string ShownOf(std::size_t count) {
  return count <= FaultList::kMost
             ? ""
             : ", of which the first " + Grouped(FaultList::kMost) + " are shown";
}

namespace {

class EditingWork : public ui::Work {
 public:
  explicit EditingWork(Game& game) : Data(game.Disk(), game.DataFolder(), game.PristineData()) {}
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
