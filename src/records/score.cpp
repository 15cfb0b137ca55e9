#include "records/score.h"

#include <algorithm>
#include <cstdlib>

#include "records/modVar.h"

namespace grapplemont {

bool Decision::IsYes() const {
  return std::ranges::none_of(steps_, [](const ScoreStep& step) { return step.Change < 0; });
}

std::string PlainNumber(long long number) {
  return std::to_string(number);
}

std::string InHundredths(long long number) {
  return (number < 0 ? "-" : "") + RatingText(static_cast<int>(std::llabs(number)));
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
