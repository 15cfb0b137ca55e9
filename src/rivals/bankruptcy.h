#pragma once

namespace grapplemont {

/// How deep in debt, in dollars, a promotion of a size is warned and closed.
struct BankruptcyLine {
  int WarnedFrom;
  int WarnedBelow;
  int BankruptBelow;
};
const BankruptcyLine& BankruptcyLineOf(int size);

}  // namespace grapplemont
