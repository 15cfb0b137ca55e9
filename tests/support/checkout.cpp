#include "support/checkout.h"

namespace grapplemont::test {

std::string Checkout(const std::string& name) {
  return CHECKOUT + name;
}

}  // namespace grapplemont::test
