#pragma once

#include <functional>
#include <string>
#include <vector>

#include "chronicle/chapter.h"

// A whole world as a book: promotions, Titles, people, feuds and years.

namespace grapplemont {

struct BookPart {
  std::string Heading;
  std::vector<Chapter> Chapters;
};
struct WorldBook {
  std::string Title, Under;
  std::vector<BookPart> Parts;
};

/// The book of the archive's world in a voice; what there is little to tell of is left out.
WorldBook WriteBook(const Archive& archive, int voice);

/// How a book is written down.
struct BookForm {
  std::function<std::string(const Figure& figure)> Picture;
  bool Printed = false;         // sentences have numbers in place of links
  std::vector<int> Pages = {};  // on which each chapter begins, where that is known
};
/// A whole document in UTF-8: a table of contents where there are several chapters, the chapters,
/// and behind them the records, to which each sentence leads.
std::string HtmlOf(const World& world, const WorldBook& book, const BookForm& form);
/// Lines and shapes of a picture as they stand in HTML.
std::string SvgOf(const Figure& figure);

/// "reigns.dat, record 17".
std::string ProofName(const Proof& proof);
/// A field of a record that says something.
struct ProofField {
  std::string Name, Value, Meaning;
};
/// Empty for a record that is not there any more.
std::vector<ProofField> FieldsOf(const World& world, const Proof& proof);

}  // namespace grapplemont
