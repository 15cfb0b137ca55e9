#include "records/fields/chapters.h"

namespace grapplemont {

namespace {

constexpr Field kBoardFields[] = {
    GM_FIELD(BoardState, Warned).Means("The day of the board's last warning of a fall."),
};

constexpr Field kHouseFields[] = {
    GM_NUMBERED(HouseRules, On)
        .Means("The rule holds: 1 the economy cycles, 2 one talk a show, 3 homegrown only, 4 women "
               "only, 5 no auto booker, 6 harder boards, 7 god mode, 8 random world."),
    GM_FIELD(HouseRules, Edited).Means("The running game has been changed by hand."),
};

constexpr Field kPlanFields[] = {
    GM_FIELD(MonthPlan, Month).Means("The first of the month."),
    GM_NUMBERED(MonthPlan, Done).Means("The venture has been made this month."),
};

constexpr Term kWishKinds[] = {{kWishNewStars, "", "New main-eventers"},
                               {kWishDefendWomens, "", "Defend a women's Title at Events"},
                               {kWishDefendTitle, "", "Defend a Title at Events"},
                               {kWishFewTalks, "", "Nobody talks too often"},
                               {kWishProfit, "", "A profit"},
                               {kWishYoungChampion, "", "A young champion"},
                               {kWishBestShow, "", "One great show"},
                               {kWishGoodShows, "", "Good shows all year"},
                               {kWishStanding, "", "A higher standing"},
                               {kWishEvents, "", "Events held"},
                               {kWishSponsors, "", "Sponsors at the end"},
                               {kWishSavings, "", "Money in hand at the end"},
                               {kWishWomensMatches, "", "Women's matches"},
                               {kWishFeudMatches, "", "Feud matches at Events"},
                               {kWishOnAir, "", "A show on television"},
                               {kWishTamerProduct, "", "A tamer product"}};

constexpr Term kWishStates[] = {{kWishOpen, "", "Open"},
                                {kWishGranted, "", "Fulfilled"},
                                {kWishMissed, "", "Missed"},
                                {kWishDropped, "", "Dropped with the job"}};

#define WISH(member) GM_FIELD(OwnerWish, member)
constexpr Field kWishFields[] = {
    WISH(From).Means("The day on which it was made."),
    WISH(Until).Means("The day on which it is judged."),
    WISH(Promotion).In(0, 32767).Means("Uid of the promotion, which may be gone."),
    WISH(Kind).In(kWishNewStars, kWishTamerProduct).From(kWishKinds).Means("What is wished."),
    WISH(Target).Means("How much of it: times, percent, dollars or years."),
    WISH(Base).Means("What it is compared with."),
    WISH(Slips).Means("What is counted day by day."),
    WISH(Came).Means("What it came to when it was judged."),
    WISH(State).In(kWishOpen, kWishDropped).From(kWishStates).Means("How it stands."),
    WISH(About).Means("The Title that it is about."),
};
#undef WISH

}  // namespace

GM_LAYOUT(BoardState, "board.dat", 1, kBoardFields)
GM_LAYOUT(HouseRules, "houserules.dat", 1, kHouseFields)
GM_LAYOUT(MonthPlan, "monthplan.dat", 1, kPlanFields)
GM_LAYOUT(OwnerWish, "wishes.dat", 900, kWishFields)

}  // namespace grapplemont
