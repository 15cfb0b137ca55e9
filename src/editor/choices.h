#pragma once

#include <string>
#include <vector>

#include "editor/keeping.h"
#include "records/fields/field.h"

// Whom a field that leads to another record can be made to lead to.

namespace grapplemont {

struct Choice {
  std::string Says;
  int Uid = 0;  // 0 for fields that hold a name
  friend bool operator==(const Choice&, const Choice&) = default;
};

/// What may stand in the field of this record as it is, by name; "None" is not among them. A
/// commentator who is a worker has the negative of their uid.
std::vector<Choice> ChoicesFor(const World& world, RecordKind kind, const FieldPlace& place,
                               const std::byte* record);
/// Whether what may stand there hangs on the record's other fields.
bool HangsOnTheRecord(RecordKind kind, const Field& field);

/// Who the uid is: a promotion's initials, any other's name; "None" for none, "#17 (gone)" for a
/// uid that leads nowhere.
std::string NameOfUid(const World& world, Refers to, int uid);

// Words for numbers that the records' own vocabularies leave bare.

inline constexpr Term kBirthMonths[] = {
    {0, "", "Unknown"},  {1, "", "January"},   {2, "", "February"}, {3, "", "March"},
    {4, "", "April"},    {5, "", "May"},       {6, "", "June"},     {7, "", "July"},
    {8, "", "August"},   {9, "", "September"}, {10, "", "October"}, {11, "", "November"},
    {12, "", "December"}};
inline constexpr Vocabulary kMonths = Vocabulary(kBirthMonths).last(12);
inline constexpr Term kOwnerStyles[] = {
    {1, "", "1, brawlers (risk 70)"},        {2, "", "2, technicians (risk 30)"},
    {3, "", "3, all-rounders (risk 10)"},    {4, "", "4, high-flyers (risk 40)"},
    {5, "", "5, women and stars (risk 85)"}, {6, "", "6, youth (risk 20)"}};
inline constexpr Term kSinglesOrTag[] = {{-1, "", "Singles"}, {0, "", "Tag Team"}};

}  // namespace grapplemont
