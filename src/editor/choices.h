#pragma once

#include <string>
#include <vector>

#include "editor/recordkinds.h"

// Whom a field that leads to another record can be made to lead to.

namespace grapplemont {

struct Choice {
  std::string Says;
  int Uid = 0;  // 0 for fields that hold a name
  friend bool operator==(const Choice&, const Choice&) = default;
};

/// What may stand in the field of this record as it is, by name; "None" is not among them. A
/// commentator who is a worker has the negative of his uid.
std::vector<Choice> ChoicesFor(const World& world, RecordKind kind, const FieldPlace& place,
                               const std::byte* record);
/// Whether what may stand there hangs on the record's other fields.
bool HangsOnTheRecord(RecordKind kind, const Field& field);

/// Who the uid is: a promotion's initials, any other's name; "None" for none, "#17 (gone)" for a
/// uid that leads nowhere.
std::string NameOfUid(const World& world, Refers to, int uid);

}  // namespace grapplemont
