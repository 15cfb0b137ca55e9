#include "session/screens/screenfiletowrite.h"

#include "records/fields/charset.h"
#include "records/fields/field.h"
#include "session/slots.h"

namespace grapplemont {

std::string FileToWrite(Game& game, const std::string& title, const std::string& offered) {
  const std::string typed(detail::Trimmed(game.Desk().ChooseFile(
      title, "The file to write, in the game's folder or a whole path:", offered,
      ui::Desk::Use::Write)));
  if (typed.empty()) return {};
  const std::string path = PathInHome(game.Home(), typed);
  const bool replaces = game.Disk().Look(path) != Disk::Kind::Nothing;
  const bool may =
      !replaces ||
      game.Desk().Ask("Replace?", ForScreen(path) + " is there already. Write over it?",
                      ui::Default::No);
  return may ? path : std::string();
}

}  // namespace grapplemont
