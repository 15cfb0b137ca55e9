#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// The player's mailbox: what lies in it, and throwing it away.

namespace grapplemont {

/// Who has mail in the box, each once, by the alphabet.
std::vector<std::string> MailSenders(const World& world);
/// The numbers of the mails, newest first; of one sender alone where `from` is not empty.
std::vector<int> MailsNewestFirst(const World& world, std::string_view from = {});
/// Later mails move up one number.
void DeleteMail(World& world, int number);
void EmptyMailbox(World& world);

}  // namespace grapplemont
