#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "records/fields/wording.h"
#include "records/score.h"

// What all who are asked to sign have in common: a row of objections, the first that holds counts.

namespace grapplemont {

/// One objection, and what "Why?" tells of it. The latter's slots in braces are what the talk's
/// Told() says for them.
template <class Talk>
struct Objection {
  bool (*Holds)(const Talk& talk);
  const char* Words;
  const char* Against;                               // told when it holds
  const char* For = nullptr;                         // told when it does not; nullptr for nothing
  bool (*IsSaidAnyway)(const Talk& talk) = nullptr;  // even after another objection
};

/// Whether the objection holds; `why` gets what was weighed.
template <class Talk>
bool IsRaised(const Objection<Talk>& objection, const Talk& talk, Decision* why) {
  const bool holds = objection.Holds(talk);
  const char* const text = holds ? objection.Against : objection.For;
  if (why && text)
    why->Weigh(!holds, FillHoles(text, [&](std::string_view slot) { return talk.Told(slot); }));
  return holds;
}

/// The words of the first that holds; empty when none does.
template <class Talk, std::size_t N>
std::string FirstObjection(const Objection<Talk> (&objections)[N], const Talk& talk,
                           Decision* why) {
  for (const Objection<Talk>& objection : objections)
    if (IsRaised(objection, talk, why)) return objection.Words;
  return {};
}

}  // namespace grapplemont
