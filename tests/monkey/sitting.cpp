#include "monkey/sitting.h"

#include <cxxabi.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cctype>
#include <cstdlib>

#include "monkey/arranging.h"
#include "monkey/steps.h"
#include "monkey/worlds.h"
#include "program/screens.h"
#include "records/checks/checkworld.h"
#include "support/homefolder.h"
#include "ui/actlines.h"
#include "ui/share.h"

namespace grapplemont::test {

namespace {

constexpr int kMostBoxes = 2000, kWorlds = 2;
constexpr unsigned kPatience = 600;  // seconds for one step
constexpr int kMemoryEvery = 64;     // steps

std::string TypeOf(const std::exception& fault) {
  int status = 0;
  char* const name = abi::__cxa_demangle(typeid(fault).name(), nullptr, nullptr, &status);
  std::string text = status == 0 ? name : typeid(fault).name();
  std::free(name);
  return text;
}

/// What a player can bring about and is told in words of its own.
bool IsMeantFor(const std::exception& fault) {
  return dynamic_cast<const DiskError*>(&fault) || dynamic_cast<const WorldFault*>(&fault) ||
         dynamic_cast<const SlotBusy*>(&fault) || dynamic_cast<const SlotDamaged*>(&fault) ||
         fault.what() == std::string_view(kCareerIsOver);
}

}  // namespace

std::string WithoutParticulars(std::string_view text) {
  std::string left;
  char until = '\0';
  for (const char letter : text) {
    if (until != '\0') {
      if (letter == until) until = '\0';
    } else if (letter == '"' || letter == '(') {
      until = letter == '"' ? '"' : ')';
    } else if (!std::isdigit(static_cast<unsigned char>(letter))) {
      left += letter;
    }
  }
  return ui::OnOneLine(left);
}

long PeakMegabytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss / 1024;
}

std::string AnsweredDesk::Answer(const Question& box) {
  if (++boxes_ > kMostBoxes)
    throw FoundFault("boxes without end: " + WithoutParticulars(box.Text),
                     "Boxes come without end: " + box.Text);
  std::string answer = answers_(box);
  paper_.Write(std::string(kAnswerMark) + answer);
  Note({answer});
  return answer;
}

void AnsweredDesk::Say(const std::string&, const std::string& text) {
  Answer({Question::Say, text, {}});
}

bool AnsweredDesk::Ask(const std::string&, const std::string& text, ui::Default answer) {
  return Answer({Question::Ask, text, answer == ui::Default::Yes ? "yes" : "no"}) == "yes";
}

std::string AnsweredDesk::Typed(Question::Kind kind, const std::string& text,
                                const std::string& offered) {
  const std::string answer = Answer({kind, text, offered});
  return answer.starts_with("enter ") ? answer.substr(6) : std::string();
}

std::string AnsweredDesk::Prompt(const std::string&, const std::string& text,
                                 const std::string& offered) {
  return Typed(Question::Prompt, text, offered);
}

std::string AnsweredDesk::ChooseFile(const std::string&, const std::string& text,
                                     const std::string& offered, Use) {
  return Typed(Question::File, text, offered);
}

/// Passes all on to the game, and tells the sitting of what was taken back.
class Sitting::Watch : public ui::Work {
 public:
  explicit Watch(Sitting& sitting) : sitting_(sitting) {}
  void Commit() override { sitting_.game_->Commit(); }
  void Rollback() override { sitting_.game_->Rollback(); }
  std::string Explain(const std::exception& fault) const override {
    const std::string told = sitting_.game_->Explain(fault);
    sitting_.Explained(fault, told);
    return told;
  }

 private:
  Sitting& sitting_;
};

Sitting::Sitting(const CutDisk& home, std::uint64_t seed, Limits limits, Paper& paper,
                 Answering answers)
    : disk_(home),
      seed_(seed),
      limits_(limits),
      paper_(paper),
      desk_(paper, std::move(answers), limits_.Clock),
      watch_(std::make_unique<Watch>(*this)) {
  Start();
}

Sitting::~Sitting() {
  End(false);
}

void Sitting::Start() {
  Game::Options options = PlayedIn(kHomeFolder, seed_);
  options.Worlds = kWorlds;
  if (disk_.Look(kShareFolder) == Disk::Kind::Folder) options.Share = kShareFolder;
  game_ = std::make_unique<Game>(desk_, disk_, options);
  desk_.SetWork(watch_.get());
  desk_.NoteFault = [this](const std::string& fault) {
    if (fault.find(kOutOfMemory) != fault.npos)
      found_ = std::make_unique<FoundFault>("out of memory", fault);
  };
  RegisterScreens(*game_);
  // What the window has beyond other shells.
  desk_.OpenShellOptions = [] {};
  game_->WritePdf = [](const std::string&, int) { return std::string(); };
  game_->Kept = [this](const std::vector<FileChange>&) { moved_ = true; };
  desk_.Open("frmTitleScreen");
  if (desk_.Empty()) throw FoundFault("no start", "The program does not start any more.");
}

void Sitting::End(bool inOrder) {
  desk_.CloseAll();
  if (inOrder) game_->CloseSlot();
  game_.reset();
}

void Sitting::Explained(const std::exception& fault, const std::string& told) {
  if (const auto* found = dynamic_cast<const FoundFault*>(&fault)) {
    found_ = std::make_unique<FoundFault>(*found);
  } else if (IsMeantFor(fault)) {
    ++takenBack_[WithoutParticulars(told)];
  } else if (!found_) {
    found_ = std::make_unique<FoundFault>(
        TypeOf(fault) + ": " + WithoutParticulars(fault.what()),
        TypeOf(fault) + " on " + (desk_.Top() ? desk_.Top()->Name() : "no screen") + ": " + told);
  }
}

std::string Sitting::Perform(const std::string& line) {
  if (line == "session" || line == "killed") {
    End(line == "session");
    Start();
    return {};
  }
  if (desk_.Empty()) return "no screen lies on the desk";
  if (line.starts_with("table ")) return Arrange(*desk_.Top(), line.substr(6));
  if (line.starts_with("share ")) {
    const auto form = ui::FormNamed(line.substr(6));
    if (form) ui::Shared(*desk_.Top(), *form);
    return form ? "" : "there is no such form";
  }
  return ui::DoAct(desk_, line);
}

std::string Sitting::Do(const std::string& line) {
  paper_.Write(std::string(kStepMark) + line);
  alarm(kPatience);
  desk_.Begin();
  try {
    std::string refusal = Perform(line);
    if (limits_.Breaks) limits_.Breaks(*this);
    if (found_) throw FoundFault(*found_);
    if (desk_.Empty()) {  // the player has left
      End(true);
      Start();
    }
    LookAtWorld();
    LookAtScreen();
    if (++steps_ % kMemoryEvery == 0) LookAtMemory();
    alarm(0);
    return refusal;
  } catch (const FoundFault&) {
    throw;
  } catch (const std::exception& fault) {
    throw FoundFault("outside an event, " + TypeOf(fault),
                     "outside an event, " + TypeOf(fault) + ": " + fault.what());
  }
}

void Sitting::LookAtWorld() {
  if (!game_->HasWorld()) return;
  const World& world = game_->World();
  const bool isOther = game_->Opened().World != world_;
  if (!isOther && !moved_) return;
  if (!isOther && world.Today() > today_)
    days_ += static_cast<int>((world.Today() - today_).count());
  moved_ = false;
  world_ = game_->Opened().World;
  today_ = world.Today();
  ++checked_;
  for (const Fault& fault : CheckWorld(world))
    throw FoundFault(fault.File + " " + fault.Field + " " + WithoutParticulars(fault.What),
                     fault.Line());
}

void Sitting::LookAtScreen() {
  ui::Screen& screen = *desk_.Top();
  const ui::Page page = screen.Layout();
  // Where a page says why it stays, what it lets the player do leads on.
  const bool isLeft = screen.Is() == ui::Role::Wait || screen.Is() == ui::Role::Hub ||
                      page.Cancel || !page.Stays.empty();
  if (!isLeft)
    throw FoundFault("no way back on " + screen.Name(), screen.Name() + ": Escape leads nowhere");
  for (const ui::Control* control : screen.Controls())
    if (control->Visible && !control->Enabled && control->Tip->empty())
      throw FoundFault(
          "no reason on " + screen.Name() + " " + WithoutParticulars(control->Name()),
          screen.Name() + ": " + control->Name() + " is disabled and does not say why");
}

void Sitting::LookAtMemory() {
  if (const long peak = PeakMegabytes(); limits_.Megabytes > 0 && peak > limits_.Megabytes)
    throw FoundFault("memory", "The process has " + std::to_string(peak) + " MB, more than " +
                                   std::to_string(limits_.Megabytes) + ".");
}

}  // namespace grapplemont::test
