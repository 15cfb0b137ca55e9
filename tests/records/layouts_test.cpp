#include <gtest/gtest.h>

#include <set>

#include "records/fields/fields.h"
#include "records/store/mornings.h"
#include "records/store/table.h"
#include "support/smallworld.h"

// Two records with fields of every kind, byte by byte, read and written through the program; where
// the fields of all others stand is in docs/file-formats.md.

namespace grapplemont {
namespace {

/// The bytes of one field and what it is to read as.
struct Piece {
  const char* Bytes;  // "ff 7f", or a text and the width it is padded to: "'Bram':25"
  const char *Field, *Reads;
};

std::string BytesOf(const char* piece) {
  std::string bytes;
  if (piece[0] == '\'') {
    const char* close = std::strrchr(piece, '\'');
    bytes.assign(piece + 1, close);
    bytes.resize(std::stoul(close + 2), ' ');
    return bytes;
  }
  for (const char* at = piece; *at; at += at[2] == ' ' ? 3 : 2)
    bytes += static_cast<char>(std::stoi(std::string(at, 2), nullptr, 16));
  return bytes;
}

std::string ImageOf(std::span<const Piece> pieces) {
  std::string image;
  for (const Piece& piece : pieces) image += BytesOf(piece.Bytes);
  return image;
}

std::string Reading(const Field& field, const std::byte* record, int index) {
  if (field.Kind == FieldKind::Text) return std::string(FieldText(field, record, index));
  if (field.Kind != FieldKind::Date) return std::to_string(FieldNumber(field, record, index));
  Date date;
  date.SetRaw(FieldDate(field, record, index));
  return IsoDate(date);
}

/// Calls `visit` with each field and place of the layout, in their order.
template <class Visit>
void ForEachField(const RecordLayout& layout, Visit visit) {
  for (const Field& field : layout.Fields)
    for (int index = 0; index < field.Count; ++index) visit(field, index);
}

const Piece* Find(std::span<const Piece> pieces, const std::string& name) {
  for (const Piece& piece : pieces)
    if (piece.Field == name) return &piece;
  return nullptr;
}

/// What the image reads as, and that the same values written into an empty record give it again.
template <class T>
void ExpectLayout(std::span<const Piece> pieces) {
  const std::string image = ImageOf(pieces);
  ASSERT_EQ(sizeof(T), image.size());
  Records<T> file;
  const std::string twice = image + image;
  file.Load(std::as_bytes(std::span(twice)));
  const auto* second = reinterpret_cast<const std::byte*>(&file[2]);
  std::string written(image.size(), '\x2A');
  auto* record = reinterpret_cast<std::byte*>(written.data());
  std::size_t fields = 0;
  ForEachField(LayoutOf<T>(), [&](const Field& field, int index) {
    const std::string name = FieldName(field, index);
    const Piece* piece = Find(pieces, name);
    ASSERT_TRUE(piece) << "a field " << name << " that nobody knows";
    EXPECT_EQ(piece->Reads, Reading(field, second, index)) << name;
    ++fields;
    if (field.Kind == FieldKind::Text)
      SetFieldText(field, record, index, piece->Reads);
    else if (field.Kind == FieldKind::Date)
      SetFieldDate(field, record, index, Date(*ParseIsoDate(piece->Reads)).Raw());
    else
      SetFieldNumber(field, record, index, std::stoll(piece->Reads));
  });
  EXPECT_EQ(pieces.size(), fields) << "a field is missing";
  EXPECT_EQ(image, written);
}

TEST(Layouts, Sponsor) {
  const Piece pieces[] = {
      {"0c 01", "Uid", "268"},
      {"'Colossal Cola':20", "Name", "Colossal Cola"},
      {"'Ask for it \xe9.':40", "Slogan", "Ask for it \xe9."},
      {"03 02", "Promotion", "515"},
      {"00 80", "ContractMonths", "-32768"},
      {"1d 00", "Morality", "29"},
      {"2c 01 00 80", "Pay", "-2147483348"},
  };
  ExpectLayout<Sponsor>(pieces);
}

TEST(Layouts, Title) {
  const Piece pieces[] = {
      {"'CWA Heavyweight':20", "Name", "CWA Heavyweight"},
      {"ff ff", "Singles", "-1"},
      {"07 00", "Owner", "7"},
      {"0c 01", "Holder", "268"},
      {"0d 01", "Partner", "269"},
      {"00 00", "Lightweight", "0"},
      {"ff ff", "Woman", "-1"},
      {"58 00", "Image", "88"},
      {"00 00", "Suspended", "0"},
      {"00 00 00 00 40 80 e6 40", "Won1", "2026-03-01"},
      {"'Bram \\ Ilya':25", "Holder1", "Bram \\ Ilya"},
      {"00 00 00 00 40 89 dc 40", "Lost1", "1980-01-01"},
      {"00 00 00 00 20 80 e6 40", "Won2", "2026-02-28"},
      {"'Vacant':25", "Holder2", "Vacant"},
      {"00 00 00 00 40 80 e6 40", "Lost2", "2026-03-01"},
      {"00 00 00 00 00 80 e6 40", "Won3", "2026-02-27"},
      {"'Three':25", "Holder3", "Three"},
      {"00 00 00 00 20 80 e6 40", "Lost3", "2026-02-28"},
      {"00 00 00 00 e0 7f e6 40", "Won4", "2026-02-26"},
      {"'Four':25", "Holder4", "Four"},
      {"00 00 00 00 00 80 e6 40", "Lost4", "2026-02-27"},
      {"00 00 00 00 40 89 dc 40", "Won5", "1980-01-01"},
      {"'None':25", "Holder5", "None"},
      {"00 00 00 00 00 00 00 00", "Lost5", "1899-12-30"},
  };
  ExpectLayout<Title>(pieces);
}

TEST(KnownFiles, AreTheTablesInTheirOrderAndTheMoments) {
  const World world;
  const auto tables = world.Tables();
  const auto& known = KnownFiles();
  ASSERT_EQ(known.size(), tables.size() + 3);
  EXPECT_EQ(kMorningsName, known[tables.size()].Name);
  for (std::size_t i = 0; i < tables.size(); ++i) {
    EXPECT_EQ(tables[i]->File(), known[i].Name);
    EXPECT_EQ(tables[i]->MaxBytes(), known[i].MaxBytes);
  }
  for (std::size_t i = 0; i < kDataSet.size(); ++i) EXPECT_EQ(kDataSet[i], known[i].Name);
}

// What all tools that read the lists rely on.
TEST(FieldLists, DescribeEveryByteOnceAndInOrder) {
  const World world;
  for (const Table* table : world.Tables()) {
    if (!table->Layout()) continue;
    const RecordLayout& layout = *table->Layout();
    std::vector<int> described(static_cast<std::size_t>(layout.Size));
    std::set<std::string> names;
    ForEachField(layout, [&](const Field& field, int index) {
      for (int i = 0; i < field.Width; ++i)
        ++described.at(static_cast<std::size_t>(field.Offset + index * field.Stride + i));
      EXPECT_TRUE(names.insert(FieldName(field, index)).second)
          << layout.Name << " " << FieldName(field, index);
      EXPECT_FALSE(field.Help.empty()) << layout.Name << " " << field.Name;
      EXPECT_LE(field.Min, field.Max) << layout.Name << " " << field.Name;
    });
    EXPECT_EQ(std::vector<int>(described.size(), 1), described) << layout.Name;
  }
}

TEST(FieldLists, ShowValuesAsAPersonReadsThem) {
  Worker worker;
  worker.Gender = true;
  worker.Position = kSentToDevelopment + kMidcard;
  worker.Status = "Inj";
  worker.Weight = "?";
  worker.LastTurn = test::kGameStart;
  const std::map<std::string_view, std::string> expected = {
      {"Gender", "male"},         {"Position", "Midcard (sent to development)"},
      {"Status", "Injured"},      {"Weight", "?"},
      {"LastTurn", "2026-03-01"}, {"HighSpots", "no"}};
  std::size_t shown = 0;
  ForEachField(LayoutOf<Worker>(), [&](const Field& field, int) {
    const auto row = expected.find(field.Name);
    if (row == expected.end()) return;
    EXPECT_EQ(row->second, FieldShown(field, reinterpret_cast<const std::byte*>(&worker)));
    ++shown;
  });
  EXPECT_EQ(expected.size(), shown);
}

}  // namespace
}  // namespace grapplemont
