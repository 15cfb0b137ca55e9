#include "records/inspection.h"

#include <algorithm>

namespace grapplemont {

namespace {

/// The record's own name; blanks stand for what would spoil the line.
std::string OwnName(const Place& place) {
  for (const Field& field : place.Layout.Fields) {
    if (field.Name != "Name") continue;
    std::string name(FieldText(field, place.Record));
    std::replace_if(
        name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, ' ');
    return name;
  }
  return {};
}

}  // namespace

std::string Fault::Line() const {
  std::string line = File;
  if (Record != 0) line += ", record " + std::to_string(Record);
  if (!Who.empty()) line += " (" + Who + ")";
  if (!Field.empty()) line += ", " + Field;
  return line + ": " + What;
}

Inspection::Inspection(World& world, Purpose purpose, TakeFault take, WantFault wanted)
    : world_(world),
      purpose_(purpose),
      take_(std::move(take)),
      wanted_(std::move(wanted)),
      asData_(purpose == Purpose::Mend || !world.HasGame()) {}

bool Inspection::Covers(const RecordLayout& layout) const {
  return !asData_ || std::find(kDataSet.begin(), kDataSet.end(), layout.File) != kDataSet.end();
}

void Inspection::NoteFile(std::string_view file, std::string what, const Remedy& remedy) {
  Take({std::string(file), 0, {}, {}, std::move(what)}, remedy);
}

void Inspection::NoteField(const Place& place, std::string_view field, std::string what,
                           const Remedy& remedy) {
  Take({std::string(place.Layout.File), place.Number, OwnName(place), std::string(field),
        std::move(what)},
       remedy);
}

void Inspection::Take(Fault fault, const Remedy& remedy) {
  if (wanted_ && !wanted_(fault)) return;
  if (purpose_ != Purpose::Check) {
    if (!remedy.Do) return;
    remedy.Do();
    fault.What += "; " + remedy.How;
  }
  take_(std::move(fault));
}

}  // namespace grapplemont
