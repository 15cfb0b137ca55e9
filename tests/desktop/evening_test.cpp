#include "desktop/evening.h"
#include "program/richworld.h"

namespace grapplemont::test {
namespace {

TEST(AnEvening, IsPlayedByMouse) {
  Evening(RichWorld().Build(), Evening::Hands::Mouse).All();
}

TEST(AnEvening, IsPlayedByKeysAlone) {
  Evening(RichWorld().Build(), Evening::Hands::Keys).All();
}

}  // namespace
}  // namespace grapplemont::test
