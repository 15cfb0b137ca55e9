#pragma once

#include <string>

#include "records/world.h"

namespace grapplemont::test {

/// Every place in the world that names the uid as one of this kind.
inline std::string Mentions(const World& world, Refers to, int uid) {
  std::string places;
  for (const Table* table : world.Tables()) {
    if (!table->Layout()) continue;
    const RecordLayout& layout = *table->Layout();
    const ByteSpan bytes = table->RecordBytes();
    for (std::size_t at = 0; at < bytes.size(); at += static_cast<std::size_t>(layout.Size))
      for (const Field& field : layout.Fields)
        for (int i = 0; i < field.Count && field.To == to; ++i)
          if (FieldNumber(field, bytes.data() + at, i) == uid)
            places += std::string(layout.File) + " " + FieldName(field, i) + "\n";
  }
  return places;
}

}  // namespace grapplemont::test
