#include "report/template.h"

#include "records/fields/wording.h"

namespace grapplemont {

namespace {

/// Writes one line's text behind what is there, sentence by sentence.
class Filler {
 public:
  Filler(Cast& cast, std::string& out) : cast_(cast), out_(out), sentence_(out.size()) {}

  void Write(std::string_view line) {
    ReadHoles(
        line,
        [this](std::string_view words) {
          if (!hidden_) Letters(words);
        },
        [this](std::string_view slot) { Put(ReadHole(slot)); });
    EndSentence();
  }

 private:
  void Letters(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
      if (text[i] == '\'' && lastWasName_ && out_.ends_with('s') && text.substr(i, 2) == "'s") {
        out_ += '\'';
        ++i;
      } else {
        out_ += text[i];
      }
      lastWasName_ = false;
      if (text[i] == ' ' && AtSentenceEnd()) EndSentence();
    }
  }

  /// The blank just written stands behind a full stop, its quotation marks closed. Dots in a row
  /// end nothing.
  bool AtSentenceEnd() const {
    std::size_t at = out_.size() - 1;
    while (at > sentence_ && (out_[at - 1] == '"' || out_[at - 1] == ')')) --at;
    if (at <= sentence_) return false;
    const char last = out_[at - 1];
    if (last == '.') return at < sentence_ + 2 || out_[at - 2] != '.';
    return last == '!' || last == '?';
  }

  void EndSentence() {
    if (broken_) out_.resize(sentence_);
    broken_ = false;
    sentence_ = out_.size();
  }

  void Put(const Hole& hole) {
    switch (hole.Is) {
      case Hole::If:
      case Hole::IfNot:
        hidden_ = IsThere(hole) != (hole.Is == Hole::If);
        return;
      case Hole::End:
        hidden_ = false;
        return;
      default:
        if (!hidden_) PutText(hole);
    }
  }

  bool IsThere(const Hole& hole) const {
    if (hole.Is == Hole::ThingWord) return !cast_.Thing(static_cast<Item>(hole.Of)).empty();
    return hole.Part != 0 ? !cast_.Of(hole.Part).Empty()
                          : !cast_.Thing(static_cast<Item>(hole.Number)).empty();
  }

  void PutText(const Hole& hole) {
    if (!IsThere(hole)) {
      broken_ = true;
      return;
    }
    const std::size_t at = out_.size();
    if (hole.Is == Hole::Thing)
      out_ += cast_.Thing(static_cast<Item>(hole.Number));
    else if (hole.Is == Hole::ThingWord)
      out_ += WordOfThing(cast_.Thing(static_cast<Item>(hole.Of)), hole.Number);
    else if (hole.Is == Hole::Word)
      out_ += cast_.WordOf(hole.Part, hole.Number);
    else
      out_ += cast_.NameOf(hole.Part, hole.Is);
    lastWasName_ = hole.Is != Hole::Word && hole.Is != Hole::Thing && hole.Is != Hole::ThingWord;
    if (BeginsSentence(at) && at < out_.size() && out_[at] >= 'a' && out_[at] <= 'z')
      out_[at] = static_cast<char>(out_[at] - 32);
  }

  bool BeginsSentence(std::size_t at) const {
    for (std::size_t i = sentence_; i < at; ++i)
      if (out_[i] != '"' && out_[i] != '(') return false;
    return true;
  }

  Cast& cast_;
  std::string& out_;
  std::size_t sentence_;
  bool hidden_ = false, broken_ = false, lastWasName_ = false;
};

}  // namespace

bool Fill(Cast& cast, std::string_view line, std::string& out) {
  const std::size_t before = out.size();
  Filler(cast, out).Write(line);
  return out.size() > before;
}

}  // namespace grapplemont
