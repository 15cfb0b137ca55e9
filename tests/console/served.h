#pragma once

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "console/console.h"
#include "support/samplescreen.h"

namespace grapplemont::test {

using Json = nlohmann::json;

/// A console over one SampleScreen, served with all the lines of a script. Whoever is called "Bram
/// Okafor" has a page.
class Served {
 public:
  explicit Served(const std::string& lines, console::Settings settings = {}) : in_(lines) {
    console::Console desk(in_, out_, settings);
    SampleScreen& screen = SampleScreen::On(desk, Log);
    Log.clear();
    desk.FindLinks = [this](std::string_view text) {
      constexpr std::string_view kBram = "Bram Okafor";
      std::vector<ui::Link> links;
      if (const auto at = text.find(kBram); at != std::string_view::npos)
        links.push_back({at, kBram.size(), [this] { Log.push_back("page of Bram"); }});
      return links;
    };
    desk.BeginSearch = [this]() -> ui::NameSearch {
      return [this](std::string_view typed, std::size_t) {
        std::vector<ui::Finding> found;
        if (typed == "bram")
          found = {{"Workers", "Bram Okafor", "Main Event, CWA", {}, Writes("found Bram")},
                   {"Titles", "Bram's Crown", "", {}, Writes("found the Crown")}};
        return found;
      };
    };
    desk.Run();
    Open = !desk.Empty();
    Name = Open ? screen.txtname.Text.Get() : std::string();
    Notes = Open ? screen.txtnotes.Text.Get() : std::string();
  }

  std::string Out() const { return out_.str(); }
  ui::Handler Writes(const char* words) {
    return [this, words] { Log.push_back(words); };
  }

  std::vector<std::string> Log;  // of the screen's handlers
  bool Open = false;             // whether the screen still lies there at the end
  std::string Name, Notes;

 private:
  std::istringstream in_;
  std::ostringstream out_;
};

/// The objects that the lines are answered with.
inline std::vector<Json> Answers(const Served& served) {
  std::vector<Json> answers;
  std::istringstream lines(served.Out());
  for (std::string line; std::getline(lines, line);) answers.push_back(Json::parse(line));
  return answers;
}

inline const console::Settings kJson{.Json = true};

/// The last answer to the lines.
inline Json LastAnswer(const std::string& lines) {
  const auto answers = Answers(Served(lines, kJson));
  return answers.empty() ? Json() : answers.back();
}

}  // namespace grapplemont::test
