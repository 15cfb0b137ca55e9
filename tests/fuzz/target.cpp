#include "fuzz/target.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <span>

namespace grapplemont::fuzz {

void Require(bool holds, const std::string& what) {
  if (!holds) throw Finding(what);
}

std::vector<Target>& Targets() {
  static std::vector<Target> targets;
  return targets;
}

int Input::Byte() {
  const ByteSpan taken = Take(1);
  return taken.empty() ? 0 : std::to_integer<int>(taken[0]);
}

std::size_t Input::Below(std::size_t n) {
  std::size_t number = 0;
  for (std::size_t room = 1; room < n; room <<= 8)
    number = number << 8 | static_cast<std::size_t>(Byte());
  return n == 0 ? 0 : number % n;
}

ByteSpan Input::Take(std::size_t count) {
  const ByteSpan taken = left_.first(std::min(count, left_.size()));
  left_ = left_.subspan(taken.size());
  return taken;
}

std::string_view TextOf(ByteSpan bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

ByteSpan BytesIn(std::string_view text) {
  return std::as_bytes(std::span(text));
}

namespace {

class Changer {
 public:
  Changer(Bytes& bytes, std::uint64_t seed, const std::vector<std::string>& words, ByteSpan other)
      : bytes_(bytes), chance_(seed), words_(words), other_(other) {}

  void Change() {
    const std::size_t at = Below(bytes_.size() + 1), count = 1 + Below(Below(8) == 0 ? 256 : 8);
    switch (Below(9)) {
      case 0:
        return Each(at, 1, [&](std::byte& byte) { byte ^= std::byte{1} << Below(8); });
      case 1:
        return Each(at, count, [&](std::byte& byte) { byte = std::byte(Below(256)); });
      case 2:
        return Each(at, count, [](std::byte& byte) { byte = {}; });
      case 3:
        return Put(at, 0, Bytes(count, std::byte(Below(256))));
      case 4:
        return Put(at, count, {});
      case 5:
        return Put(at, 0, Piece(bytes_, Below(bytes_.size() + 1), count));
      case 6:
        return Swap(at, Below(bytes_.size() + 1), count);
      case 7:
        return Put(at, Below(2) * count, Piece(other_, Below(other_.size() + 1), count));
      default:
        if (words_.empty()) return;
        const ByteSpan word = BytesIn(words_[Below(words_.size())]);
        return Put(at, Below(2) * word.size(), {word.begin(), word.end()});
    }
  }

 private:
  std::size_t Below(std::size_t n) { return static_cast<std::size_t>(chance_() % n); }
  static Bytes Piece(ByteSpan of, std::size_t at, std::size_t count) {
    const ByteSpan piece = of.subspan(at, std::min(count, of.size() - at));
    return {piece.begin(), piece.end()};
  }
  template <class Do>
  void Each(std::size_t at, std::size_t count, Do change) {
    for (std::byte& byte : std::span(bytes_).subspan(at, std::min(count, bytes_.size() - at)))
      change(byte);
  }
  void Put(std::size_t at, std::size_t instead, const Bytes& piece) {
    const auto from = bytes_.begin() + static_cast<std::ptrdiff_t>(at);
    const auto gone = static_cast<std::ptrdiff_t>(std::min(instead, bytes_.size() - at));
    bytes_.insert(bytes_.erase(from, from + gone), piece.begin(), piece.end());
  }
  void Swap(std::size_t a, std::size_t b, std::size_t count) {
    if (a > b) std::swap(a, b);
    count = std::min({count, b - a, bytes_.size() - b});
    const auto from = [&](std::size_t at) {
      return bytes_.begin() + static_cast<std::ptrdiff_t>(at);
    };
    std::swap_ranges(from(a), from(a + count), from(b));
  }

  Bytes& bytes_;
  std::mt19937_64 chance_;
  const std::vector<std::string>& words_;
  ByteSpan other_;
};

}  // namespace

void ChangeBytes(Bytes& bytes, std::size_t most, std::uint64_t seed,
                 const std::vector<std::string>& words, ByteSpan other) {
  Changer changer(bytes, seed, words, other);
  for (std::uint64_t left = 1 + seed % 4; left > 0; --left) changer.Change();
  if (bytes.size() > most) bytes.resize(most);
}

std::vector<std::string> ReadDictionary(const std::string& path) {
  std::ifstream in(path);
  if (!in) throw std::runtime_error(path + " cannot be read");
  std::vector<std::string> words;
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line[0] == '#') continue;
    const std::size_t first = line.find('"'), last = line.rfind('"');
    if (last == line.npos || first == last)
      throw std::runtime_error(path + " has a line without a word in quotes: " + line);
    std::string word;
    for (std::size_t i = first + 1; i < last; ++i) {
      if (line[i] != '\\') {
        word += line[i];
      } else if (line[++i] == 'x' && i + 2 < last) {
        word += static_cast<char>(std::stoi(line.substr(i + 1, 2), nullptr, 16));
        i += 2;
      } else {
        word += line[i];
      }
    }
    words.push_back(std::move(word));
  }
  return words;
}

}  // namespace grapplemont::fuzz
