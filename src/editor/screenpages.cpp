#include "editor/screenpages.h"

#include <array>

namespace grapplemont {

std::span<const RecordPage> RecordPages() {
  static const std::array<RecordPage, 11> kPages = {
      kWorkerPage, kPromotionPage, kOwnerPage, kStaffPage,   kTeamPage,   kStablePage,
      kTitlePage,  kShowPage,      kEventPage, kNetworkPage, kSponsorPage};
  return kPages;
}

const RecordPage& PageOf(RecordKind kind, const std::byte* record) {
  for (const RecordPage& page : RecordPages())
    if (page.Kind == kind && (!page.Shows || page.Shows(record))) return page;
  return kStaffPage;
}

}  // namespace grapplemont
