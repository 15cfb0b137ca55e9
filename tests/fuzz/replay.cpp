#include "tools/replay.h"
#include "fuzz/target.h"
#include "program/richworld.h"
#include "records/store/commandlog.h"
#include "session/slots.h"
#include "support/cutdisk.h"

// The commands that a game has recorded, played again from its beginning: lines from elsewhere, as
// an exported game brings them.

namespace grapplemont::fuzz {
namespace {

void Play(ByteSpan bytes) {
  static const std::vector<NewFile> beginning =
      BeginningFiles(test::RichWorld().Game("CWA").Build(), true);
  std::vector<NewFile> files = beginning;
  for (NewFile& file : files)
    if (file.Name == kCommandsName)
      file.Contents.insert(file.Contents.end(), bytes.begin(), bytes.end());
  test::CutDisk disk;
  disk.MakeFolder("home");
  // A command may have deleted the game.
  try {
    tools::Replay(disk, files, "home", "");
  } catch (const DiskError&) {
  } catch (const WorldFault&) {
  }
}

const Registered kReplay({.Name = "replay", .Run = Play, .Cases = 8, .Most = 512});

}  // namespace
}  // namespace grapplemont::fuzz
