#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// Routines that every room shares.

namespace grapplemont {

/// Appends a mail dated today; what is longer than 30 and 250 letters is cut. A full mailbox drops
/// its thousand oldest mails.
void AddNews(World& world, std::string_view from, std::string_view body);
/// True when there is at least one mail.
bool HasNews(const World& world);

/// Notes what happened today, and what of it is worth it for good (keepannals.h). `house` nullptr:
/// it is nobody's. `worker` is who it is about where it is about one. A full file drops its five
/// hundred oldest deeds.
void NoteDeed(World& world, DeedKind kind, const Promotion* house, std::string_view who,
              std::string_view other = {}, int number = 0, const Worker* worker = nullptr);
/// The same of a worker, by their name.
void NoteDeed(World& world, DeedKind kind, const Promotion* house, const Worker& worker,
              std::string_view other = {}, int number = 0);
/// The same of a show that was held, with a rival's draw of 0 to 100.
void NoteShow(World& world, DeedKind kind, const Promotion& house, std::string_view show, int draw,
              int viewers, int people);

/// A rating held in hundredths: "2.50" for 250, "2.00" for 200, "2. 05" for 205 (with the blank).
std::string RatingText(int value);

/// Whether a mail under this option word (0 always, 1 direct rivals or above, 2 never) comes
/// about a promotion of this size, by the player's size as the day last saw it.
bool ShouldTell(const World& world, int option, int size);
/// A mail from the rival's news, if the option lets it through.
void TellOf(World& world, int option, const Promotion& rival, const std::string& body);

/// "$1,284,500", with a minus sign in front for a debt.
std::string Dollars(long long amount);

/// A line for each file that has filled nine tenths of what it may hold: long before nobody new can
/// be found. Whoever reads it can still act. Looked at are workers, staff, Tag Teams, stables,
/// Titles, shows, Events, networks and sponsors; of promotions a world may well have as many as it
/// can, and mails and the past make room by themselves.
std::vector<std::string> NearlyFullFiles(const World& world);

}  // namespace grapplemont
