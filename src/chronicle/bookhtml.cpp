#include <map>

#include "chronicle/book.h"
#include "records/fields/charset.h"

namespace grapplemont {

namespace {

/// So many records of a sentence are shown field by field; more are listed by their numbers.
constexpr std::size_t kShownWhole = 6;

constexpr std::string_view kHead = R"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8"><meta name="viewport" content="width=device-width">
<style>
body { max-width: 42em; margin: 2em auto; padding: 0 1em; font: 1.05em/1.6 Georgia, serif;
  color: #24221f; background: #fbf9f4; }
h1, h2, h3, nav, .records { font-family: sans-serif; line-height: 1.25; }
p a { color: inherit; text-decoration: none; border-bottom: 1px dotted #b0a890; }
p a:hover, p a:focus { background: #f0e6c8; }
.records { font-size: 0.75em; line-height: 1.45; overflow-wrap: anywhere; }
.records :target { background: #f0e6c8; }
svg.crest { width: 6em; height: 6em; float: right; margin: 0 0 1em 1em; }
svg.plate { width: 8em; height: 4em; float: right; margin: 0 0 1em 1em; }
nav ul { columns: 2; padding-left: 1em; font-size: 0.85em; }
@media (prefers-color-scheme: dark) { body { color: #ddd8cc; background: #1d1c1a; }
  p a:hover, p a:focus, .records :target { background: #453d22; } }
</style>
)";

/// What paper knows of it: no colours, no columns.
constexpr std::string_view kPrintedHead = R"(<!DOCTYPE html>
<html lang="en"><head><meta charset="utf-8">
<style>
h1, h2, h3 { font-family: sans-serif; }
td, .records { font-family: sans-serif; font-size: 8pt; }
td a { color: black; text-decoration: none; }
</style>
)";
constexpr std::size_t kColumns = 3;  // of the printed contents

std::string Safe(std::string_view text) {
  std::string safe;
  for (const char letter : text) {
    if (letter == '&')
      safe += "&amp;";
    else if (letter == '<')
      safe += "&lt;";
    else if (letter == '>')
      safe += "&gt;";
    else if (letter == '"')
      safe += "&quot;";
    else
      safe += IsControl(letter) ? '?' : letter;
  }
  return safe;
}

class HtmlWriter {
 public:
  HtmlWriter(const World& world, const WorldBook& book, const BookForm& form)
      : world_(world), book_(book), form_(form) {}

  std::string Write() {
    out_ = form_.Printed ? kPrintedHead : kHead;
    out_ += "<title>" + Safe(book_.Title) + "</title></head><body>\n<h1>" + Safe(book_.Title) +
            "</h1>\n<p><em>" + Safe(book_.Under) + "</em></p>\n";
    Contents();
    int number = 0;
    for (const BookPart& part : book_.Parts) {
      if (!part.Heading.empty()) out_ += "<h2>" + Safe(part.Heading) + "</h2>\n";
      for (const Chapter& chapter : part.Chapters) Put(chapter, ++number);
    }
    PutRecords();
    out_ += "</body></html>\n";
    return ToUtf8(out_);
  }

 private:
  void Contents() {
    if (book_.Parts.size() == 1 && book_.Parts[0].Chapters.size() == 1) return;
    out_ += "<nav><h2>Contents</h2>\n";
    int before = 0;
    for (const BookPart& part : book_.Parts) {
      out_ += "<h3>" + Safe(part.Heading) + "</h3>\n";
      form_.Printed ? PutTable(part, before) : PutList(part, before);
      before += static_cast<int>(part.Chapters.size());
    }
    out_ += "</nav>\n";
  }

  /// The chapters of a part, `before` of which come first in the book.
  void PutList(const BookPart& part, int before) {
    out_ += "<ul>\n";
    for (const Chapter& chapter : part.Chapters) {
      out_ += "<li>";
      PutEntry(chapter, ++before);
      out_ += "</li>\n";
    }
    out_ += "</ul>\n";
  }

  void PutTable(const BookPart& part, int before) {
    out_ += "<table width=\"100%\">\n";
    for (std::size_t first = 0; first < part.Chapters.size(); first += kColumns) {
      out_ += "<tr>";
      for (std::size_t at = first; at < first + kColumns; ++at) {
        out_ += "<td width=\"33%\">";
        if (at < part.Chapters.size()) PutEntry(part.Chapters[at], ++before);
        out_ += "</td>";
      }
      out_ += "</tr>\n";
    }
    out_ += "</table>\n";
  }

  void PutEntry(const Chapter& chapter, int number) {
    const auto at = static_cast<std::size_t>(number - 1);
    out_ += "<a href=\"#c" + std::to_string(number) + "\">" + Safe(chapter.Heading) + "</a>" +
            (at < form_.Pages.size() ? ", " + std::to_string(form_.Pages[at]) : "");
  }

  void Put(const Chapter& chapter, int number) {
    const std::string place = "c" + std::to_string(number);
    out_ += "<h3 id=\"" + place + "\"><a name=\"" + place + "\"></a>" + Safe(chapter.Heading) +
            "</h3>\n";
    for (const Figure& figure : chapter.Figures)
      if (figure.Is == Figure::Kind::Crest || figure.Is == Figure::Kind::Plate)
        out_ += form_.Picture(figure) + "\n";
    for (const auto& paragraph : chapter.Paragraphs) {
      out_ += "<p>";
      for (const ToldSentence& sentence : paragraph) Put(sentence);
      out_ += "</p>\n";
    }
    for (const Figure& figure : chapter.Figures)
      if (figure.Is == Figure::Kind::Lines || figure.Is == Figure::Kind::Bars) PutChart(figure);
  }

  void PutChart(const Figure& figure) {
    const std::string picture = form_.Picture(figure), words = Safe(figure.Words);
    out_ += form_.Printed
                ? "<p>" + picture + "<br><small><i>" + words + "</i></small></p>\n"
                : "<figure>" + picture + "<figcaption>" + words + "</figcaption></figure>\n";
  }

  void Put(const ToldSentence& sentence) {
    const std::string place = std::to_string(PlaceOf(sentence.By)), words = Safe(sentence.Words);
    out_ += form_.Printed ? words + " <small>[" + place + "]</small> "
                          : "<a href=\"#r" + place + "\">" + words + "</a> ";
  }

  /// The number under which these records stand; the same records stand once.
  int PlaceOf(const std::vector<Proof>& by) {
    std::string key;
    for (const Proof& proof : by) key += ProofName(proof) + ";";
    const auto [found, isNew] =
        places_.emplace(std::move(key), static_cast<int>(records_.size()) + 1);
    if (isNew) records_.push_back(&by);
    return found->second;
  }

  void PutRecords() {
    out_ +=
        "<h2>The Records</h2>\n<p>Every sentence above leads to the records that prove it.</p>\n"
        "<div class=\"records\">\n";
    for (std::size_t i = 0; i < records_.size(); ++i) {
      const std::string place = std::to_string(i + 1);
      out_ += form_.Printed ? "<p>[" + place + "] " : "<p id=\"r" + place + "\">";
      records_[i]->size() > kShownWhole ? PutNumbers(*records_[i]) : PutWhole(*records_[i]);
      out_ += "</p>\n";
    }
    out_ += "</div>\n";
  }

  void PutWhole(const std::vector<Proof>& by) {
    for (std::size_t i = 0; i < by.size(); ++i) {
      out_ += (i == 0 ? "<strong>" : "<br><strong>") + ProofName(by[i]) + "</strong>:";
      const char* between = " ";
      for (const ProofField& field : FieldsOf(world_, by[i])) {
        out_ += between + field.Name + " " + Safe(field.Value);
        between = "; ";
      }
    }
  }

  void PutNumbers(const std::vector<Proof>& by) {
    out_ += "<strong>" + std::string(by[0].Of->File) + ", " + std::to_string(by.size()) +
            " records</strong>:";
    const char* between = " ";
    for (const Proof& proof : by) {
      out_ += between + std::to_string(proof.Number);
      between = ", ";
    }
  }

  const World& world_;
  const WorldBook& book_;
  const BookForm& form_;
  std::string out_;
  std::map<std::string, int> places_;
  std::vector<const std::vector<Proof>*> records_;
};

}  // namespace

std::string HtmlOf(const World& world, const WorldBook& book, const BookForm& form) {
  return HtmlWriter(world, book, form).Write();
}

}  // namespace grapplemont
