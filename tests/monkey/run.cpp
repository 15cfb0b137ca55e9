#include "monkey/run.h"

#include <algorithm>
#include <deque>
#include <optional>

#include "monkey/hand.h"
#include "ui/actlines.h"

namespace grapplemont::test {

namespace {

/// One in how many clicks the way home is looked for, beside some of the hand's own.
constexpr int kHomeEvery = 300;
constexpr std::uint64_t kExplorers = 5;  // one in five begins at the title with nothing

void WriteFault(const FoundFault& fault, Paper& paper) {
  paper.Write(std::string(kKindMark) + fault.Kind);
  paper.Write(std::string(kFaultMark) + ui::OnOneLine(fault.what()));
}

std::string Given(const Question& box) {
  return box.Is == Question::Say ? "ok" : box.Is == Question::Ask ? "yes" : "enter First";
}

/// From the title to the main screen of a new game; more often than not.
void BeginGame(Sitting& sitting, std::uint64_t seed) {
  sitting.Do("click cmdbegin");
  sitting.Do("click cmdcontinue");
  sitting.Do("click cmdnewgame");
  sitting.Do("type txtname Pat Lee");
  sitting.Do("pick cmbPromo " + std::to_string(1 + seed / kExplorers % 2));
  sitting.Do("click cmdbegin");
  sitting.Do("click cmdload1");
}

}  // namespace

void Play(const Run& run, const CutDisk& home, Paper& paper) {
  Hand hand(run.Seed);
  bool begins = run.Seed % kExplorers != 0;
  try {
    Sitting sitting(home, kGameSeed, run.Held, paper,
                    [&](const Question& box) { return begins ? Given(box) : hand.AnswerTo(box); });
    if (begins) BeginGame(sitting, run.Seed);
    begins = false;
    for (int click = 1; click <= run.Clicks; ++click) {
      sitting.Do(hand.Next(sitting));
      if (click % kHomeEvery == 0 || hand.WantsHome(sitting.Desk())) hand.GoHome(sitting);
    }
    paper.Write("days " + std::to_string(sitting.Days()));
    paper.Write("worlds " + std::to_string(sitting.Checked()));
    for (const auto& [told, times] : sitting.TakenBack())
      paper.Write("told " + std::to_string(times) + " " + told);
  } catch (const FoundFault& fault) {
    WriteFault(fault, paper);
  }
  paper.Write("memory " + std::to_string(PeakMegabytes()));
  hand.Covered().Write(paper);
}

namespace {

/// What a box that comes again is answered: the next answer that suits it.
class Answers {
 public:
  void Begin(const std::vector<std::string>& answers) {
    left_.assign(answers.begin(), answers.end());
  }
  std::string To(const Question& box) {
    while (!left_.empty()) {
      const std::string answer = std::move(left_.front());
      left_.pop_front();
      if (Suits(box, answer)) return answer;
    }
    return box.Is == Question::Say ? "ok" : box.Is == Question::Ask ? box.Offered : "cancel";
  }

 private:
  static bool Suits(const Question& box, const std::string& answer) {
    if (box.Is == Question::Say) return answer == "ok";
    if (box.Is == Question::Ask) return answer == "yes" || answer == "no";
    return answer == "cancel" || answer.starts_with("enter ");
  }
  std::deque<std::string> left_;
};

}  // namespace

void PlayAgain(const std::vector<Step>& steps, const CutDisk& home, const Limits& limits,
               Paper& paper) {
  Answers answers;
  try {
    Sitting sitting(home, kGameSeed, limits, paper,
                    [&](const Question& box) { return answers.To(box); });
    for (const Step& step : steps) {
      answers.Begin(step.Answers);
      sitting.Do(step.Line);
    }
  } catch (const FoundFault& fault) {
    WriteFault(fault, paper);
  }
}

namespace {

class Cutting {
 public:
  Cutting(const Record& failed, const CutDisk& home, const Limits& limits, int tries)
      : failed_(failed), home_(home), limits_(limits), tries_(tries) {}

  /// The steps up to the fault, as they were done, when it comes again.
  std::optional<std::vector<Step>> Try(const std::vector<Step>& steps) {
    std::optional<std::vector<Step>> kept;
    --tries_;
    RunApart(
        1, 1, [&](int, Paper& paper) { PlayAgain(steps, home_, limits_, paper); },
        [&](const Ran& ran) {
          Record record = ReadRecord(ran.Written, ran.Died);
          if (!record.Fault.empty() && record.Kind == failed_.Kind) kept = std::move(record.Steps);
          return true;
        });
    return kept;
  }
  bool MayTry() const { return tries_ > 0; }

 private:
  const Record& failed_;
  const CutDisk& home_;
  const Limits& limits_;
  int tries_;
};

/// `steps` without the n-th of so many parts.
std::vector<Step> Without(const std::vector<Step>& steps, std::size_t part, std::size_t parts) {
  const std::size_t from = steps.size() * part / parts, to = steps.size() * (part + 1) / parts;
  std::vector<Step> left(steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(from));
  left.insert(left.end(), steps.begin() + static_cast<std::ptrdiff_t>(to), steps.end());
  return left;
}

}  // namespace

std::vector<Step> CutDown(const Record& failed, const CutDisk& home, const Limits& limits,
                          int tries) {
  Cutting cutting(failed, home, limits, tries);
  auto best = cutting.Try(failed.Steps);
  if (!best) return {};
  for (std::size_t parts = 2; cutting.MayTry() && best->size() > 1;) {
    bool less = false;
    for (std::size_t part = parts; part-- > 0 && cutting.MayTry();) {
      auto tried = cutting.Try(Without(*best, part, parts));
      if (!tried || tried->size() >= best->size()) continue;
      best = std::move(tried);
      less = true;
      parts = std::min(std::max<std::size_t>(parts - 1, 2), best->size());
      part = std::min(part, parts);
    }
    if (less) continue;
    if (parts >= best->size()) break;
    parts = std::min(parts * 2, best->size());
  }
  return std::move(*best);
}

}  // namespace grapplemont::test
