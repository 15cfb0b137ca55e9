#pragma once

#include <memory>
#include <string>
#include <vector>

#include "editor/screens/screenformfields.h"

namespace grapplemont {

/// The fields of one record in their groups, as its page lays them out.
class RecordForm {
 public:
  /// `edited` runs whenever the player has changed a field.
  RecordForm(ui::Screen& screen, const RecordPage& page, ui::Handler edited);

  void Show(const World& world, Bytes record);
  /// No record is in hand.
  void Clear();
  bool Changed() const;
  /// The record as it was shown, with what the player has changed. Gives what is wrong, a line
  /// each, or nothing.
  std::string Take(Bytes& record) const;
  ui::Box Body();

 private:
  ui::Box TabBody(std::string_view tab);
  void Follow();

  const RecordPage& page_;
  ui::Handler edited_;
  std::vector<std::unique_ptr<FormField>> fields_;  // of all groups, in their order
  Bytes record_;
  const World* world_ = nullptr;
};

}  // namespace grapplemont
