#include "futures/futurescsv.h"

#include <cmath>

#include "futures/spread.h"
#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/tables/tablereader.h"

namespace grapplemont {

namespace {

std::string Figure(double value) {
  return std::isfinite(value) ? std::to_string(std::llround(value)) : std::string();
}

/// Lines of one table; what a line has no use for stays empty.
class Sheet {
 public:
  Sheet() {
    lines_ = CsvLine({"About", "Of", "Answer", "Date", "What", "Low", "Quarter", "Middle",
                      "ThreeQuarters", "High", "Worlds", "OfWorlds"});
  }
  void Add(std::string_view about, std::string_view answer, Day on, const Spread& spread, int of) {
    Line({std::string(about), "", std::string(answer), IsoDate(on), "", Figure(spread.Low),
          Figure(spread.LowQuarter), Figure(spread.Middle), Figure(spread.HighQuarter),
          Figure(spread.High), std::to_string(spread.Worlds), std::to_string(of)});
  }
  void Add(std::string_view about, std::string_view of, std::string_view answer,
           const std::vector<Chance>& chances) {
    for (const Chance& chance : chances)
      if (chance.Worlds > 0)
        Line({std::string(about), std::string(of), std::string(answer), "", chance.What, "", "", "",
              "", "", std::to_string(chance.Worlds), std::to_string(chance.Of)});
  }
  const std::string& Lines() const { return lines_; }

 private:
  void Line(std::vector<std::string> cells) {
    for (std::string& cell : cells) cell = ToUtf8(cell);
    lines_ += CsvLine(cells);
  }
  std::string lines_;
};

}  // namespace

std::string FuturesAsCsv(const FirstMorning& morning, const std::vector<Day>& days,
                         const std::vector<std::vector<WorldLife>>& lives,
                         const std::vector<std::string>& answers) {
  Sheet sheet;
  const std::vector<std::vector<Chance>> sizes = SizesAtLast(lives);
  for (std::size_t answer = 0; answer < lives.size(); ++answer) {
    const std::string& words = answers[answer];
    const int of = static_cast<int>(lives[answer].size());
    for (const auto& [measure, name] : kMeasures) {
      const std::vector<Spread> spreads = SpreadsOf(lives[answer], measure, morning);
      for (std::size_t day = 0; day < spreads.size(); ++day)
        sheet.Add(name, words, days[day], spreads[day], of);
    }
    sheet.Add("Size class", "", words, sizes[answer]);
    sheet.Add("Chance", "", words, ChancesOf(lives[answer], morning));
    for (std::size_t title = 0; title < morning.Titles.size(); ++title)
      sheet.Add("Champion", morning.Titles[title].Name, words, ChampionsOf(lives[answer], title));
    for (const FirstPromotion& promotion : morning.Promotions)
      sheet.Add("Promotion", promotion.Name, words, SizesOf(lives[answer], promotion.Uid));
  }
  return sheet.Lines();
}

}  // namespace grapplemont
