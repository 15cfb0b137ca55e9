#pragma once

#include "records/fields/field.h"
#include "support/randomworld.h"

namespace grapplemont::fuzz {

/// Puts into one field of the record what stands at the ends of its range, just outside, among its
/// words, or anything.
void ChangeField(test::Dice& dice, const RecordLayout& layout, std::byte* record);

/// Changes a file of such records: a field of one, or a record comes, goes or comes twice.
void ChangeRecords(test::Dice& dice, const RecordLayout& layout, Bytes& file, std::size_t most);

}  // namespace grapplemont::fuzz
