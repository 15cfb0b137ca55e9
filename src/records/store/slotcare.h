#pragma once

#include <string>
#include <vector>

#include "records/store/slot.h"

// What is done to a whole slot while nobody plays in it. Everything throws SlotBusy while somebody
// does, and DiskError.

namespace grapplemont {

/// The picture of the page that was seen last in a slot; it lies beside the folder and need not be
/// there.
inline std::string PageOf(const std::string& folder) {
  return folder + ".png";
}

/// The files of a slot as opening it would find them. A slot so damaged that opening it has to give
/// something up is a DiskError.
std::vector<NewFile> ReadSlot(Disk& disk, const std::string& folder);

/// A whole slot as the bytes of one file, for another home. `about` is what whoever looks into the
/// file reads at its beginning.
Bytes PackSlot(const std::vector<NewFile>& files, const std::string& about);
/// The files in such bytes, of this version or an earlier one. Throws WorldFault, naming `path` and
/// what is wrong with it, for others.
std::vector<NewFile> UnpackSlot(ByteSpan bytes, const std::string& path);
/// No packed slot is longer.
std::int64_t MostPackedBytes();

/// Moves a slot's folder to the free path `away` beside it, in one step, with all that lies in it.
void PutAway(Disk& disk, const std::string& folder, const std::string& away);
/// Moves it back. A DiskError where anything stands in its place.
void BringBack(Disk& disk, const std::string& away, const std::string& folder);
/// Removes a slot's files from the folder that it was put away in, and the folder if nothing else
/// lies there.
void RemoveForGood(Disk& disk, const std::string& away);

}  // namespace grapplemont
