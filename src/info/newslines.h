#pragma once

#include <array>
#include <string_view>

#include "records/deeds.h"

namespace grapplemont {

/// How a deed is told. {who}, {house}, {other}, {size}, {months}, {weeks}, {rating} and {people}
/// stand for what the deed holds.
struct DeedLine {
  int Kind;
  std::string_view What;
  std::array<std::string_view, 6> Lines;  // empty from the last one on
};
/// nullptr for a kind that is none.
const DeedLine* LineOfDeed(int kind);

/// How a Title's change is told: {who}, {title}, {house} and {other}, the champion before.
inline constexpr std::array<std::string_view, 5> kTitleWon = {
    "{who} took {title} from {other}.",
    "{title} has gone from {other} to {who}, who has been photographed with it in a bath.",
    "{other} lost {title} to {who}, and has asked for a recount.",
    "{who} beat {other} for {title}. The belt had to be let out a hole, or taken in.",
    "New champion: {who}, with {title}. {other} takes it like a grown-up, behind a door."};
inline constexpr std::array<std::string_view, 3> kTitleFound = {
    "{who} holds {title}, which had been nobody's.", "{title} has found a home with {who}.",
    "After a time on a hook {title} belongs to {who}."};
inline constexpr std::array<std::string_view, 3> kTitleLost = {
    "{title} is vacant. {other} had it last.",
    "{other} is champion no more, and nobody is: {title} is vacant.",
    "{title} has been left on a chair by {other}. It is vacant."};

}  // namespace grapplemont
