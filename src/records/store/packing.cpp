#include "records/store/packing.h"

// The library's own choice for the machine at hand (GRAPPLEMONT_FASTEST_HASH) gives the same
// numbers as the code for the least of machines.
#ifdef GRAPPLEMONT_FASTEST_HASH
#include <xxh_x86dispatch.h>
#else
#include <xxhash.h>
#endif

namespace grapplemont {

std::uint64_t Checksum(ByteSpan bytes) {
  return XXH3_64bits(bytes.data(), bytes.size());
}

}  // namespace grapplemont
