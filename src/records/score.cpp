#include "records/score.h"

namespace grapplemont {

std::string WhyText(std::string_view caption, const Score& score) {
  std::string text = std::string(caption) + " " + std::to_string(score) + " =", sign = "\n";
  for (const ScoreStep& step : score.Steps()) {
    text += (step.Change > 0 ? sign : "\n") + std::to_string(step.Change) + " " + step.Why;
    sign = "\n+";  // the first is no change
  }
  return text;
}

}  // namespace grapplemont
