#include "info/mailoptions.h"

namespace grapplemont {

void SetMailOption(GameInfo& game, const MailOption& option, int choice) {
  game.*option.Choice = option.TwoWay && choice == kMailRivals ? int(kMailAlways) : choice;
}

void SetAllMailOptions(GameInfo& game, int choice) {
  for (const MailOption& option : kMailOptionTable) SetMailOption(game, option, choice);
}

}  // namespace grapplemont
