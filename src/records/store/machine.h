#pragma once

#include <string>
#include <vector>

// What else a program asks the machine, whichever it is: unixdisk.cpp and windisk.cpp answer. All
// texts are UTF-8, and "/" parts folders.

namespace grapplemont {

/// The user's folders for this game, by the rules of the system; empty where none is known.
struct UserFolders {
  std::string Data, Config, State;  // games, settings, what happened
};
UserFolders FoldersOfUser();

/// The program's own file; empty where the machine does not say.
std::string ProgramFile();

enum class Stream { In = 0, Out = 1, Errors = 2 };
bool IsTerminal(Stream stream);
/// Of the terminal behind the standard output; 0 where there is none.
int TerminalColumns();

/// What `main` was given, without the program's name.
std::vector<std::string> WordsOf(int count, char** words);

}  // namespace grapplemont
