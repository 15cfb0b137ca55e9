#include "records/score.h"

#include <algorithm>
#include <cstdlib>

namespace grapplemont {

bool Decision::IsYes() const {
  return std::ranges::none_of(steps_, [](const ScoreStep& step) { return step.Change < 0; });
}

std::string PlainNumber(long long number) {
  return std::to_string(number);
}

std::string InHundredths(long long number) {
  const std::string hundredths = std::to_string(100 + std::llabs(number) % 100).substr(1);
  return (number < 0 ? "-" : "") + std::to_string(std::llabs(number) / 100) + "." + hundredths;
}

std::string WhyText(std::string_view caption, const Score& score, NumberWriter text) {
  std::string lines;
  for (const ScoreStep& step : score.Steps()) {
    const char* const sign = lines.empty() || step.Change < 0 ? "" : "+";
    lines += sign + text(step.Change) + (lines.empty() ? ": " : " ") + step.Why + "\n";
  }
  return lines + "= " + text(score.Whole()) + " " + std::string(caption);
}

std::string WhyText(std::string_view answer, const Decision& decision) {
  std::string lines;
  for (const ScoreStep& step : decision.Steps())
    lines += (step.Change < 0 ? "- " : "+ ") + step.Why + "\n";
  return lines + "= " + std::string(answer);
}

}  // namespace grapplemont
