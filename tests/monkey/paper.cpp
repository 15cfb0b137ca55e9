#include "monkey/paper.h"

#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstring>
#include <map>
#include <memory>
#include <stdexcept>
#include <system_error>
#include <vector>

namespace grapplemont::test {

namespace {

constexpr std::size_t kRoom = std::size_t{128} << 20;

}  // namespace

struct Paper::Sheet {
  static constexpr std::size_t kLetters = kRoom - sizeof(std::size_t);
  std::size_t Length;
  char Letters[kLetters];
};

Paper::Paper() {
  // Only what is written on takes memory.
  void* const room = mmap(nullptr, sizeof(Sheet), PROT_READ | PROT_WRITE,
                          MAP_SHARED | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  if (room == MAP_FAILED) throw std::system_error(errno, std::generic_category(), "mmap");
  sheet_ = static_cast<Sheet*>(room);
}

Paper::~Paper() {
  munmap(sheet_, sizeof(Sheet));
}

void Paper::Write(std::string_view line) {
  if (line.size() + 1 > Sheet::kLetters - sheet_->Length)
    throw std::length_error("The paper is full: fewer clicks a seed fit on it.");
  std::memcpy(sheet_->Letters + sheet_->Length, line.data(), line.size());
  sheet_->Letters[sheet_->Length + line.size()] = '\n';
  sheet_->Length += line.size() + 1;
}

std::string_view Paper::Written() const {
  return {sheet_->Letters, sheet_->Length};
}

void Paper::Clear() {
  sheet_->Length = 0;
}

namespace {

std::string DeathOf(int status) {
  if (WIFSIGNALED(status)) {
    const int signal = WTERMSIG(status);
    if (signal == SIGALRM) return "a click that took too long";
    return std::string("signal ") + strsignal(signal);
  }
  const int code = WEXITSTATUS(status);
  return code == 0 ? "" : "an end with code " + std::to_string(code);
}

/// In the process of its own; never returns.
[[noreturn]] void Begin(int number, Paper& paper, const std::function<void(int, Paper&)>& run) {
  int code = 0;
  try {
    run(number, paper);
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    code = 3;
  }
  _exit(code);
}

}  // namespace

void RunApart(int count, int atATime, const std::function<void(int, Paper&)>& run,
              const std::function<bool(const Ran& ran)>& done) {
  std::vector<std::unique_ptr<Paper>> free;
  for (int i = 0; i < atATime; ++i) free.push_back(std::make_unique<Paper>());
  struct Running {
    int Number;
    std::unique_ptr<Paper> On;
  };
  std::map<pid_t, Running> running;
  for (int next = 0; next < count || !running.empty();) {
    if (next < count && !free.empty()) {
      Running one{next++, std::move(free.back())};
      free.pop_back();
      one.On->Clear();
      const pid_t process = fork();
      if (process < 0) throw std::system_error(errno, std::generic_category(), "fork");
      if (process == 0) Begin(one.Number, *one.On, run);
      running.emplace(process, std::move(one));
      continue;
    }
    int status = 0;
    const pid_t ended = waitpid(-1, &status, 0);
    const auto found = running.find(ended);
    if (found == running.end()) continue;
    Running one = std::move(found->second);
    running.erase(found);
    if (!done({one.Number, one.On->Written(), DeathOf(status)})) next = count;
    free.push_back(std::move(one.On));
  }
}

}  // namespace grapplemont::test
