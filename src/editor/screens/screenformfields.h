#pragma once

#include <memory>
#include <string>

#include "editor/screens/screenpages.h"
#include "ui/screen.h"

namespace grapplemont {

/// One control of a record's form. It remembers what it was shown, so that a field which nobody has
/// touched keeps its bytes, whatever they are.
class FormField {
 public:
  virtual ~FormField() = default;
  virtual ui::Control& Control() = 0;
  virtual void Show(const World& world, const std::byte* record) = 0;
  virtual bool Changed() const = 0;
  /// Puts what is in the control into the record; gives why it cannot, then nothing is changed.
  virtual std::string Take(std::byte* record) const = 0;
  /// Other fields of the record have changed: who may stand here may be others now.
  virtual void Follow(const World&, const std::byte* /*record*/) {}
};

/// `edited` runs whenever the player changes it.
std::unique_ptr<FormField> MakeFormField(ui::Screen& screen, RecordKind kind,
                                         const FormEntry& entry, const ui::Handler& edited);

}  // namespace grapplemont
