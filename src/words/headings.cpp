#include "words/headings.h"

#include <algorithm>
#include <limits>
#include <sstream>

#include "info/infowords.h"
#include "info/meetingpoints.h"
#include "records/fields/enumnames.h"
#include "report/family.h"

namespace grapplemont {

namespace {

constexpr int kAnyNumber = std::numeric_limits<int>::max();

/// "Finishes" of "finishes".
std::string FunctionOf(std::string_view file) {
  std::string name(file);
  name[0] = static_cast<char>(name[0] - 'a' + 'A');
  return name;
}

WordsFile& FileOf(std::vector<WordsFile>& files, const VoiceRow& voice, std::string_view name) {
  const std::string path = std::string(voice.Folder) + "/" + std::string(name) + ".txt";
  const auto found = std::find_if(files.begin(), files.end(),
                                  [&](const WordsFile& file) { return file.Path == path; });
  if (found != files.end()) return *found;
  files.push_back({path, std::string(voice.Module), FunctionOf(name), {}});
  return files.back();
}

void AddFamily(WordsFile& file, const FamilyRow& row) {
  for (int band = row.Bands.First; band <= row.Bands.Last; ++band) {
    if (!row.Has(band)) continue;
    Heading heading{HeadingOf(row.Of, band), static_cast<int>(row.Of), band, row.Lines,
                    row.Exact ? row.Lines : kAnyNumber};
    heading.IsReport = true;
    heading.Parts = row.Parts;
    heading.Must = row.Must;
    heading.IsRated = band < 32 && (row.Rated >> band & 1U) != 0;
    file.Headings.push_back(std::move(heading));
  }
}

void AddVoices(std::vector<WordsFile>& files) {
  int number = 0;
  for (const VoiceRow& voice : kVoiceRows) {
    for (const FamilyRow& row : AllFamilies())
      if (row.Only == kEveryVoice || row.Only == number)
        AddFamily(FileOf(files, voice, row.File), row);
    ++number;
  }
}

Heading Named(std::string_view name, int number, std::string_view slots, int least,
              int most = kAnyNumber) {
  Heading heading{std::string(name), number, 0, least, most};
  std::istringstream words{std::string(slots)};
  for (std::string slot; words >> slot;) heading.Slots.push_back(slot);
  return heading;
}

/// A heading for each row, called by its name in the enumeration.
template <auto First, auto Last>
void AddRows(WordsFile& file, const auto& rows, int least, int most = kAnyNumber) {
  for (const auto& row : rows) {
    const int number = static_cast<int>(row.Is);
    file.Headings.push_back(Named(EnumNameIn<First, Last>(number), number, row.Slots, least, most));
  }
}

WordsFile News() {
  constexpr int kLeast = 3;
  constexpr std::size_t kDeed = std::string_view("Deed").size();
  WordsFile file{"news.txt", "words", "News", {}};
  for (const DeedRow& row : kDeedRows)
    file.Headings.push_back(Named(EnumNameIn<kDeedSigned, kDeedRenamed>(row.Kind).substr(kDeed),
                                  row.Kind, row.Slots, kLeast));
  AddRows<kTitleFound, kTitleWon>(file, kTitleNewsRows, kLeast);
  return file;
}

}  // namespace

std::vector<WordsFile> AllWordsFiles() {
  constexpr int kFanLines = 8;
  WordsFile meeting{"meeting.txt", "words", "Meeting", {}};
  AddRows<Point::RosterSmall, Point::EventNear>(meeting, PointRows(), kWaysToSay, kWaysToSay + 1);
  WordsFile rumours{"rumours.txt", "words", "Rumours", {}};
  AddRows<Whisper::ContractEnds, Whisper::Slipping>(rumours, kWhisperRows, kMostOfAKind);
  WordsFile fans{"fans.txt", "words", "Fans", {}};
  AddRows<FanMood::Superb, FanMood::Handles>(fans, kFanRows, kFanLines);
  std::vector<WordsFile> files;
  AddVoices(files);
  for (const WordsFile& file : {meeting, News(), rumours, fans}) files.push_back(file);
  return files;
}

}  // namespace grapplemont
