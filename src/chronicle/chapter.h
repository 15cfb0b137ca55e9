#pragma once

#include <string>
#include <vector>

#include "chronicle/archive.h"

// A chapter of the chronicle: what the records say of somebody or something, in one of the three
// voices, each sentence with the records that prove it.

namespace grapplemont {

struct ToldSentence {
  std::string Words;
  std::vector<Proof> By;
};

/// A picture beside the words.
struct Figure {
  enum class Kind { Crest, Plate, Lines, Bars };
  Kind Is = Kind::Crest;
  int Number = 0;        // a promotion's uid, a Title's record
  std::string Words;     // initials, a Title's name, what a chart shows
  int Level = 0;         // a promotion's size, a Title's image
  bool Several = false;  // a Title for teams
  std::vector<double> Values = {};
  std::vector<std::string> Captions = {};  // below the first value and the last
};

struct Chapter {
  std::string Heading;
  std::vector<std::vector<ToldSentence>> Paragraphs;
  std::vector<Figure> Figures;
};

/// The chapter about a subject of the archive, told by GameInfo.Reporter's number of a voice. The
/// same records give the same words. Without a sentence where nothing is known.
Chapter WriteChapter(const Archive& archive, const Subject& subject, int voice);

}  // namespace grapplemont
