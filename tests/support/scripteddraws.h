#pragma once

#include <deque>
#include <initializer_list>
#include <string>
#include <vector>

#include "records/fields/outside.h"

namespace grapplemont {
class World;
}

namespace grapplemont::test {

/// One draw of a script: what comes out and, where it matters, out of how many.
struct ScriptedDraw {
  int Of = 0;  // 0: of any number
  int Value;

  ScriptedDraw(int value) : Value(value) {}
  ScriptedDraw(int of, int value) : Of(of), Value(value) {}
};

/// Chance by a script: ScriptedDraws{3, 1, 5}, or ScriptedDraws{{100, 3}, {2, 1}, 5} where the
/// first two must be draws of 100 and of 2. The test fails when more is drawn than the script holds
/// or a number lies outside the draw (both also throw std::logic_error, since no rule could go on
/// from there), and when numbers are left over.
class ScriptedDraws : public Draws {
 public:
  ScriptedDraws(std::initializer_list<ScriptedDraw> script) : script_(script) {}
  explicit ScriptedDraws(const std::vector<int>& script) : script_(script.begin(), script.end()) {}
  explicit ScriptedDraws(const std::vector<ScriptedDraw>& script)
      : script_(script.begin(), script.end()) {}
  ~ScriptedDraws() override;
  ScriptedDraws(const ScriptedDraws&) = delete;
  ScriptedDraws& operator=(const ScriptedDraws&) = delete;

  int Draw(int n) override;
  int Left() const { return static_cast<int>(script_.size()); }

 private:
  [[noreturn]] void Break(const std::string& why);

  std::deque<ScriptedDraw> script_;
  int drawn_ = 0;
  bool broken_ = false;
};

/// The world draws from this script from now on; left-overs are seen when the world ends or gets
/// other draws.
void ScriptDraws(World& world, std::initializer_list<ScriptedDraw> script);
void ScriptDraws(World& world, const std::vector<int>& script);
void ScriptDraws(World& world, const std::vector<ScriptedDraw>& script);
/// The same of what others do behind the player's back.
void ScriptLife(World& world, const std::vector<ScriptedDraw>& script);

}  // namespace grapplemont::test
