#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// Which news of the world reaches the player as a mail.

namespace grapplemont {

enum MailChoice { kMailAlways, kMailRivals, kMailNever };

/// One mail option: the control that sets it, what it covers, its word. A two-way one is about the
/// player's own people, where only Always and Never make sense.
struct MailOption {
  const char* Control;
  const char* Covers;
  Word GameInfo::*Choice;
  bool TwoWay = false;
};

inline constexpr std::array<MailOption, 14> kMailOptionTable = {{
    {"cmbowners", "New owners", &GameInfo::MailOwners},
    {"cmbwreshire", "Workers signed", &GameInfo::MailWorkerHire},
    {"cmbwresfire", "Workers fired", &GameInfo::MailWorkerFire},
    {"cmbstaffhire", "Staff signed", &GameInfo::MailStaffHire},
    {"cmbstafffire", "Staff fired", &GameInfo::MailStaffFire},
    {"cmbtv", "TV deals", &GameInfo::MailTv},
    {"cmbretirement", "Retirements", &GameInfo::MailRetirement},
    {"cmbotherfed", "Rival finances, size changes, new promotions", &GameInfo::MailOtherFed},
    {"cmbsponsor", "Sponsors", &GameInfo::MailSponsor},
    {"cmbshows", "Rival events", &GameInfo::MailShows},
    {"cmbtvshow", "Rival TV shows", &GameInfo::MailTvShow},
    {"cmbstaffretire", "Staff retirements", &GameInfo::MailStaffRetire},
    {"cmbdev", "Development reports", &GameInfo::MailDev, true},
    {"cmbtrain", "Camp reports", &GameInfo::MailTrain, true},
}};

/// A two-way option takes "only direct rivals" for Always.
void SetMailOption(GameInfo& game, const MailOption& option, int choice);
void SetAllMailOptions(GameInfo& game, int choice);

// What lies in the player's mailbox.

/// Who has mail in the box, each once, by the alphabet.
std::vector<std::string> MailSenders(const World& world);
/// The numbers of the mails, newest first; of one sender alone where `from` is not empty.
std::vector<int> MailsNewestFirst(const World& world, std::string_view from = {});

}  // namespace grapplemont
