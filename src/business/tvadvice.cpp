#include "business/tvadvice.h"

#include "business/commentators.h"
#include "business/networks.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

/// Commentators get by who are this much below what the public expects.
constexpr int kTolerance = 10;

/// What Maeve says of an empty chair and of who does not fill it.
struct ChairWords {
  TvRemark Empty, Poor;
};

void JudgeChair(std::vector<TvRemark>& remarks, const std::optional<Commentator>& seated,
                int wanted, const ChairWords& words) {
  if (!seated)
    remarks.push_back(words.Empty);
  else if (seated->Skill + kTolerance < wanted)
    remarks.push_back(words.Poor);
}

void JudgeTable(std::vector<TvRemark>& remarks, const World& world, const Show& show) {
  const int wanted = WantedTalent(world.Player().Size);
  JudgeChair(remarks, AnnouncerOf(world, show), wanted,
             {{"No Announcer!", "Maeve: 'You need to assign an announcer to this show!'"},
              {"Poor Announcer!", "Maeve: 'You need to assign a better announcer to this show!'"}});
  JudgeChair(
      remarks, ColourManOf(world, show), wanted,
      {{"No Colour Commentator!", "Maeve: 'You need to assign a colour commentator to this show!'"},
       {"Poor Colour Commentator!",
        "Maeve: 'You need to assign a better colour commentator to this show!'"}});
}

/// Nothing to say between 70 and 80 per cent of what is wanted.
std::vector<TvRemark> JudgeRating(int rating, int audience) {
  // Tenths, since the limits are not rounded.
  if (rating * 10 < audience * 6)
    return {{"Uh-oh!",
             "Maeve: 'Our ratings are well below what the network expects, something needs to "
             "change very soon!'"}};
  if (rating * 10 < audience * 7)
    return {{"Uh-oh!",
             "Maeve: 'Our ratings are below what the network expects, something needs to "
             "change!'"}};
  if (rating * 10 > audience * 9)
    return {{"Great!", "Maeve: 'Our ratings are superb, the network are very happy with us!'"}};
  if (rating * 10 > audience * 8)
    return {{"OK!", "Maeve: 'Our ratings are good, the network appears to be happy with us.'"}};
  return {};
}

TvRemark JudgeRisk(const Promotion& promotion, const Show& show, const Network& network) {
  if (promotion.Risk > SlotRisk(network, show.Slot))
    return {"Too Risky!",
            "Maeve: 'We need to tone down the riskiness of the show if we want to stay on the "
            "air!'"};
  return {"Nothing's Happening!", "Maeve: 'I have nothing to report.'"};
}

std::string StrikesText(const Show& show) {
  switch (show.Rating4) {
    case 0:
      return "No strikes.";
    case 1:
      return "One strike. At three the network drops the show.";
    case 2:
      return "Two strikes. One more, and the network drops the show.";
    case 3:
      return "Three strikes: the network will drop the show on Monday.";
    default:
      return std::to_string(show.Rating4) + " strikes, and somehow nobody has noticed.";
  }
}

}  // namespace

std::vector<TvRemark> TvAdvice(const World& world, const Show& show, const Network& network) {
  std::vector<TvRemark> remarks;
  JudgeTable(remarks, world, show);
  if (show.Rating1 == 0) {
    remarks.push_back({"Duh!",
                       "Maeve: 'What are you expecting me to say? We haven't even debuted this "
                       "show yet!'"});
    return remarks;
  }
  const auto ratings = JudgeRating(show.Rating3, SlotAudience(network, show.Slot));
  remarks.insert(remarks.end(), ratings.begin(), ratings.end());
  if (ratings.empty()) remarks.push_back(JudgeRisk(world.Player(), show, network));
  return remarks;
}

std::vector<std::string> NetworkWants(const Promotion& promotion, const Show& show,
                                      const Network& network) {
  const int audience = SlotAudience(network, show.Slot);
  const std::string slot(SlotName(show.Slot));
  return {network.Name + " measures the show against a rating of " + RatingText(audience) + " in " +
              slot + ".",
          "It bears a risk of " + std::to_string(SlotRisk(network, show.Slot)) +
              " there. Ours is " + std::to_string(promotion.Risk) + ".",
          "It asks for production values of " + std::to_string(network.Production) + ". Ours are " +
              std::to_string(promotion.Production) + ".",
          StrikesText(show)};
}

}  // namespace grapplemont
