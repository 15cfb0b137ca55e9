#include <algorithm>
#include <sstream>

#include "console/console.h"
#include "fuzz/playedgame.h"
#include "fuzz/target.h"

// Lines typed at the console while a small game is played.

namespace grapplemont::fuzz {
namespace {

constexpr std::size_t kMostLines = 60;

/// The first lines of a text.
std::string FirstLines(std::string_view text) {
  std::size_t end = 0;
  for (std::size_t lines = 0; lines < kMostLines && end < text.size(); ++lines)
    end = std::min(text.find('\n', end), text.size() - 1) + 1;
  return std::string(text.substr(0, end));
}

void Play(ByteSpan bytes) {
  std::istringstream in(FirstLines(TextOf(bytes)));
  std::ostringstream out;
  console::Settings settings;
  settings.Json = bytes.size() % 2 == 0;
  console::Console desk(in, out, settings);
  GameInMemory game(desk);
  desk.Run();
  game.RequireSound();
}

const Registered kCommands({.Name = "commands", .Run = Play, .Cases = 8, .Most = 1024});

}  // namespace
}  // namespace grapplemont::fuzz
