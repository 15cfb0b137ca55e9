#include "editor/screens/screenpages.h"

#include <array>

namespace grapplemont {

std::span<const RecordPage> RecordPages() {
  static const std::array<RecordPage, 11> kPages = {
      kWorkerPage, kPromotionPage, kOwnerPage, kStaffPage,   kTeamPage,   kStablePage,
      kTitlePage,  kShowPage,      kEventPage, kNetworkPage, kSponsorPage};
  return kPages;
}

namespace {

/// What the field is called on a page of its file; its own name where no page shows it.
std::string LabelOf(std::string_view file, const std::string& field) {
  for (const RecordPage& page : RecordPages()) {
    if (LayoutOf(page.Kind).File != file) continue;
    for (const FormGroup& group : page.Groups)
      for (const FormEntry& entry : group.Entries)
        if (entry.Field == field) return std::string(entry.Label);
  }
  return field;
}

}  // namespace

std::string FaultWords(const Fault& fault) {
  if (fault.Field.empty()) return "It " + fault.What + ".";
  return LabelOf(fault.File, fault.Field) + " " + fault.What + ".";
}

}  // namespace grapplemont
