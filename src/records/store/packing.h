#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "records/store/disk.h"

// How the store's own files become bytes and are read again. All numbers are little-endian.

namespace grapplemont {

/// XXH3, 64 bits.
std::uint64_t Checksum(ByteSpan bytes);

class Packer {
 public:
  void Reserve(std::size_t expected) { bytes_.reserve(expected); }
  template <std::integral T>
  void Put(T value) {
    std::array<std::byte, sizeof(T)> bytes;
    for (std::size_t i = 0; i < sizeof(T); ++i) bytes[i] = ByteOf(value, i);
    bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
  }
  void Put(ByteSpan bytes) { bytes_.insert(bytes_.end(), bytes.begin(), bytes.end()); }
  void Put(std::string_view text) { Put(std::as_bytes(std::span(text))); }
  template <std::integral T>
  void PutAt(std::size_t at, T value) {
    for (std::size_t i = 0; i < sizeof(T); ++i) bytes_[at + i] = ByteOf(value, i);
  }
  void PadTo(std::size_t size) { bytes_.resize(size); }
  const Bytes& Packed() const& { return bytes_; }
  Bytes Packed() && { return std::move(bytes_); }

 private:
  template <class T>
  static std::byte ByteOf(T value, std::size_t i) {
    return static_cast<std::byte>(static_cast<std::uint64_t>(value) >> (8 * i));
  }
  Bytes bytes_;
};

/// Reads what Packer put; once anything is missing, all else is empty and Whole() is false.
class Unpacker {
 public:
  explicit Unpacker(ByteSpan bytes) : bytes_(bytes) {}
  template <std::integral T>
  T Get() {
    std::uint64_t value = 0;
    const ByteSpan taken = Take(sizeof(T));
    for (std::size_t i = 0; i < taken.size(); ++i)
      value |= std::to_integer<std::uint64_t>(taken[i]) << (8 * i);
    return static_cast<T>(value);
  }
  ByteSpan Take(std::uint64_t count) {
    if (count > bytes_.size()) {
      whole_ = false;
      bytes_ = {};
      return {};
    }
    const ByteSpan taken = bytes_.first(static_cast<std::size_t>(count));
    bytes_ = bytes_.subspan(static_cast<std::size_t>(count));
    return taken;
  }
  /// A text behind its length, which is a `Count`.
  template <std::integral Count>
  std::string GetText() {
    const ByteSpan text = Take(Get<Count>());
    return {reinterpret_cast<const char*>(text.data()), text.size()};
  }
  ByteSpan Left() const { return bytes_; }
  bool Whole() const { return whole_; }

 private:
  ByteSpan bytes_;
  bool whole_ = true;
};

}  // namespace grapplemont
