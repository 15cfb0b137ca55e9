#include "support/scripteddraws.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

#include "records/world.h"

namespace grapplemont::test {

ScriptedDraws::~ScriptedDraws() {
  if (broken_ || script_.empty()) return;
  std::string left;
  for (const ScriptedDraw& draw : script_) left += " " + std::to_string(draw.Value);
  ADD_FAILURE() << "Only " << drawn_ << " numbers of the script were drawn; left over:" << left;
}

int ScriptedDraws::Draw(int n) {
  const std::string which =
      "Draw number " + std::to_string(drawn_ + 1) + ", of " + std::to_string(n) + ", ";
  if (script_.empty()) Break(which + "is one more than the script holds.");
  const ScriptedDraw next = script_.front();
  script_.pop_front();
  ++drawn_;
  if (next.Of != 0 && next.Of != n)
    ADD_FAILURE() << which << "should be a draw of " << next.Of << ".";
  // Where there is no choice the answer is 1, as with every source of chance.
  if (next.Value < 1 || next.Value > std::max(n, 1))
    Break(which + "cannot give " + std::to_string(next.Value) + ".");
  return next.Value;
}

void ScriptedDraws::Break(const std::string& why) {
  broken_ = true;
  ADD_FAILURE() << why;
  throw std::logic_error(why);
}

void ScriptDraws(World& world, std::initializer_list<ScriptedDraw> script) {
  world.SetChance(std::make_unique<ScriptedDraws>(script));
}

void ScriptDraws(World& world, const std::vector<int>& script) {
  world.SetChance(std::make_unique<ScriptedDraws>(script));
}

void ScriptDraws(World& world, const std::vector<ScriptedDraw>& script) {
  world.SetChance(std::make_unique<ScriptedDraws>(script));
}

void ScriptLife(World& world, const std::vector<ScriptedDraw>& script) {
  world.SetLife(std::make_unique<ScriptedDraws>(script));
}

}  // namespace grapplemont::test
