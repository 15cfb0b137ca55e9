#include "words/headings.h"

#include <algorithm>
#include <limits>

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

}  // namespace

std::vector<WordsFile> AllWordsFiles() {
  std::vector<WordsFile> files;
  AddVoices(files);
  return files;
}

}  // namespace grapplemont
