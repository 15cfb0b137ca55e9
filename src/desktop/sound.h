#pragma once

#include <QThread>
#include <array>
#include <atomic>
#include <cstdint>
#include <memory>
#include <vector>

#include "ui/desk.h"

namespace grapplemont::desktop {

inline constexpr int kSamplesASecond = 44100;  // of one channel

/// The sound as numbers of 16 bits, the same every time: a bell is partials that die away, a crowd
/// is noise that swells.
std::vector<std::int16_t> SamplesOf(ui::Sound sound);

/// Plays sounds through the machine's usual output, in a thread of its own: nobody waits for it.
/// Without an output it is silent.
class Speaker {
 public:
  Speaker();
  /// Cuts what is playing.
  ~Speaker();
  Speaker(const Speaker&) = delete;
  Speaker& operator=(const Speaker&) = delete;
  /// A sound that is played already starts again. The volume is in percent.
  void Play(ui::Sound sound, int volume);

 private:
  struct Voice;
  std::array<std::atomic<int>, 2> asked_ = {};  // how often each sound has been asked for
  std::unique_ptr<QThread> thread_;
  Voice* voice_;  // lives in the thread
};

}  // namespace grapplemont::desktop
