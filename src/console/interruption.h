#pragma once

namespace grapplemont::console {

/// Takes the place of what Ctrl+C does for as long as it lives: the program goes on, and whoever
/// waits can ask whether it was pressed. One at a time.
class Interruption {
 public:
  Interruption();
  ~Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;
  bool Met() const;

 private:
  void (*before_)(int);
};

}  // namespace grapplemont::console
