#include <algorithm>
#include <span>

#include "chronicle/book.h"
#include "chronicle/screens/chroniclescreens.h"
#include "records/fields/charset.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "records/store/disk.h"
#include "report/report.h"
#include "session/screens/screenfiletowrite.h"
#include "storylines/lineages.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;
using Style = ui::Report::Style;

constexpr const char* kKindNames[kKindsOfChapter] = {"Workers", "Titles", "Feuds", "Promotions",
                                                     "Years"};

/// A chapter about anybody or anything, in one of the voices, with the way to what proves it.
class frmChronicle : public GameScreen {
 public:
  explicit frmChronicle(Game& game, Subject first = {About::Promotion, 0, {}})
      : GameScreen(game, "frmChronicle", "Chronicle"), first_(std::move(first)) {
    lstsubjects.EmptyText = "There is nothing to tell of yet.";
    lstproof.EmptyText = "Choose somebody or something to read about.";
    lstproof.OpenWith(cmdproof);
    txtchapter.OnLead = [this](int key) { ShowProof(key); };
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns(
            {ui::Group("", {ui::Field("About", cmbkind), ui::Field("Told by", cmbvoice),
                            ui::Grow(lstsubjects)})
                 .Grow(2),
             ui::Tabs({ui::Group("Chapter", {ui::Grow(txtchapter)}),
                       ui::Group("What proves it", {ui::Grow(lstproof), ui::Columns({cmdproof})})})
                 .Grow(5)}),
        &lblfacts, {&cmdbook, &cmdpdf});
  }

  void Load() override {
    if (!HasEnded(world().Game())) UpdateReigns(world());
    for (int kind = 0; kind < kKindsOfChapter; ++kind) cmbkind.Add(kKindNames[kind], kind + 1);
    for (int voice = kLamplighter; voice <= kQvd; ++voice)
      cmbvoice.Add(std::string(VoiceName(voice)), voice + 1);
    cmbvoice.SelectKey(std::clamp<int>(world().Game().Reporter, kLamplighter, kQvd) + 1);
    if (first_.Number == 0 && first_.Is == About::Promotion) first_.Number = world().PlayerUid();
    cmbkind.Select(static_cast<int>(first_.Is) + 1);
    ShowSubjects();
  }
  void Return() override {}

 private:
  About Kind() const { return static_cast<About>(std::max(cmbkind.Key() - 1, 0)); }
  int Voice() const { return cmbvoice.Key() - 1; }

  void ShowSubjects() {
    subjects_ = Archive(world()).Subjects(Kind());
    const bool isNamed = Kind() != About::Feud && Kind() != About::Year;
    const bool isOfHouse = Kind() == About::Worker || Kind() == About::Title;
    if (isNamed) std::ranges::stable_sort(subjects_, {}, &Subject::Name);
    std::vector<ui::Column> columns = {{"Name", K::Text, 3}};
    if (isOfHouse) columns.push_back({"Promotion", K::Text, 1});
    lstsubjects.SetColumns(std::move(columns));
    std::vector<ui::ListBox::Row> rows;
    int chosen = 1;
    for (const Subject& subject : subjects_) {
      const int number = static_cast<int>(rows.size()) + 1;
      rows.push_back({{subject.Name}, number});
      if (isOfHouse) rows.back().Cells.emplace_back(HouseOf(subject));
      const bool named = first_.Is != About::Title || subject.Name == first_.Name;
      if (subject.Is == first_.Is && subject.Number == first_.Number && named) chosen = number;
    }
    lstsubjects.Fill(std::move(rows), false);
    lstsubjects.Select(subjects_.empty() ? 0 : chosen);
    ShowChapter();
  }

  /// The initials of the promotion that a worker or a Title is with; nothing for none.
  std::string HouseOf(const Subject& subject) {
    const Worker* worker =
        subject.Is == About::Worker ? world().FindWorker(subject.Number) : nullptr;
    const int house = subject.Is == About::Title ? subject.Number
                      : worker                   ? int(worker->Employer)
                                                 : 0;
    return world().FindPromotion(house) ? PromotionInitials(world(), house) : std::string();
  }

  const Subject* Chosen() const {
    const auto at = static_cast<std::size_t>(lstsubjects.Key());
    return at >= 1 && at <= subjects_.size() ? &subjects_[at - 1] : nullptr;
  }

  void ShowChapter() {
    const Subject* subject = Chosen();
    if (subject) first_ = *subject;
    const Chapter chapter = subject ? WriteChapter(Archive(world()), *subject, Voice()) : Chapter();
    told_.clear();
    std::vector<ui::Report::Paragraph> paragraphs;
    if (subject) paragraphs.push_back({Style::Heading, chapter.Heading});
    for (const auto& paragraph : chapter.Paragraphs) paragraphs.push_back(WithLeads(paragraph));
    if (subject && told_.empty())
      paragraphs.push_back({Style::Muted, "No record says anything yet."});
    txtchapter.Write(std::move(paragraphs));
    ShowList();
  }

  /// A paragraph whose sentences lead to what proves them.
  ui::Report::Paragraph WithLeads(const std::vector<ToldSentence>& sentences) {
    ui::Report::Paragraph paragraph{Style::Body, ""};
    for (const ToldSentence& sentence : sentences) {
      if (!paragraph.Words.empty()) paragraph.Words += ' ';
      told_.push_back(sentence);
      paragraph.Leads.push_back(
          {paragraph.Words.size(), sentence.Words.size(), static_cast<int>(told_.size())});
      paragraph.Words += sentence.Words;
    }
    return paragraph;
  }

  void ShowList() {
    std::vector<ui::ListBox::Row> rows;
    std::size_t records = 0;
    for (const ToldSentence& sentence : told_) {
      records += sentence.By.size();
      const std::string first = sentence.By.empty() ? "" : ProofName(sentence.By[0]);
      const std::string more =
          sentence.By.size() > 1 ? " and " + std::to_string(sentence.By.size() - 1) + " more" : "";
      rows.push_back({{sentence.Words, first + more}, static_cast<int>(rows.size()) + 1});
    }
    lstproof.Fill(std::move(rows), false);
    lstproof.Select(told_.empty() ? 0 : 1);
    lblfacts.Text = Counted(static_cast<long long>(told_.size()), "statement") + ", proved by " +
                    Counted(static_cast<long long>(records), "record") + ".";
    EnableUnless(cmdproof, told_.empty() ? "No record says anything yet." : "");
    EnableUnless(cmdpdf, game_.WritePdf ? "" : "Only the window can write it.");
  }

  /// A worker or promotion has a page that says more than its record.
  void ShowProof(int key) {
    if (key < 1 || key > static_cast<int>(told_.size())) return;
    const ToldSentence& sentence = told_[static_cast<std::size_t>(key - 1)];
    if (sentence.By.size() == 1) {
      const Proof& proof = sentence.By[0];
      if (proof.Of == &LayoutOf<Worker>() && game_.OpenWorker)
        return game_.OpenWorker(world().Workers()[proof.Number].Uid);
      if (proof.Of == &LayoutOf<Promotion>() && game_.OpenPromotion)
        return game_.OpenPromotion(world().Promotions()[proof.Number].Uid);
    }
    desk().Open(ProofScreen(game_, sentence.Words, sentence.By));
  }

  std::string FileFor(const char* ending) {
    return FileToWrite(game_, "The book", "chronicle." + std::string(ending));
  }

  void cmdbook_Click() {
    const std::string file = FileFor("html");
    if (file.empty()) return;
    const std::string html = HtmlOf(world(), WriteBook(Archive(world()), Voice()), {SvgOf});
    WriteFile(game_.Disk(), file, std::as_bytes(std::span(html)));
    lblfacts.Text = "Wrote the whole chronicle to " + ForScreen(file) + ".";
  }

  void cmdpdf_Click() {
    const std::string file = FileFor("pdf");
    if (file.empty() || desk().Objects(game_.WritePdf(file, Voice()))) return;
    lblfacts.Text = "Wrote the whole chronicle to " + ForScreen(file) + ".";
  }

  Subject first_;
  std::vector<Subject> subjects_;
  std::vector<ToldSentence> told_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ComboBox cmbkind{*this, "cmbkind", &frmChronicle::ShowSubjects};
  ui::ComboBox cmbvoice{*this, "cmbvoice", &frmChronicle::ShowChapter};
  ui::ListBox lstsubjects{*this, "lstsubjects", {{"Name", K::Text, 1}}, &frmChronicle::ShowChapter};
  ui::Report txtchapter{*this, "txtchapter"};
  ui::ListBox lstproof{*this, "lstproof", {{"Statement", K::Text, 6}, {"Record", K::Text, 3}}};
  ui::Button cmdproof{*this, "cmdproof", "Show The Record", [this] { ShowProof(lstproof.Key()); }};
  ui::Button cmdbook{*this, "cmdbook", "Write The Book", &frmChronicle::cmdbook_Click};
  ui::Button cmdpdf{*this, "cmdpdf", "Book As PDF", &frmChronicle::cmdpdf_Click};
};

}  // namespace

SCREEN(frmChronicle)

std::unique_ptr<ui::Screen> ChronicleScreen(Game& game, const Subject& subject) {
  return std::make_unique<frmChronicle>(game, subject);
}

void ConnectChronicle(Game& game) {
  game.OpenChapter = [&game](std::string_view kind, int number, std::string_view name) {
    const auto found = std::ranges::find(kKindNames, kind);
    if (found == std::end(kKindNames)) return;
    const auto is = static_cast<About>(found - std::begin(kKindNames));
    game.Desk().Open(ChronicleScreen(game, {is, number, std::string(name)}));
  };
}

}  // namespace grapplemont
