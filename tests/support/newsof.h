#pragma once

#include <string>

#include "records/world.h"

namespace grapplemont::test {

/// The mailbox, a mail a line: "From: body".
inline std::string NewsOf(const World& world) {
  std::string all;
  for (const Mail& mail : world.News()) all += mail.From.Str() + ": " + mail.Body.Str() + "\n";
  return all;
}

}  // namespace grapplemont::test
