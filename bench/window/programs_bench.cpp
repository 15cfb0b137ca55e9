#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QProcess>
#include <fstream>
#include <optional>
#include <string>

#include "bench/worlds.h"
#include "records/store/slot.h"
#include "support/scratchfolder.h"

// The programs as they are started: from the start to the painted window beside a bare window of
// Qt, and the memory of the console that plays a game beside the bytes of the game's files.

namespace grapplemont {
namespace {

constexpr int kPatience = 60000;  // milliseconds

/// A program that lies beside this one, with settings and games in a folder of its own.
class Started {
 public:
  Started(const test::ScratchFolder& home, const QString& name, const QStringList& arguments) {
    QProcessEnvironment around = QProcessEnvironment::systemEnvironment();
    for (const char* folder : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"})
      around.insert(folder, QString::fromStdString(home / "user"));
    process_.setProcessEnvironment(around);
    process_.start(QCoreApplication::applicationDirPath() + "/" + name, arguments);
  }
  ~Started() {
    process_.closeWriteChannel();
    if (!process_.waitForFinished(kPatience)) process_.kill();
    process_.waitForFinished(kPatience);
  }
  Started(const Started&) = delete;
  Started& operator=(const Started&) = delete;

  void Say(const QByteArray& line) { process_.write(line + "\n"); }
  /// Whether it says this before it ends or patience does.
  bool Says(const QByteArray& words) {
    QByteArray said;
    while (!said.contains(words)) {
      if (!process_.waitForReadyRead(kPatience)) return false;
      said += process_.readAllStandardOutput();
    }
    return true;
  }
  /// A line of its status, in MB: "VmHWM" is the most memory that it has had.
  double Megabytes(const std::string& what) const {
    std::ifstream status("/proc/" + std::to_string(process_.processId()) + "/status");
    for (std::string line; std::getline(status, line);)
      if (line.starts_with(what + ":")) return std::stod(line.substr(what.size() + 1)) / 1024;
    return 0;
  }

 private:
  QProcess process_;
};

void StartAndPaint(benchmark::State& state, const QString& name, const QStringList& more) {
  const test::ScratchFolder home;
  for (auto _ : state) {
    std::optional<Started> program;
    bool painted = false;
    bench::Time(state, [&] {
      program.emplace(home, name, more);
      painted = program->Says("painted");
    });
    if (!painted) {
      state.SkipWithError("it has painted nothing");
      break;
    }
  }
}

void BM_StartToWindow(benchmark::State& state) {
  const test::ScratchFolder home;
  StartAndPaint(state, "grapplemont",
                {"--first-frame", "--home", QString::fromStdString(home.Path())});
}
void BM_StartToWindowBaseline(benchmark::State& state) {
  StartAndPaint(state, "grapplemont-bare-window", {});
}
BENCHMARK(BM_StartToWindow)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_StartToWindowBaseline)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);

/// The time is that of the way from the start to the main screen.
void BM_Memory(benchmark::State& state) {
  const int age = static_cast<int>(state.range(0));
  const test::ScratchFolder home;
  const auto disk = RealDisk(Syncs::None);
  const std::vector<NewFile> files = FilesOf(bench::Played(age));
  std::size_t bytes = 0;
  for (const NewFile& file : files) bytes += file.Contents.size();
  Slot::Create(*disk, home / "s1", files, 1);
  for (auto _ : state) {
    std::optional<Started> program;
    bool there = false;
    bench::Time(state, [&] {
      program.emplace(home, "grapplemont-console",
                      QStringList{"--home", QString::fromStdString(home.Path())});
      for (const char* button : {"imgtitle", "cmdcontinue", "cmdloadgame", "cmdload1"})
        program->Say(QByteArray("click ") + button);
      program->Say("ok");  // a file that is nearly full is told of in a box
      there = program->Says("frmMainScreen");
    });
    if (!there) {
      state.SkipWithError("the game did not open");
      break;
    }
    state.counters["MB"] = program->Megabytes("VmHWM");
    state.counters["MB_of_files"] = static_cast<double>(bytes) / (1024 * 1024);
  }
  state.SetLabel(bench::AgeText(age));
}
BENCHMARK(BM_Memory)
    ->DenseRange(bench::kNew, bench::kLargest)
    ->Arg(bench::kSmall)
    ->Arg(bench::kMiddle)
    ->Iterations(3)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace grapplemont
