#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace grapplemont::test {

/// What one process writes and the one that made it reads, whatever becomes of the writer.
class Paper {
 public:
  Paper();
  ~Paper();
  Paper(const Paper&) = delete;
  Paper& operator=(const Paper&) = delete;
  /// Adds a line. Throws std::length_error when the paper is full.
  void Write(std::string_view line);
  std::string_view Written() const;
  void Clear();

 private:
  struct Sheet;
  Sheet* sheet_;
};

/// How something that was run in a process of its own has ended.
struct Ran {
  int Number;                // from 0
  std::string_view Written;  // as long as it is looked at
  std::string Died;          // what killed it; empty for nothing
};

/// Runs the numbers from 0 to count - 1, some at a time, each in a process of its own: one that
/// dies takes nothing along. Must not be begun within another. `done` gets them in the order in
/// which they end, and may stop the rest from being begun by giving false.
void RunApart(int count, int atATime, const std::function<void(int number, Paper& paper)>& run,
              const std::function<bool(const Ran& ran)>& done);

}  // namespace grapplemont::test
