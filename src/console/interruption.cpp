#include "console/interruption.h"

#include <csignal>

namespace grapplemont::console {

namespace {

volatile std::sig_atomic_t isInterrupted = 0;

}  // namespace

extern "C" {
static void NoteInterruption(int) {
  isInterrupted = 1;
}
}

Interruption::Interruption() {
  isInterrupted = 0;
  before_ = std::signal(SIGINT, NoteInterruption);
}

Interruption::~Interruption() {
  if (before_ != SIG_ERR) std::signal(SIGINT, before_);
}

bool Interruption::Met() const {
  return isInterrupted != 0;
}

}  // namespace grapplemont::console
