#include "chronicle/book.h"

#include <algorithm>

#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "report/report.h"

namespace grapplemont {

namespace {

struct PartRow {
  About Kind;
  const char* Heading;
  std::size_t Most;  // chapters
  int Least;         // weight
};
constexpr PartRow kBookParts[] = {{About::Promotion, "Promotions", 100, 0},
                                  {About::Title, "Titles", 120, 2},
                                  {About::Worker, "People", 80, 20},
                                  {About::Feud, "Feuds", 80, 2},
                                  {About::Year, "Years", 200, 0}};

}  // namespace

WorldBook WriteBook(const Archive& archive, int voice) {
  const World& world = archive.Of();
  WorldBook book;
  book.Title = "The Chronicle of " + PromotionName(world, world.PlayerUid()) + " and Its World";
  book.Under = "Told by " + std::string(VoiceName(voice)) + ", " + PlainDate(world.Today());
  for (const PartRow& row : kBookParts) {
    BookPart part{row.Heading, {}};
    for (const Subject& subject : archive.Subjects(row.Kind)) {
      if (part.Chapters.size() >= row.Most) break;
      if (subject.Weight < row.Least) continue;
      Chapter chapter = WriteChapter(archive, subject, voice);
      if (!chapter.Paragraphs.empty()) part.Chapters.push_back(std::move(chapter));
    }
    if (!part.Chapters.empty()) book.Parts.push_back(std::move(part));
  }
  return book;
}

std::string ProofName(const Proof& proof) {
  return std::string(proof.Of->File) + ", record " + std::to_string(proof.Number);
}

std::vector<ProofField> FieldsOf(const World& world, const Proof& proof) {
  std::vector<ProofField> fields;
  for (const Table* table : world.Tables()) {
    if (table->Layout() != proof.Of) continue;
    const ByteSpan bytes = table->RecordBytes();
    const auto from = static_cast<std::size_t>((proof.Number - 1) * proof.Of->Size);
    if (proof.Number < 1 || from >= bytes.size()) return {};
    for (const Field& field : proof.Of->Fields)
      for (int index = 0; index < field.Count; ++index) {
        const bool counts = field.Kind != FieldKind::Text && field.Kind != FieldKind::Date;
        if (counts && FieldNumber(field, bytes.data() + from, index) == 0) continue;
        std::string shown = FieldShown(field, bytes.data() + from, index);
        // The day that stands for none says nothing either.
        const bool isNoDay =
            field.Kind == FieldKind::Date && ParseIsoDate(shown) == Day(kNoTitleDate);
        if (shown.empty() || isNoDay) continue;
        fields.push_back({FieldName(field, index), std::move(shown), std::string(field.Help)});
      }
  }
  return fields;
}

}  // namespace grapplemont
