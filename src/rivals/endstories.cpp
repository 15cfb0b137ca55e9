#include "rivals/endstories.h"

#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

struct Story {
  int Code;
  std::string_view Headline, Body, SignedBy;
};
constexpr std::string_view kDelia = "Delia Crumb, The Turnbuckle Courier";
constexpr std::string_view kHob = "Hob Nettles, The Turnbuckle Courier";
// The last is for any other code.
constexpr Story kStories[] = {
    {kEndLoan, "{initials} fire {player}!",
     "{name} today released their general manager {player}. According to reports, a loan taken out "
     "by {player} had caused financial problems for the company, to the extent that the board felt "
     "it was necessary to take action. More news on this story as we get it.",
     kDelia},
    {kEndBankrupt, "{initials} go bankrupt!",
     "{name} today went out of business due to financial problems. The company has been having "
     "problems with cash flow for some time, and many blame this on the inability of general "
     "manager {player} to handle financial affairs. More news as we get it.",
     kHob},
    {kEndBoard, "{initials} fire {player}!",
     "{name} today released their general manager {player}. Many feel that {player} had to go, as "
     "the company was suffering an alarming slump in fortunes. The mismanagement of {player} is "
     "seen as the main reason why {initials} have fallen to {size} level, and few in the dressing "
     "room were sorry to hear the news. Nobody at head office would say who takes over. More news "
     "on this story as we get it.",
     kDelia},
    {0, "{initials} part with {player}!",
     "{name} and their general manager {player} today went their separate ways. Both sides thank "
     "each other for the time spent together and ask that their privacy be respected. More news on "
     "this story as we get it.",
     kHob}};

}  // namespace

EndStory StoryOfTheEnd(const World& world, int endCode) {
  const Promotion& promotion = world.Player();
  const Story* story = kStories;
  while (story->Code != endCode && story->Code != 0) ++story;
  const auto fill = [&](std::string_view slot) {
    return slot == "name"       ? promotion.Name.Str()
           : slot == "initials" ? promotion.Initials.Str()
           : slot == "size"     ? std::string(SizeText(promotion.Size))
                                : world.Game().PlayerName.Str();
  };
  return {FillHoles(story->Headline, fill), FillHoles(story->Body, fill),
          std::string(story->SignedBy)};
}

std::string CareerInFigures(const World& world) {
  const GameInfo& game = world.Game();
  const Promotion& promotion = world.Player();
  std::string text = "From " + PlainDate(game.StartDate) + " to " + PlainDate(game.Today) + ": " +
                     Counted((Day(game.Today) - Day(game.StartDate)).count(), "day") + ".\n";
  text += "Last job: " + game.Jobs[0].Promotion.Str() + ", " +
          std::string(SizeText(game.Jobs[0].StartSize)) + " with an image of " +
          std::to_string(game.Jobs[0].StartImage) + "% when it began, " +
          std::string(SizeText(promotion.Size)) + " with " + std::to_string(promotion.Image) +
          "% when it ended.\n";
  for (std::size_t i = 1; i < game.Jobs.size(); ++i)
    if (game.Jobs[i].Promotion != "None")
      text += "Before that: " + game.Jobs[i].Promotion.Str() + ".\n";
  text += "Money left: " + Dollars(promotion.Money) +
          ". Reputation: " + std::to_string(game.Reputation) + "%.";
  return text;
}

}  // namespace grapplemont
