#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <algorithm>
#include <cstdio>
#include <ranges>
#include <vector>

#include "bench/worlds.h"
#include "desktop/evening.h"
#include "desktop/look.h"
#include "desktop/player.h"
#include "program/screens.h"
#include "records/fields/fields.h"
#include "records/store/slot.h"
#include "support/scratchfolder.h"
#include "ui/game.h"

// How long somebody waits for the window: from each key or click of an evening to the painted
// frame. The figure is what 95 in 100 stay below; beside it the median and the longest.

namespace grapplemont {
namespace {

using test::Evening;

/// Milliseconds to the painted frame, and what was pressed.
using Frame = std::pair<double, std::string>;

/// Where it takes long: as many of the slowest acts as the variable asks for, for whoever mends it.
void PrintSlowest(const std::vector<Frame>& sorted) {
  const int wanted = qEnvironmentVariableIntValue("GRAPPLEMONT_SLOWEST");
  for (const auto& [took, act] : sorted | std::views::reverse | std::views::take(wanted))
    std::fprintf(stderr, "%9.1f ms  %s\n", took, act.c_str());
}

/// Gives what was pressed where it took longest.
std::string Tell(benchmark::State& state, std::vector<Frame> frames) {
  std::ranges::sort(frames);
  PrintSlowest(frames);
  const auto share = [&](double part) {
    return frames[static_cast<std::size_t>(part * static_cast<double>(frames.size() - 1))].first;
  };
  state.SetIterationTime(share(0.95) / 1000);
  state.counters["median_ms"] = share(0.5);
  state.counters["longest_ms"] = frames.back().first;
  state.counters["acts"] = static_cast<double>(frames.size());
  return frames.back().second;
}

const char* PeopleText(bool large) {
  return large ? "25,000 workers" : "default world";
}

void BM_KeyToFrame(benchmark::State& state) {
  const bool large = state.range(0) != 0;
  const auto hands = state.range(1) ? Evening::Hands::Keys : Evening::Hands::Mouse;
  const World data = bench::DataWorld(large ? bench::kLargestSize : bench::kDefaultSize);
  std::string longest;
  for (auto _ : state) {
    std::vector<Frame> frames;
    Evening evening(data, hands);
    evening.Watch = [&](const std::string& act, double took) { frames.emplace_back(took, act); };
    evening.All();
    longest = Tell(state, std::move(frames));
  }
  state.SetLabel(std::string(PeopleText(large)) + (state.range(1) ? ", keys" : ", mouse") +
                 ", longest: " + longest);
}

/// Keys in a bare window with a line of text; as above, what 95 in 100 stay below.
void BM_KeyToFrameBaseline(benchmark::State& state) {
  constexpr int kKeys = 200;
  QWidget window;
  window.resize(1280, 800);
  QLineEdit line(&window);
  window.show();
  line.setFocus();
  QApplication::processEvents();
  for (auto _ : state) {
    std::vector<Frame> frames;
    QElapsedTimer since;
    for (int key = 0; key < kKeys; ++key) {
      since.start();
      QTest::keyClick(&line, Qt::Key_A);
      QApplication::processEvents();
      window.repaint();
      frames.emplace_back(static_cast<double>(since.nsecsElapsed()) / 1e6, "a letter");
    }
    Tell(state, std::move(frames));
  }
}

/// Each letter of the search of everything, with a slip in the name.
void BM_SearchKeyToFrame(benchmark::State& state) {
  const bool large = state.range(0) != 0;
  const World data = bench::DataWorld(large ? bench::kLargestSize : bench::kDefaultSize);
  for (auto _ : state) {
    std::vector<Frame> frames;
    Evening evening(data, Evening::Hands::Mouse);
    evening.NewGame();
    evening.Watch = [&](const std::string& act, double took) {
      if (act == "a letter of the search") frames.emplace_back(took, act);
    };
    std::string name = data.Workers()[data.Workers().Count() / 2].Name.Str();
    std::swap(name[1], name[2]);
    for (int i = 0; i < 5; ++i) evening.Search(QString::fromStdString(name));
    Tell(state, std::move(frames));
  }
  state.SetLabel(PeopleText(large));
}

/// A page with a long table, from its opening to the painted frame.
void OpenPage(benchmark::State& state, World world, const char* page) {
  const auto disk = RealDisk(Syncs::None);
  const test::ScratchFolder home;
  test::Player play;
  Game game(play.Desk, *disk, {.Home = home.Path()});
  RegisterScreens(game);
  Slot::Create(*disk, game.SlotFolder(1), FilesOf(world), 1);
  game.OpenSlot(1);
  play.Desk.Open("frmMainScreen");
  play.Window.Sync();
  QApplication::processEvents();
  for (auto _ : state) {
    bench::Time(state, [&] {
      play.Desk.Open(page);
      play.Window.Sync();
      QApplication::processEvents();
      play.Window.repaint();
    });
    play.Desk.Close(*play.Desk.Top());
    play.Window.Sync();
    QApplication::processEvents();
  }
  play.Desk.CloseAll();
  game.CloseSlot();
}

constexpr int kManyMails = 20000;

void BM_OpenMarket(benchmark::State& state) {
  OpenPage(state, bench::Played(bench::kLargest), "frmOtherWres");
  state.SetLabel("25,000 workers");
}

void BM_OpenNews(benchmark::State& state) {
  World world = bench::Played(bench::kNew);
  Mail mail;
  mail.From = "Hob Nettles";
  mail.Body = "Bram Okafor has signed a contract with the promotion.";
  for (int number = 0; world.News().Count() < kManyMails; ++number) {
    mail.Date = ShortDate(world.Today() - std::chrono::days{(kManyMails - number) / 8});
    world.News().Append(mail);
  }
  OpenPage(state, std::move(world), "frmNews");
  state.SetLabel("20,000 mails");
}

BENCHMARK(BM_OpenMarket)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OpenNews)->Iterations(20)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_KeyToFrame)
    ->ArgsProduct({{0, 1}, {0, 1}})
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_KeyToFrameBaseline)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SearchKeyToFrame)
    ->Arg(0)
    ->Arg(1)
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace grapplemont

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  grapplemont::desktop::ReadDesktop();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
