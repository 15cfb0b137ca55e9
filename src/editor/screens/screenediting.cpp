#include "editor/screens/screenediting.h"

namespace grapplemont {

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
