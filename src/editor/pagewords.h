#pragma once

#include "records/fields/field.h"

// Words for numbers that the records' own vocabularies leave bare.

namespace grapplemont {

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
