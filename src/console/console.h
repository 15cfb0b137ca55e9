#pragma once

#include <functional>
#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "console/answer.h"
#include "console/command.h"
#include "ui/desk.h"

namespace grapplemont::console {

/// What may stand in the place of the word that is being typed behind `before`.
using Completions = std::function<std::vector<std::string>(std::string_view before)>;
/// Asks a person for a line; nothing at the end of input.
using Typist =
    std::function<std::optional<Line>(const std::string& prompt, const Completions& completions)>;

struct Settings {
  bool Json = false;
  bool Prompt = false;  // somebody sits at a terminal: greet, and ask for each command
  int Width = 100;      // letters a line
  Typist Ask = {};      // with a prompt; without one lines are read from the stream
};

/// A desk served as lines: a command comes in, an answer goes out. A box asks for its answer in the
/// midst of a command; when input ends before that, it is answered with no, or with nothing.
class Console : public ui::Desk {
 public:
  Console(std::istream& in, std::ostream& out, Settings settings);

  /// Serves the screens that lie on the desk until "quit", the end of input, or nothing lies there
  /// any more.
  void Run();
  /// The commands that may come next, or the names of controls that the command could mean, which
  /// begin like the last word; sorted.
  std::vector<std::string> CompletionsOf(std::string_view before) const;

  void Say(const std::string& title, const std::string& text) override;
  bool Ask(const std::string& title, const std::string& text, ui::Default answer) override;
  std::string Prompt(const std::string& title, const std::string& text,
                     const std::string& offered) override;
  /// Ctrl+C ends the waiting, and only that.
  bool WaitUntil(const std::function<bool()>& isOver) override;

 private:
  /// Answers the last command and reads on until there is one that is not done at once; nothing at
  /// the end.
  std::optional<Command> NextCommand();
  std::optional<Line> NextLine();
  /// Does a command that only looks; false for any other.
  bool Look(const Command& command);
  /// The command that answers the box; nothing at the end.
  std::optional<Command> AnswerTo(Box box);
  void Perform(const Command& command);
  void GiveAnswer();
  void Refuse(std::string why);
  void Find(const std::string& typed);
  std::string Visit(const std::string& number);
  std::string Explain(const std::string& term);
  void Type(ui::Screen& top, const Command& command);
  std::string TakeBack(const ui::Desk::TakingBack& back, const char* told, const char* none);

  std::istream& in_;
  std::ostream& out_;
  Settings settings_;
  std::optional<Box> box_;
  Answer answer_;                   // what the last command adds to the screen
  std::vector<ui::Finding> found_;  // by the last search
  bool due_;                        // a command has not been answered yet
  bool ended_ = false;
};

}  // namespace grapplemont::console
