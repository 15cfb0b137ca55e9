#pragma once

#include <optional>

#include "records/store/disk.h"

namespace grapplemont {

/// The bytes in fewer, as zlib makes them.
Bytes Compressed(ByteSpan bytes);
/// What they were made of; nothing where that is not just `size` bytes, or where they are spoiled.
std::optional<Bytes> Uncompressed(ByteSpan bytes, std::size_t size);

}  // namespace grapplemont
