#include "tools/replay.h"

#include <algorithm>
#include <charconv>
#include <deque>
#include <filesystem>

#include "program/screens.h"
#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/store/commandlog.h"
#include "records/store/digest.h"
#include "records/store/playedslot.h"
#include "records/store/slotcare.h"
#include "records/store/slotfolder.h"
#include "session/slots.h"
#include "tools/commands.h"
#include "tools/confineddisk.h"
#include "ui/actlines.h"
#include "ui/goingback.h"

namespace grapplemont::tools {

namespace {

constexpr int kReplaySlot = 1;

/// Takes the first word and the blank behind it off the front.
std::string NextWord(std::string_view& line) {
  const std::string word(line.substr(0, line.find(' ')));
  line.remove_prefix(std::min(line.size(), word.size() + 1));
  return word;
}

/// A desk where a record sits: it answers boxes, and a box that it has no answer to is a fault.
class RecordedDesk : public ui::Desk {
 public:
  explicit RecordedDesk(std::string_view commands) {
    for (std::size_t at = 0; at < commands.size();) {
      const std::size_t end = std::min(commands.find('\n', at), commands.size());
      lines_.emplace_back(commands.substr(at, end - at));
      at = end + 1;
    }
    if (!lines_.empty()) lines_.pop_front();  // says what the file is
  }
  void Say(const std::string&, const std::string& text) override { Answer("ok", text); }
  bool Ask(const std::string& title, const std::string& text, ui::Default) override {
    if (title == "Replace?") return true;  // ChooseFile has its answer
    return Answer("yes|no", text) == "yes";
  }
  std::string Prompt(const std::string&, const std::string& text, const std::string&) override {
    const std::string answer = Answer("enter|cancel", text);
    return answer.starts_with("enter ") ? answer.substr(6) : std::string();
  }

  /// Whether a file was there already is of the player's machine: where it was asked, the answer
  /// stands right behind the name.
  std::string ChooseFile(const std::string& title, const std::string& text,
                         const std::string& offered, Use use) override {
    const std::string path = Prompt(title, text, offered);
    if (use == Use::Read || path.empty() || lines_.empty()) return path;
    const bool may = lines_.front() != "no";
    if (lines_.front() == "yes" || !may) Next();
    return may ? path : std::string();
  }

  /// The next line; nothing at the end or at a fault.
  std::optional<std::string> Next() {
    if (lines_.empty() || !Fault.empty()) return std::nullopt;
    ++Done;
    std::string line = std::move(lines_.front());
    lines_.pop_front();
    return line;
  }
  /// Whether the record has this line next.
  bool IsAt(std::string_view line) const { return !lines_.empty() && lines_.front() == line; }
  void Wrong(const std::string& why) {
    if (Fault.empty()) Fault = "command " + std::to_string(Done) + ": " + why;
  }

  int Done = 0;
  std::string Fault;

 private:
  std::string Answer(std::string_view wanted, const std::string& text) {
    // It has failed, and the player is told.
    if (IsAt(kDiskTookBack) || IsAt(kDiskKept)) Next();
    const auto line = Next();
    if (!line) return {};
    const std::string first = line->substr(0, line->find(' '));
    for (std::size_t at = 0; at <= wanted.size();) {
      const std::size_t end = std::min(wanted.find('|', at), wanted.size());
      if (wanted.substr(at, end - at) == first) return *line;
      at = end + 1;
    }
    Wrong("\"" + *line + "\" is no answer to \"" + text + "\"");
    return {};
  }

  std::deque<std::string> lines_;
};

class Player {
 public:
  Player(Disk& disk, RecordedDesk& desk, std::string home, std::string share)
      : disk_(disk), desk_(desk), home_(std::move(home)), share_(std::move(share)) {}
  ~Player() { Leave(); }
  Player(const Player&) = delete;
  Player& operator=(const Player&) = delete;

  void Do(std::string_view line) {
    std::string_view rest = line;
    const std::string verb = NextWord(rest);
    if (verb == "session") return Begin(rest);
    if (verb == kCommandRenamed) return Rename(rest);
    if (line == kDiskTookBack || line == kDiskKept)
      return desk_.Wrong("the disk failed where there was nothing to keep");
    if (verb == kCommandsFull) return desk_.Wrong("nothing more was recorded");
    if (!game_ || !desk_.Top())
      return desk_.Wrong("\"" + std::string(line) + "\" stands where no game is open");
    if (verb == "mornings") return OpenMornings(*game_);
    if (const std::string why = ui::DoAct(desk_, line); !why.empty()) desk_.Wrong(why);
  }
  void Leave() {
    if (!game_) return;
    desk_.CloseAll();
    game_->CloseSlot();
    game_.reset();
  }

 private:
  void Begin(std::string_view line) {
    Leave();
    const auto seed = SeedIn(NextWord(line));
    const auto today = ParseIsoDate(std::string(line));
    if (!seed || !today) return desk_.Wrong("a session without a seed and a day");
    Game::Options options;
    options.Home = home_;
    options.Share = share_;
    options.Seed = *seed;
    options.Worlds = 1;  // a look ahead changes nothing
    options.Today = [day = *today] { return day; };
    game_ = std::make_unique<Game>(desk_, disk_, options);
    RegisterScreens(*game_);
    game_->OpenSlot(kReplaySlot);
    desk_.Open("frmMainScreen");
  }
  /// Nothing for what is no number of 64 bits.
  static std::optional<std::uint64_t> SeedIn(const std::string& word) {
    std::uint64_t seed = 0;
    const char* const end = word.data() + word.size();
    const auto read = std::from_chars(word.data(), end, seed);
    return read.ec == std::errc() && read.ptr == end ? std::optional(seed) : std::nullopt;
  }

  /// While nobody plays it.
  void Rename(std::string_view name) {
    Leave();
    RenameSlot(disk_, home_ + "/s" + std::to_string(kReplaySlot), name);
  }

  Disk& disk_;
  RecordedDesk& desk_;
  std::string home_, share_;
  std::unique_ptr<Game> game_;
};

const NewFile* FileNamed(const std::vector<NewFile>& files, std::string_view name) {
  const auto found = std::ranges::find(files, name, &NewFile::Name);
  return found == files.end() ? nullptr : &*found;
}

World WorldOf(const std::vector<NewFile>& files) {
  std::map<std::string, Bytes> contents;
  for (const NewFile& file : files) contents.emplace(file.Name, file.Contents);
  World world;
  world.Load(contents);
  return world;
}

/// The first record and field that differ; where none does, the first file that does.
std::string DifferenceOf(const World& played, const World& kept) {
  if (const std::string field = FirstDifference(played, kept); !field.empty()) return field;
  const auto ofPlayed = played.Tables(), ofKept = kept.Tables();
  for (std::size_t i = 0; i < ofPlayed.size(); ++i)
    if (ofPlayed[i]->Exists() != ofKept[i]->Exists() ||
        !std::ranges::equal(ofPlayed[i]->Contents(), ofKept[i]->Contents()))
      return std::string(ofPlayed[i]->File()) + " is not the same.";
  return {};
}

/// "outside DIGEST WHO": where something else than the player's commands has changed the world.
struct EndOfRecord {
  std::uint64_t Digest = 0;
  std::string Who;
};

std::optional<EndOfRecord> ReadEnd(std::string_view line) {
  if (NextWord(line) != kCommandsOutside) return std::nullopt;
  const std::string digits = NextWord(line);
  EndOfRecord end{0, std::string(line)};
  // What is no number leaves 0 there, which no world comes to.
  std::from_chars(digits.data(), digits.data() + digits.size(), end.Digest);
  return end;
}

std::uint64_t DigestOfWorld(const std::vector<NewFile>& files) {
  WorldDigest digest;
  for (const NewFile& file : files)
    if (!PlayedSlot::IsOwn(file.Name)) digest.Set(file.Name, file.Contents);
  return digest.Value();
}

}  // namespace

Replayed Replay(Disk& machine, const std::vector<NewFile>& files, const std::string& home,
                const std::string& share) {
  const NewFile* const beginning = FileNamed(files, kBeginningName);
  const NewFile* const commands = FileNamed(files, kCommandsName);
  if (!beginning || !commands)
    throw WorldFault(
        "Nothing was recorded in this game: only a game that was begun with a seed, or as "
        "recorded, and exported with its record can be played again.");
  ConfinedDisk disk(machine, home, share);  // the record may be anybody's
  auto start = UnpackSlot(beginning->Contents, kBeginningName);
  start.push_back({kBeginningName, beginning->Contents});
  start.push_back({kCommandsName, CommandLog::Empty()});
  const std::string slot = home + "/s" + std::to_string(kReplaySlot);
  Slot::Create(disk, slot, start, 1);
  RecordedDesk desk(
      {reinterpret_cast<const char*>(commands->Contents.data()), commands->Contents.size()});
  std::optional<EndOfRecord> end;
  // A step stands once it is in the journal. The disk fails once for each line: what is mended at
  // once is mended here too.
  disk.Fails = [&desk, failedAt = -1](const std::string& path) mutable {
    const bool isJournal = path.ends_with("/" + std::string(kJournalName));
    if (failedAt == desk.Done ||
        !(desk.IsAt(kDiskTookBack) || (desk.IsAt(kDiskKept) && !isJournal)))
      return false;
    failedAt = desk.Done;
    return true;
  };
  {
    Player player(disk, desk, home, share);
    while (const auto line = desk.Next()) {
      if ((end = ReadEnd(*line))) break;
      player.Do(*line);
    }
  }
  Replayed replayed{desk.Done - (end ? 1 : 0), desk.Fault, {}, end ? end->Who : std::string()};
  if (!desk.Fault.empty()) return replayed;
  const auto played = ReadSlot(disk, slot);
  if (!end)
    replayed.Difference = DifferenceOf(WorldOf(played), WorldOf(files));
  else if (DigestOfWorld(played) != end->Digest)
    replayed.Difference = "the world is not what it was when it was changed by " + end->Who + ".";
  return replayed;
}

namespace {

/// A folder for as long as a career is played again.
class PassingFolder {
 public:
  PassingFolder() {
    const auto where = std::filesystem::temp_directory_path();
    for (int turn = 1;; ++turn) {
      path_ = (where / ("grapplemont-replay-" + std::to_string(turn))).string();
      if (std::filesystem::create_directory(path_)) return;  // one that was there is another's
    }
  }
  ~PassingFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  PassingFolder(const PassingFolder&) = delete;
  PassingFolder& operator=(const PassingFolder&) = delete;
  const std::string& Path() const { return path_; }

 private:
  std::string path_;
};

int ReplayFile(const Arguments& arguments, Shell& shell) {
  const auto disk = RealDisk(Syncs::None);
  const std::string& path = arguments.Place(0);
  const auto bytes = ReadWithin(*disk, path, MostPackedBytes());
  if (!bytes) throw WorldFault(path + " is longer than any game.");
  const auto files = UnpackSlot(*bytes, path);
  const PassingFolder home;
  const Home share = HomeAt(*disk, home.Path(), shell.Where);
  const Replayed replayed = Replay(*disk, files, home.Path(), share.Share);
  if (!replayed.Fault.empty()) throw WorldFault("It cannot be played again: " + replayed.Fault);
  if (!replayed.Difference.empty())
    throw WorldFault("Played again it comes out differently: " + replayed.Difference);
  shell.Out << path << ": " << Counted(static_cast<std::size_t>(replayed.Commands), "command")
            << " played again, and every byte of the world is the same";
  if (replayed.EndedBy.empty())
    shell.Out << ".\n";
  else
    shell.Out << " up to where it was changed by " << replayed.EndedBy
              << ". What came after was not recorded and cannot be checked.\n";
  return 0;
}

}  // namespace

const Command kReplay{"replay",
                      "FILE",
                      "Plays a game that was recorded again from its exported file, and "
                      "says whether it comes to the same bytes or what the first difference is.",
                      {},
                      ReplayFile};

}  // namespace grapplemont::tools
