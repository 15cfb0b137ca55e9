#pragma once

#include <gtest/gtest.h>

#include "records/score.h"

namespace grapplemont::test {

/// What was weighed speaks for the answer that was given, in whole words; a no has its reason last,
/// and nothing but reasons for a yes before it.
inline void ExpectTells(const Decision& why, bool accepts) {
  ASSERT_FALSE(why.Steps().empty());
  EXPECT_EQ(why.IsYes(), accepts) << WhyText("", why);
  for (const ScoreStep& step : why.Steps()) {
    EXPECT_EQ(step.Why.find_first_of("{}"), std::string::npos) << step.Why;
    EXPECT_EQ(step.Change < 0, !accepts && &step == &why.Steps().back()) << WhyText("", why);
  }
}

}  // namespace grapplemont::test
