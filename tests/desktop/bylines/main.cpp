#include <unistd.h>

#include <QApplication>
#include <QSocketNotifier>
#include <iostream>
#include <optional>

#include "console/answer.h"
#include "console/command.h"
#include "desktop/look.h"
#include "desktop/player.h"
#include "program/screens.h"
#include "records/fields/charset.h"
#include "session/arguments.h"
#include "session/home.h"

// grapplemont-window-by-lines: the real window without a display, worked by mouse and keys as lines
// on standard input say, and answered as the console answers with --json. scripts/kills kills it.

namespace grapplemont::test {
namespace {

using console::Verb;

QString Name(const std::string& name) {
  return QString::fromStdString(name);
}

class WindowByLines {
 public:
  explicit WindowByLines(const Game::Options& options) : game_(play_.Desk, *disk_, options) {
    RegisterScreens(game_);
    play_.Window.resize(1280, 800);
    play_.Desk.Event([&] { play_.Desk.Open("frmTitleScreen"); });
    play_.Window.Sync();
    QObject::connect(&input_, &QSocketNotifier::activated, &input_, [this] { Read(); });
    QObject::connect(&boxes_, &QTimer::timeout, &boxes_, [this] {
      if (isDue_ && OpenBox()) GiveAnswer();
    });
    boxes_.start(1);
  }

  ~WindowByLines() {
    boxes_.stop();
    play_.Desk.CloseAll();
    play_.Window.Sync();
    game_.CloseSlot();
  }
  WindowByLines(const WindowByLines&) = delete;
  WindowByLines& operator=(const WindowByLines&) = delete;

 private:
  void Read() {
    char bytes[4096];
    const ssize_t got = read(STDIN_FILENO, bytes, sizeof bytes);
    if (got <= 0) return QCoreApplication::exit();
    typed_.append(bytes, static_cast<std::size_t>(got));
    for (auto end = typed_.find('\n'); end != typed_.npos; end = typed_.find('\n')) {
      const std::string line = typed_.substr(0, end);
      typed_.erase(0, end + 1);
      Obey(line);
    }
  }

  /// Does a line and answers it, unless a box has: its answer ends the act that brought it.
  void Obey(const std::string& line) {
    const auto command = console::ReadCommand(line, error_);
    const bool isOuter = depth_++ == 0;
    isDue_ = true;
    if (command) Do(*command);
    --depth_;
    if (isOuter && isDue_) GiveAnswer();
  }

  void Do(const console::Command& command) {
    switch (command.Is) {
      case Verb::Show:
        only_ = command.Name;
        break;
      case Verb::Click:
        return Press(Name(command.Name));
      case Verb::Type:
        Press(Name(command.Name));
        play_.Key(Qt::Key_A, Qt::ControlModifier);
        play_.Key(Qt::Key_Delete);
        return play_.Type(Name(command.Text));
      case Verb::Enter:
        play_.Key(Qt::Key_A, Qt::ControlModifier);
        play_.Type(Name(command.Text));
        return AnswerBox("boxok");
      default:
        return AnswerBox("box" + Name(std::string(RowOf(command.Is).Word)));
    }
  }
  void Press(const QString& name) {
    if (!play_.Sees(name) || !play_.See(name)->isEnabled())
      error_ = name.toStdString() + " is not to be seen, or grey";
    else
      play_.Click(name);
  }
  void AnswerBox(const QString& button) {
    if (QWidget* box = OpenBox()) {
      box->setProperty(kAnswered, true);
      Press(button);
    } else {
      error_ = "no box is open";
    }
  }
  /// One that has no answer yet.
  QWidget* OpenBox() {
    QWidget* const box = play_.Sees("box") ? play_.See("box") : nullptr;
    return box && !box->property(kAnswered).toBool() ? box : nullptr;
  }

  void GiveAnswer() {
    using Kind = console::Box::Kind;
    isDue_ = false;
    std::optional<console::Box> box;
    if (const QWidget* open = OpenBox()) {
      const Kind kind = play_.Sees("boxyes")      ? Kind::YesNo
                        : play_.Sees("boxcancel") ? Kind::Input
                                                  : Kind::Ok;
      box = console::Box{kind, open->accessibleName().toStdString(), {}};
    }
    console::Answer answer{play_.Desk.Top(), box ? &*box : nullptr, error_};
    answer.Only = only_;
    error_.clear();
    only_.clear();
    std::cout << console::JsonAnswer(answer) << std::endl;
  }

  static constexpr const char* kAnswered = "answered";
  std::unique_ptr<Disk> disk_ = RealDisk();
  Player play_;
  Game game_;
  QSocketNotifier input_{STDIN_FILENO, QSocketNotifier::Read};
  QTimer boxes_;
  std::string typed_, error_, only_;
  int depth_ = 0;
  bool isDue_ = false;  // the last line has not been answered
};

constexpr OptionKind kOptions[] = {kHomeOption,
                                   {"--seed", "N", false, "chance from this number"},
                                   {"--json", "", false, "answers are JSON, as they always are"}};

int Main(const std::vector<std::string>& words) try {
  const Arguments arguments(words, kOptions, 0);
  const Surroundings around = MachineSurroundings();
  const auto disk = RealDisk();
  const Home home = HomeAt(*disk, arguments.Text("--home").value_or("."), around);
  Game::Options options;
  options.Home = home.Folder;
  options.Share = home.Share;
  options.Seed = arguments.Number("--seed", 0, ~std::uint64_t{0});
  const WindowByLines window(options);
  return QApplication::exec();
} catch (const std::exception& fault) {
  std::cerr << fault.what() << "\n";
  return 1;
}

}  // namespace
}  // namespace grapplemont::test

int main(int count, char** words) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(count, words);
  grapplemont::desktop::ReadDesktop();
  return grapplemont::test::Main({words + 1, words + count});
}
