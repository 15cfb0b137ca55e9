#include "show/crowdtables.h"

namespace grapplemont {

namespace {

using Bands = std::array<int, 10>;

constexpr Bands Each(int value) {
  Bands bands{};
  bands.fill(value);
  return bands;
}

constexpr Bands FirstThen(int first, int above) {
  Bands bands = Each(above);
  bands[0] = first;
  return bands;
}

constexpr CrowdRow kNone = {Each(0), Each(0)};

constexpr CrowdsBySize kPayPerViews = {{
    {{10000, 11000, 12000, 13000, 14000, 15000, 16000, 17000, 18000, 20000}, Each(1000)},
    {{4500, 5000, 5500, 6000, 6500, 7000, 7500, 8000, 8500, 9000}, Each(200)},
    {{3200, 3400, 3500, 3600, 3700, 3800, 3900, 4000, 4100, 4200}, Each(100)},
    {{1200, 1400, 1600, 1800, 2000, 2200, 2400, 2600, 2800, 3000}, Each(100)},
    kNone,
    kNone,
}};

constexpr CrowdsBySize kLargeEvents = {{
    {Each(5000), Each(500)},
    {{3200, 3400, 3500, 3600, 3700, 3800, 3900, 4000, 4100, 4200}, Each(100)},
    {{1200, 1400, 1600, 1800, 2000, 2200, 2400, 2600, 2800, 3000}, Each(100)},
    {{500, 550, 600, 650, 700, 800, 900, 1000, 1100, 1200},
     {50, 50, 50, 50, 100, 100, 100, 100, 100, 100}},
    {{75, 100, 150, 200, 250, 300, 350, 400, 450, 500}, {10, 10, 20, 20, 20, 50, 50, 50, 50, 50}},
    {Each(50), Each(100)},
}};

constexpr CrowdsBySize kMediumEvents = {{
    {Each(2000), Each(500)},
    {Each(1500), Each(250)},
    {{400, 450, 500, 600, 700, 800, 900, 1000, 1100, 1200}, Each(50)},
    {{250, 275, 300, 325, 350, 375, 400, 425, 450, 500}, Each(20)},
    {{90, 100, 110, 130, 150, 170, 200, 225, 250, 300}, Each(10)},
    {{10, 20, 30, 40, 50, 60, 70, 80, 90, 100}, Each(10)},
}};

constexpr CrowdsBySize kSmallEvents = {{
    {Each(1000), Each(200)},
    {Each(1000), Each(100)},
    {Each(750), Each(250)},
    {Each(500), Each(200)},
    {{10, 20, 30, 40, 60, 80, 110, 140, 170, 200}, Each(10)},
    {{1, 10, 15, 20, 25, 30, 35, 40, 45, 50}, Each(5)},
}};

}  // namespace

const std::array<CrowdsBySize, 4> EventCrowds = {kPayPerViews, kLargeEvents, kMediumEvents,
                                                 kSmallEvents};

// A Global promotion that has just fallen below 20 draws less than one that is nearly gone: the
// curious come to the end.
const CrowdsBySize TvCrowds = {{
    {{4500, 4000, 5000, 6000, 6500, 7000, 7500, 8000, 9000, 10000}, Each(50)},
    {{600, 800, 1000, 1250, 1500, 1750, 2000, 2500, 3000, 3500}, FirstThen(20, 10)},
    {{300, 320, 340, 360, 380, 400, 420, 440, 460, 500}, Each(20)},
    {{120, 130, 140, 150, 160, 170, 180, 190, 200, 210}, FirstThen(5, 10)},
    {{10, 20, 30, 40, 50, 60, 70, 80, 90, 100}, FirstThen(5, 10)},
    {Each(1), Each(9)},
}};

}  // namespace grapplemont
