#include "records/store/compression.h"

#include <zlib.h>

#include <new>

namespace grapplemont {

namespace {

const Bytef* In(const std::byte* bytes) {
  return reinterpret_cast<const Bytef*>(bytes);
}
Bytef* Out(std::byte* bytes) {
  return reinterpret_cast<Bytef*>(bytes);
}

}  // namespace

Bytes Compressed(ByteSpan bytes) {
  uLongf size = compressBound(static_cast<uLong>(bytes.size()));
  Bytes packed(size);
  const int done = compress2(Out(packed.data()), &size, In(bytes.data()),
                             static_cast<uLong>(bytes.size()), Z_DEFAULT_COMPRESSION);
  if (done != Z_OK) throw std::bad_alloc();  // the one thing that can go wrong
  packed.resize(size);
  return packed;
}

std::optional<Bytes> Uncompressed(ByteSpan bytes, std::size_t size) {
  // One more, so that what is longer is noticed.
  Bytes whole(size + 1);
  uLongf unpacked = static_cast<uLongf>(whole.size());
  const int done =
      uncompress(Out(whole.data()), &unpacked, In(bytes.data()), static_cast<uLong>(bytes.size()));
  if (done == Z_MEM_ERROR) throw std::bad_alloc();
  if (done != Z_OK || unpacked != size) return std::nullopt;
  whole.resize(size);
  return whole;
}

}  // namespace grapplemont
