#include "records/score.h"

namespace grapplemont {

std::string WhyText(std::string_view caption, const Score& score) {
  std::string text;
  for (const ScoreStep& step : score.Steps()) {
    const char* const sign = text.empty() || step.Change < 0 ? "" : "+";
    text += sign + std::to_string(step.Change) + (text.empty() ? ": " : " ") + step.Why + "\n";
  }
  return text + "= " + std::to_string(score) + " " + std::string(caption);
}

}  // namespace grapplemont
