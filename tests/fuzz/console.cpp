
#include "console/served.h"
#include "fuzz/target.h"

// Lines of the console's protocol over a screen with every kind of control: whatever they are, each
// gets one answer in sound JSON.

namespace grapplemont::fuzz {
namespace {

using console::ReadLine;

/// The lines that are answered: all but the last, which may quit.
std::size_t LinesIn(const std::string& text) {
  std::istringstream in(text);
  std::size_t lines = 0;
  while (ReadLine(in)) ++lines;
  return lines;
}

void ReadCommands(const std::string& text) {
  std::istringstream in(text);
  while (const auto line = ReadLine(in)) {
    std::string why;
    const auto letters = console::Letters(*line, why);
    const auto command = letters ? console::ReadCommand(*letters, why) : std::nullopt;
    Require(command.has_value() || !why.empty(), "a line is refused without a word");
  }
}

void Read(ByteSpan bytes) {
  const std::string lines(TextOf(bytes));
  ReadCommands(lines);
  const test::Served served(lines, test::kJson);
  const auto answers = test::Answers(served);
  Require(answers.size() <= LinesIn(lines) + 1, "more answers than lines");
  const bool leaves = lines.find("quit") != lines.npos || lines.find("cmdclose") != lines.npos ||
                      lines.find("Close") != lines.npos;
  Require(leaves || answers.size() == LinesIn(lines), "a line has no answer");
  test::Served(lines, {.Width = 60 + static_cast<int>(bytes.size() % 100)});
}

const Registered kConsole({.Name = "console", .Run = Read, .Cases = 60, .Most = 512});

}  // namespace
}  // namespace grapplemont::fuzz
