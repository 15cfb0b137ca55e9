#include "business/ticketprice.h"

#include <array>
#include <limits>

#include "business/monthlymoney.h"

namespace grapplemont {

namespace {

struct Opinion {
  int UpTo;  // dollars off the fair price
  std::string_view Words;
};
constexpr std::string_view kScandal = "Hardly anybody would pay that.";
constexpr std::array<Opinion, 6> kOpinions = {
    {{-11, "They cannot believe how little we ask."},
     {-6, "They are glad of the low price."},
     {5, "They find it a fair price."},
     {15, "They find it dear, and some stay at home."},
     {30, "They find it far too dear, and many stay at home."},
     {std::numeric_limits<int>::max(), kScandal}}};

}  // namespace

std::string_view TicketOpinion(int size, int price) {
  const int fair = FairTicketPrice(size);
  // A small promotion's crowd walks away long before the dollars add up.
  if (price > 2 * fair) return kScandal;
  for (const Opinion& opinion : kOpinions)
    if (price - fair <= opinion.UpTo) return opinion.Words;
  return kScandal;
}

}  // namespace grapplemont
