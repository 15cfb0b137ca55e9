#pragma once

#include <string>

#include "ui/desk.h"

namespace grapplemont::fuzz {

/// A desk without a player: messages are read, questions get the answer they offer.
class QuietDesk : public ui::Desk {
 public:
  void Say(const std::string&, const std::string&) override {}
  bool Ask(const std::string&, const std::string&, ui::Default answer) override {
    return answer == ui::Default::Yes;
  }
  std::string Prompt(const std::string&, const std::string&, const std::string& offered) override {
    return offered;
  }
};

}  // namespace grapplemont::fuzz
