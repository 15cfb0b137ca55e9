#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ui/controls.h"
#include "ui/screen.h"

namespace grapplemont::ui {

/// A piece of a text that leads somewhere when a player follows it: the name of somebody who has a
/// page.
struct Link {
  std::size_t From = 0, Length = 0;
  Handler Open;
};

/// Something that a search has found: the heading that it stands under, what it is called, what it
/// is, and the way to it.
struct Finding {
  std::string Heading, Words, About;
  Drawing Picture;  // a small one; none for most
  Handler Open;
  int Fit = 0;  // how far it is from what was typed: 0 is best
};
/// Finds by a few typed letters, the best first, at most `most` under a heading. Made for one
/// search: it knows the names as they were then.
using NameSearch = std::function<std::vector<Finding>(std::string_view typed, std::size_t most)>;

/// Where help comes from, once there are pages for it.
struct HelpPages {
  /// What a screen is for, its keys, its words.
  std::function<std::unique_ptr<Screen>(Screen& of)> About;
  /// The glossary, open at a term.
  std::function<std::unique_ptr<Screen>(std::string_view term)> Glossary;
  /// What a heading means, in a line; empty for one that the glossary does not know.
  std::function<std::string(std::string_view heading)> Meaning;
  /// The keys of a shell that has keys, as the player has set them for this screen, in lines
  /// "F2: Roster".
  std::function<std::vector<std::string>(Screen& of)> Keys;
};

enum class Default { Yes, No };

/// What is heard in a hall.
enum class Sound { Bell, Crowd };

/// What a player does, as the console has it, and how they are told of it.
struct Act {
  std::string Line;       // "click cmdsign"; "on frmMainScreen click ..." where another lies on top
  std::string Name = {};  // "Sign, Contract Talks"; empty for an answer to a box
  bool GoesOn = false;    // with the act before it, of the same name: a letter more
};

/// What an event is a transaction of. Commit and Rollback bring the world to a committed state or
/// throw.
class Work {
 public:
  virtual ~Work() = default;
  virtual void Commit() = 0;
  virtual void Rollback() = 0;
  /// The sentence a player reads for an exception out of a handler or out of Commit.
  virtual std::string Explain(const std::exception& fault) const = 0;
};

/// The table on which screens and boxes lie. A shell derives from it and shows them. Screens lie in
/// a stack; the top one has the player's attention.
class Desk {
 public:
  using Factory = std::function<std::unique_ptr<Screen>()>;

  Desk();
  virtual ~Desk();
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  // Boxes: each waits for its answer. Prompt gives an empty text when the player cancels.
  virtual void Say(const std::string& title, const std::string& text) = 0;
  virtual bool Ask(const std::string& title, const std::string& text,
                   Default answer = Default::Yes) = 0;
  virtual std::string Prompt(const std::string& title, const std::string& text,
                             const std::string& offered) = 0;
  /// The file to be read, or to be written with a name to begin from: as typed, or as a shell has
  /// it chosen. Empty when the player cancels.
  enum class Use { Read, Write };
  virtual std::string ChooseFile(const std::string& title, const std::string& text,
                                 const std::string& offered, Use) {
    return Prompt(title, text, offered);
  }
  /// Says what stands against an act, titled "Error!"; false, without a box, when nothing does.
  bool Objects(const std::string& why);
  /// Something is heard; a shell may play it. The same sound twice in an event is heard once.
  virtual void Hear(Sound) {}
  /// Shows the present state during a long handler.
  virtual void Repaint() {}
  /// Whether the shell presses by itself what is to be pressed every so often (Button::Every).
  /// Without, a screen that waits for something waits within its handler.
  virtual bool HasClock() const { return false; }
  /// Asks within a handler, again and again, whether what it waits for is over; false where the
  /// player would wait no longer.
  virtual bool WaitUntil(const std::function<bool()>& isOver) {
    while (!isOver()) {
    }
    return true;
  }

  // Screens that need no argument are opened by name, once the program has said how they are made.
  void Register(std::string name, Factory make);
  bool Knows(std::string_view name) const;
  void Open(std::string_view name);
  void Open(std::unique_ptr<Screen> screen);
  /// Takes the screen off the stack; it lives on until the outermost event has ended.
  void Close(Screen& screen);
  void CloseAll();
  /// Nothing lies on the desk any more: the program is at its end.
  bool Empty() const { return screens_.empty(); }
  Screen* Top() const { return screens_.empty() ? nullptr : screens_.back().get(); }
  const std::vector<std::shared_ptr<Screen>>& Screens() const { return screens_; }
  bool Holds(const Screen& screen) const;

  /// Runs a handler as one transaction: when the outermost one returns, Work commits; when it
  /// throws, Work and the stack of screens go back to where they were and the player reads why.
  void Event(const Handler& handler);
  void SetWork(Work* work) { work_ = work; }
  /// Changes with each outermost event; 0 while one is under way. What was found out about the
  /// world holds as long as it stays the same above 0.
  unsigned Moment() const { return depth_ > 0 ? 0 : moment_; }

  /// Says which pieces of a text are links, in their order; set once there are pages for them.
  std::function<std::vector<Link>(std::string_view text)> FindLinks;
  /// None until FindLinks has been set.
  std::vector<Link> LinksIn(std::string_view text) const;

  /// Begins a search of all that has a name, a page or a meaning; set once there are pages.
  std::function<NameSearch()> BeginSearch;
  /// Opens what a search has found; an act of the player.
  void Visit(const Finding& found);
  /// One that finds nothing until BeginSearch has been set.
  NameSearch NewSearch() const;

  /// Opens what can be set about the shell itself; a shell without such a thing has none.
  Handler OpenShellOptions;

  /// Hears of every fault that took an event back: the screen below it and the reason, for a log.
  /// Must not throw.
  std::function<void(const std::string& fault)> NoteFault;

  HelpPages Help;
  /// Hears of each act on a control before it is done, and of each answer to a box. Must not throw.
  std::function<void(Act act)> NoteAct;
  void Note(Act act) {
    if (NoteAct) NoteAct(std::move(act));
  }
  /// The same for an act that a handler can do as well: then it is part of the player's own, which
  /// has been noted.
  void NoteOwn(Act act) {
    if (depth_ == 0) Note(std::move(act));
  }

  /// The last click taken back, and one that was taken back done again: how it is told, empty for
  /// none, and the doing.
  struct TakingBack {
    std::function<std::string()> What;
    Handler Do;
  };
  TakingBack Undo, Redo;
  /// Does it and gives what it was; empty where there is none.
  std::string Take(const TakingBack& back);

  /// Opens the help for the top screen; false where there is none.
  bool OpenHelp();
  /// Opens the glossary at a term; false where there is none.
  bool OpenGlossary(std::string_view term);
  /// Empty for a heading without a meaning.
  std::string MeaningOf(std::string_view heading) const;

 private:
  using Stack = std::vector<std::shared_ptr<Screen>>;
  void TakeBack(const Stack& before, const std::exception& fault);
  std::string Explained(const std::exception& fault) const;
  void LoadTop();

  std::map<std::string, Factory, std::less<>> factories_;
  Stack screens_;
  Stack closed_;  // kept until the outermost event has ended: a handler may close its own screen
  Work* work_ = nullptr;
  int depth_ = 0;
  unsigned moment_ = 1;
};

}  // namespace grapplemont::ui
