#include "records/fields/chapters.h"

namespace grapplemont {

namespace {

constexpr Field kBoardFields[] = {
    GM_FIELD(BoardState, Warned).Means("The day of the board's last warning of a fall."),
};

}  // namespace

GM_LAYOUT(BoardState, "board.dat", 1, kBoardFields)

}  // namespace grapplemont
