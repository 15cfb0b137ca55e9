#include "rivals/endstories.h"

#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

struct Subject {
  std::string Name, Initials, Size, Player;
};

std::string LoanStory(const Subject& of) {
  return of.Name + " today released their general manager " + of.Player + ". " +
         "According to reports, a loan taken out by " + of.Player +
         " had caused financial problems for the company, to the extent that the board felt it was "
         "necessary to take action. More news on this story as we get it.";
}

std::string BankruptStory(const Subject& of) {
  return of.Name +
         " today went out of business due to financial problems. The company has been having "
         "problems with cash flow for some time, and many blame this on the inability of general "
         "manager " +
         of.Player + " to handle financial affairs. More news as we get it.";
}

std::string BoardStory(const Subject& of) {
  return of.Name + " today released their general manager " + of.Player + ". Many feel that " +
         of.Player +
         " had to go, as the company was suffering an alarming slump in fortunes. The "
         "mismanagement of " +
         of.Player + " is seen as the main reason why " + of.Initials + " have fallen to " +
         of.Size +
         " level, and few in the dressing room were sorry to hear the news. Nobody at head office "
         "would say who takes over. More news on this story as we get it.";
}

std::string PartingStory(const Subject& of) {
  return of.Name + " and their general manager " + of.Player +
         " today went their separate ways. Both sides thank each other for the time spent together "
         "and ask that their privacy be respected. More news on this story as we get it.";
}

struct Story {
  int Code;
  const char* Headline;  // between the initials and the player's name
  bool NamesPlayer;
  std::string (*Body)(const Subject&);
  const char* SignedBy;
};
constexpr Story kStories[] = {
    {kEndLoan, " fire ", true, LoanStory, "Delia Crumb, The Turnbuckle Courier"},
    {kEndBankrupt, " go bankrupt", false, BankruptStory, "Hob Nettles, The Turnbuckle Courier"},
    {kEndBoard, " fire ", true, BoardStory, "Delia Crumb, The Turnbuckle Courier"},
};
// For any other code.
constexpr Story kParting = {0, " part with ", true, PartingStory,
                            "Hob Nettles, The Turnbuckle Courier"};

const Story& StoryOf(int endCode) {
  for (const Story& story : kStories)
    if (story.Code == endCode) return story;
  return kParting;
}

}  // namespace

EndStory StoryOfTheEnd(const World& world, int endCode) {
  const Promotion& promotion = world.Player();
  const Subject of{promotion.Name.Str(), promotion.Initials.Str(),
                   std::string(SizeText(promotion.Size)), world.Game().PlayerName.Str()};
  const Story& story = StoryOf(endCode);
  return {of.Initials + story.Headline + (story.NamesPlayer ? of.Player : "") + "!", story.Body(of),
          story.SignedBy};
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
