#pragma once

#include <cstdint>
#include <ostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "records/store/disk.h"

// What bytes from outside can do to one reader. A target is met by libFuzzer (scripts/fuzz), which
// looks for bytes that reach something new, and by an ordinary test, which reads what stands in
// corpus/ and a few thousand changes of it. A finding is whatever ends the run: a sanitizer's
// report, any exception that leaves the target, a Require that does not hold.

namespace grapplemont::fuzz {

/// What a target demands of its reader does not hold.
class Finding : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};
void Require(bool holds, const std::string& what);

struct Target {
  std::string_view Name;
  void (*Run)(ByteSpan bytes);
  /// Changes a case as the reader sees it, within `most` bytes, the same for the same seed; none:
  /// only as bytes.
  void (*Change)(Bytes& bytes, std::size_t most, std::uint64_t seed) = nullptr;
  int Cases = 400;          // that the ordinary test makes
  std::size_t Most = 4096;  // bytes of those
};
/// By its name, where a test tells which failed.
inline void PrintTo(const Target& target, std::ostream* out) {
  *out << target.Name;
}
/// Those that the program has been linked with.
std::vector<Target>& Targets();
struct Registered {
  explicit Registered(const Target& target) { Targets().push_back(target); }
};

/// Takes a case apart from its front; behind its end there are zeros.
class Input {
 public:
  explicit Input(ByteSpan bytes) : left_(bytes) {}
  bool Empty() const { return left_.empty(); }
  int Byte();
  /// 0 to n - 1; 0 for none.
  std::size_t Below(std::size_t n);
  ByteSpan Take(std::size_t count);
  ByteSpan Rest() { return Take(left_.size()); }
  /// So many bytes as two of its own say.
  ByteSpan Piece() { return Take(Below(std::size_t{1} << 16)); }

 private:
  ByteSpan left_;
};

std::string_view TextOf(ByteSpan bytes);
ByteSpan BytesIn(std::string_view text);

/// Another case, made of one as a careless disk or hand would: bits, bytes, stretches that are
/// left out, doubled, swapped or zeroed, and pieces of `words` and of `other`. At most `most`
/// bytes.
void ChangeBytes(Bytes& bytes, std::size_t most, std::uint64_t seed,
                 const std::vector<std::string>& words, ByteSpan other);

/// The words of a dictionary of libFuzzer's form. Throws std::runtime_error for any other file.
std::vector<std::string> ReadDictionary(const std::string& path);

}  // namespace grapplemont::fuzz
