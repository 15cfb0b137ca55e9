#pragma once

#include <istream>
#include <optional>
#include <ostream>
#include <string>

#include "console/answer.h"
#include "console/command.h"
#include "ui/desk.h"

namespace grapplemont::console {

struct Settings {
  bool Json = false;
  bool Prompt = false;  // somebody sits at a terminal: greet, and ask for each command
  int Width = 100;      // letters a line
};

/// A desk served as lines: a command comes in, an answer goes out. A box asks for its answer in the
/// midst of a command; when input ends before that, it is answered with no, or with nothing.
class Console : public ui::Desk {
 public:
  Console(std::istream& in, std::ostream& out, Settings settings);

  /// Serves the screens that lie on the desk until "quit", the end of input, or nothing lies there
  /// any more.
  void Run();

  void Say(const std::string& title, const std::string& text) override;
  bool Ask(const std::string& title, const std::string& text, ui::Default answer) override;
  std::string Prompt(const std::string& title, const std::string& text,
                     const std::string& offered) override;

 private:
  /// Answers the last command and reads on until there is one that is not done at once; nothing at
  /// the end.
  std::optional<Command> NextCommand();
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
