#include <chrono>
#include <iostream>
#include <optional>

#include "monkey/coverage.h"
#include "monkey/run.h"
#include "monkey/worlds.h"
#include "records/fields/charset.h"
#include "session/arguments.h"
#include "session/home.h"
#include "support/checkout.h"
#include "ui/asnumber.h"

// grapplemont-monkey: clicks through the whole game by chance and looks whether it holds.

namespace grapplemont::test {
namespace {

constexpr OptionKind kOptions[] = {
    {"--seed", "S", false, "plays this seed alone"},
    {"--seeds", "A..B", false, "plays these; 1..4 if nothing is said"},
    {"--clicks", "N", false, "so many of each; 3000 if nothing is said"},
    {"--jobs", "J", false, "so many seeds at a time, each in a process of its own"},
    {"--world", "small|default|random|hostile", false,
     "the data of all; else each seed has its own"},
    {"--write", "FOLDER", false, "clicks nothing, but writes the first seed's data there"},
    {"--memory", "MB", false, "a fault where a seed's process has more"},
    {"--tries", "N", false, "runs for cutting a fault down; 1500 if nothing is said, 0 for none"},
    {"--coverage", "", false, "names what was never clicked"}};

constexpr const char* kHelp =
    "\nClicks, picks and types by chance on every screen of the game. After every commit that "
    "moved a\n"
    "record the world is looked through; a seed that fails is cut down to the fewest steps and\n"
    "printed as a test.\n\n";

struct Wanted {
  std::uint64_t First = 1, Last = 4;
  int Clicks = 3000, Jobs = 1, Tries = 1500;
  std::optional<Data> World = {};
  Limits Held = {};
  std::string Write = {};
  bool Names = false;

  /// One in seven has a clock.
  Limits HeldFor(std::uint64_t seed) const {
    Limits held = Held;
    held.Clock = seed % 7 == 0;
    return held;
  }
  Data DataFor(std::uint64_t seed) const { return World.value_or(DataOf(seed)); }
};

void ReadSeeds(const Arguments& arguments, Wanted& wanted) {
  const auto range = arguments.Text("--seeds");
  if (const auto seed = arguments.Number("--seed", 0, ~std::uint64_t{0}))
    wanted.First = wanted.Last = *seed;
  if (!range) return;
  const std::size_t dots = range->find("..");
  const std::string_view all(*range);
  const auto first = ui::AsNumber<std::uint64_t>(all.substr(0, dots));
  const auto last =
      ui::AsNumber<std::uint64_t>(dots == range->npos ? std::string_view() : all.substr(dots + 2));
  if (!first || !last || *last < *first || *last - *first > 1000000)
    throw UsageError("--seeds takes a range such as 1..40.");
  wanted.First = *first;
  wanted.Last = *last;
}

Wanted Read(const Arguments& arguments) {
  constexpr std::uint64_t kMost = 1000000;
  const auto number = [&](const char* name, std::uint64_t least, int usual) {
    return static_cast<int>(
        arguments.Number(name, least, kMost).value_or(static_cast<std::uint64_t>(usual)));
  };
  Wanted wanted;
  ReadSeeds(arguments, wanted);
  wanted.Clicks = number("--clicks", 1, wanted.Clicks);
  wanted.Jobs = std::min(number("--jobs", 1, wanted.Jobs), 64);
  wanted.Tries = number("--tries", 0, wanted.Tries);
  wanted.Held.Megabytes = number("--memory", 1, 0);
  wanted.Write = arguments.Text("--write").value_or("");
  wanted.Names = arguments.Has("--coverage");
  if (const auto world = arguments.Text("--world")) {
    wanted.World = DataNamed(*world);
    if (!wanted.World) throw UsageError("--world takes small, default, random or hostile.");
  }
  return wanted;
}

/// What all seeds came to.
class Sum {
 public:
  explicit Sum(const Wanted& wanted) : wanted_(wanted) {}

  void Add(std::uint64_t seed, const Record& record) {
    steps_ += static_cast<long>(record.Steps.size());
    for (const std::string& note : record.Notes) Read(note);
    if (!record.Fault.empty()) Tell(seed, record);
  }
  int Close(double seconds) const {
    if (wanted_.Tries > 0)
      for (const auto& [kind, first] : kinds_) CutDownAndTell(first.first, first.second);
    for (const auto& [told, times] : told_)
      std::cout << "Taken back and said so, " << times << " times: " << ToUtf8(told) << "\n";
    if (wanted_.Names) std::cout << ToUtf8(covered_.Told(ScreenNames()));
    std::cout << wanted_.Last - wanted_.First + 1 << " seeds, " << steps_ << " clicks ("
              << static_cast<long>(static_cast<double>(steps_) / seconds) << " a second), " << days_
              << " days, " << worlds_ << " worlds looked through, at most " << memory_ << " MB, "
              << faults_ << " faults of " << kinds_.size() << " kinds.\n";
    return faults_ == 0 ? 0 : 1;
  }

 private:
  void Read(const std::string& note) {
    if (covered_.Read(note)) return;
    const std::size_t blank = note.find(' ');
    const std::string word = note.substr(0, blank);
    const std::string rest = blank == note.npos ? "" : note.substr(blank + 1);
    const std::size_t next = std::min(rest.find(' '), rest.size());
    const long number = ui::AsNumber<long>(std::string_view(rest).substr(0, next)).value_or(0);
    if (word == "days") days_ += number;
    if (word == "worlds") worlds_ += number;
    if (word == "memory") memory_ = std::max(memory_, number);
    if (word == "told" && next < rest.size()) told_[rest.substr(next + 1)] += number;
  }

  /// One of a kind is cut down.
  void Tell(std::uint64_t seed, const Record& record) {
    ++faults_;
    std::cout << "Seed " << seed << ", click " << record.Steps.size() << ": "
              << ToUtf8(record.Fault) << std::endl;
    kinds_.try_emplace(record.Kind, seed, record);
  }
  void CutDownAndTell(std::uint64_t seed, const Record& record) const {
    const Data data = wanted_.DataFor(seed);
    const auto fewest = CutDown(record, HomeOf(data, seed), wanted_.HeldFor(seed), wanted_.Tries);
    if (fewest.empty())
      std::cout << "Seed " << seed << ": the same steps did not lead to it again.\n" << std::endl;
    else
      std::cout << "Seed " << seed << ": " << ToUtf8(record.Fault) << "\nCut down to "
                << fewest.size() << " steps:\n\n"
                << AsTest(fewest, "Seed" + std::to_string(seed), ExpressionOf(data, seed),
                          kGameSeed)
                << std::endl;
  }

  const Wanted& wanted_;
  Coverage covered_;
  std::map<std::string, long> told_;
  std::map<std::string, std::pair<std::uint64_t, Record>> kinds_;
  long steps_ = 0, days_ = 0, worlds_ = 0, memory_ = 0;
  int faults_ = 0;
};

/// What is the same for many seeds is made once, before the processes part.
std::map<Data, CutDisk> HomesOf(const Wanted& wanted) {
  std::map<Data, CutDisk> homes;
  for (std::uint64_t seed = wanted.First; seed <= wanted.Last && homes.size() < 2; ++seed)
    if (const Data data = wanted.DataFor(seed); data <= Data::Default && !homes.contains(data))
      homes.emplace(data, HomeOf(data, seed));
  return homes;
}

int PlayAll(const Wanted& wanted) {
  const auto begin = std::chrono::steady_clock::now();
  const auto homes = HomesOf(wanted);
  const auto play = [&](int number, Paper& paper) {
    const std::uint64_t seed = wanted.First + static_cast<std::uint64_t>(number);
    const Run run{seed, wanted.Clicks, wanted.HeldFor(seed)};
    const Data data = wanted.DataFor(seed);
    const auto home = homes.find(data);
    Play(run, home == homes.end() ? HomeOf(data, seed) : home->second, paper);
  };
  std::map<int, Record> ended;
  int next = 0;
  Sum sum(wanted);
  RunApart(static_cast<int>(wanted.Last - wanted.First + 1), wanted.Jobs, play,
           [&](const Ran& ran) {
             ended.emplace(ran.Number, ReadRecord(ran.Written, ran.Died));
             // In the order of the seeds, whoever ends first.
             for (auto at = ended.find(next); at != ended.end(); at = ended.find(++next)) {
               sum.Add(wanted.First + static_cast<std::uint64_t>(next), at->second);
               ended.erase(at);
             }
             return true;
           });
  const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
  return sum.Close(took.count());
}

int WriteData(const Wanted& wanted) {
  const auto disk = RealDisk(Syncs::None);
  MakeFolders(*disk, wanted.Write);
  for (const NewFile& file : FilesOf(DataWorld(wanted.DataFor(wanted.First), wanted.First)))
    WriteNewFile(*disk, wanted.Write + "/" + file.Name, file.Contents);
  return 0;
}

int Main(const std::vector<std::string>& words) {
  constexpr std::string_view kProgram = "grapplemont-monkey";
  const std::string usage = "usage: " + UsageOf(kProgram, "", kOptions) + "\n";
  if (const Asked asked = AskedIn(words); asked != Asked::Nothing) {
    std::cout << (asked == Asked::Help ? usage + kHelp + OptionLines(kOptions)
                                       : VersionLine(kProgram));
    return 0;
  }
  try {
    const Wanted wanted = Read(Arguments(words, kOptions, 0));
    return wanted.Write.empty() ? PlayAll(wanted) : WriteData(wanted);
  } catch (const UsageError& fault) {
    std::cerr << kProgram << ": " << fault.what() << "\n" << usage;
    return 2;
  } catch (const std::exception& fault) {
    std::cerr << kProgram << ": " << fault.what() << "\n";
    return 1;
  }
}

}  // namespace
}  // namespace grapplemont::test

int main(int count, char** words) {
  return grapplemont::test::Main({words + 1, words + count});
}
