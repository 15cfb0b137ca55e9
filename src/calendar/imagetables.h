#pragma once

namespace grapplemont {

// What a show does to its promotion's image, a minus being a loss. By the size of the promotion,
// and by the rating of the player's show or the quality of a rival's.
int EventImageStep(int size, int rating);
int TvImageStep(int size, int rating);
int RivalEventImageStep(int size, int quality);
int RivalTvImageStep(int size, int quality);

}  // namespace grapplemont
