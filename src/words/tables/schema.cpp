#include "words/tables/schema.h"

#include <utility>

namespace grapplemont {

namespace {

using enum WordColumn::Kind;

constexpr std::string_view kSame = "=Says";

/// Codes with a phrase for lists and one for the wizard's summary, in a namespace of their own.
WordTable Phrases(std::string_view heading, std::string_view space, std::string_view array) {
  return {heading,
          {{"Code", Number}, {"Rule", RuleName}, {"Says", Phrase}, {"Summary", Phrase, kSame}},
          {"Code"},
          false,
          space,
          "Code",
          "Code",
          {{"segments", "Phrase", array, {"Code", "Says", "Summary"}}}};
}

WordTable Purposes(std::string_view heading, std::string_view space, std::string_view array,
                   std::string_view aims, std::string_view style) {
  WordTable table = Phrases(heading, space, array);
  table.Columns.insert(
      table.Columns.begin() + 2,
      {{"Aim",
        Choice,
        "Aim::Nothing",
        "Aim::",
        {"GoodMatch", "PutsOver", "BothOver", "EyeCandy", "Debuts", "Turns", "EndsFeud", "GoesOn"}},
       {"Whom",
        Choice,
        "Part::Nobody",
        "Part::",
        {"Winner", "Loser", "Worker1", "Worker2", "Worker3", "Worker4", "FirstTeam", "SecondTeam",
         "Other1", "Other2", "Other3", "Other4", "Others12", "Others34"}}});
  table.Arrays.push_back({"purposes", "PurposeRow", aims, {style, "Code", "Aim", "Whom"}});
  return table;
}

/// Rows with a code and a rule name of their own, in one array.
WordTable Coded(std::string_view heading, std::vector<WordColumn> more, std::string_view rules,
                RowArray array) {
  WordTable table{heading, {{"Code", Number}, {"Rule", RuleName}, {"Says"}}, {"Code"}};
  table.Columns.insert(table.Columns.end(), more.begin(), more.end());
  table.Enum = rules;
  table.NumbersOf = "Code";
  table.Arrays = {std::move(array)};
  return table;
}

WordTable MatchTypes() {
  WordTable table =
      Coded("Match types",
            {{"Risk over", Number, "kAnyRisk"}, {"Size under", Number, "kAnySize"}, {"Means"}},
            "MatchTypeCode",
            {"segments",
             "MatchTypeRow",
             "kMatchTypes",
             {"Style", "Code", "Says", "Risk over", "Size under", "Means"}});
  table.Columns.insert(table.Columns.begin(), {"Style", Rule, "", "", {}, "Match styles"});
  table.Keys = {"Style", "Code"};
  return table;
}

WordTable Finishes() {
  return {
      .Heading = "Finishes of 1 vs 1 and 2 vs 2",
      .Columns = {{"Code", Number},
                  {"Rule", RuleName},
                  {"Says of 1 vs 1", Phrase, kLeavesOut},
                  {"Says of 2 vs 2", Phrase, kLeavesOut},
                  {"Summary", Phrase}},
      .Keys = {"Code"},
      .Enum = "Finish",
      .NumbersOf = "Code",
      .Arrays = {{"segments", "Phrase", "kSinglesFinishes", {"Code", "Says of 1 vs 1", "Summary"}},
                 {"segments", "Phrase", "kTagFinishes", {"Code", "Says of 2 vs 2", "Summary"}}}};
}

WordTable SideFinishes() {
  return {.Heading = "Finishes of 3 vs 3 and 4 vs 4",
          .Columns = {{"3 vs 3", Number, kLeavesOut},
                      {"4 vs 4", Number},
                      {"Rule", RuleName},
                      {"Says", Phrase},
                      {"Summary", Phrase, kSame}},
          .Keys = {"4 vs 4"},
          .NumbersOf = "4 vs 4",
          .Arrays = {{"segments", "Phrase", "kSixManFinishes", {"3 vs 3", "Says", "Summary"}},
                     {"segments", "Phrase", "kEightManFinishes", {"4 vs 4", "Says", "Summary"}}}};
}

TableFile Segments() {
  return {
      "segments.txt",
      {{"segments", {"records/segmentwords.h"}},
       {"purposes", {"records/segmentparts.h", "words/segments.h"}}},
      {Coded("Match styles", {{"Sides", Number}, {"Per side", Number}}, "MatchStyle",
             {"segments", "MatchStyleRow", "kMatchStyles", {"Code", "Says", "Sides", "Per side"}}),
       MatchTypes(), Finishes(), SideFinishes(),
       Phrases("Aftermaths of 1 vs 1", "after1", "kSinglesAftermaths"),
       Phrases("Aftermaths of 2 vs 2", "after2", "kTagAftermaths"),
       Purposes("Purposes of 1 vs 1", "purpose1", "kSinglesPurposes", "kSinglesAims", "\"kSingles"),
       Purposes("Purposes of 2 vs 2", "purpose2", "kTagPurposes", "kTagAims", "\"kTag"),
       Coded("Interview styles", {{"Speakers", Number}, {"Targets", Number}}, "InterviewStyle",
             {"segments",
              "InterviewStyleRow",
              "kInterviewStyles",
              {"Code", "Says", "Speakers", "Targets"}}),
       Coded("Interview purposes", {}, "InterviewPurpose",
             {"segments", "Term", "kInterviewPurposes", {"Code", "\"\"\"", "Says"}})},
      {}};
}

TableFile Angles() {
  return {
      "angles.txt",
      {{"angles", {"records/segmentwords.h"}}, {"anglerules", {"show/anglerules.h"}}},
      {{"Angles",
        {{"No", Number},
         {"Rule", RuleName},
         {"Says"},
         {"Sheet", Text, "", "", {}, "", " "},
         {"Risk over", Number, "kAnyRisk"},
         {"Size under", Number, "kAnySize"},
         {"Date", Text, "{}"},
         {"Summary", Text, "{}"},
         {"Talk", Places, "", "k", {"Leader", "Guest"}},
         {"Feud", Choice, "AngleFeud::None", "AngleFeud::", {"Pair", "Teams", "TeamsLift"}},
         {"Scores", Pairs, "{}", "k", {"Leader"}},
         {"Extra", Choice, "AngleExtra::None", "AngleExtra::", {"Video", "Divas", "Spectacle"}},
         {"Turns", Pairs, "{}", "k", {"Leader", "Nobody"}},
         {"Cast",
          Cast,
          "",
          "Casting::",
          {"Commissioner", "Managers", "DebutManagers", "Turners", "Women", "Men", "Debuts",
           "Stables", "SinglesTitles", "TagTitles"}},
         {"Text"}},
        {"Rule"},
        true,
        "",
        "AngleNumber",
        "No",
        {{"angles",
          "Angle",
          "kAllAngles",
          {"No", "Says", "Sheet", "Risk over", "Size under", "Date", "Cast", "Text", "Summary"}},
         {"anglerules",
          "AngleRules",
          "kAngleRules",
          {"Talk", "Feud", "Scores", "Extra", "Turns"}}}}},
      {}};
}

TableFile NewPromotions() {
  return {"promotions.txt",
          {{"promotions", {"rivals/newpromotionnames.h"}}},
          {{.Heading = "New promotions",
            .Columns = {{"Name"}, {"Initials"}},
            .Keys = {"Name"},
            .Arrays =
                {{"promotions", "NewPromotionName", "kNewPromotionNames", {"Name", "Initials"}}}}},
          {}};
}

/// The lists of finishing moves, all brawling ones before all technical ones, and speed last.
std::vector<NameArray::List> Moves() {
  return {{"Brawling moves, impact", "'B', FinisherType::Impact, "},
          {"Brawling moves, submission", "'B', FinisherType::Submission, "},
          {"Brawling moves, top rope", "'B', FinisherType::TopRope, "},
          {"Brawling moves, ground", "'B', FinisherType::Ground, "},
          {"Technical moves, impact", "'T', FinisherType::Impact, "},
          {"Technical moves, submission", "'T', FinisherType::Submission, "},
          {"Technical moves, top rope", "'T', FinisherType::TopRope, "},
          {"Technical moves, ground", "'T', FinisherType::Ground, "},
          {"Speed moves, impact", "'S', FinisherType::Impact, "},
          {"Speed moves, submission", "'S', FinisherType::Submission, "},
          {"Speed moves, top rope", "'S', FinisherType::TopRope, "},
          {"Speed moves, ground", "'S', FinisherType::Ground, "}};
}

/// Towns by country; of countries with few, the country stands with the town.
std::vector<NameArray::List> HomeTowns() {
  return {{"Home towns in the United States", "\"in the United States\", "},
          {"Home towns in Canada", "\"in Canada\", "},
          {"Home towns in Mexico", "\"in Mexico\", "},
          {"Home towns in Puerto Rico", "\"in Puerto Rico\", "},
          {"Home towns in Great Britain", "\"in Great Britain\", "},
          {"Home towns in Ireland", "\"in Ireland\", "},
          {"Home towns in Japan", "\"in Japan\", "},
          {"Home towns in Germany", "\"in Germany\", "},
          {"Home towns in other countries", "\"\", "}};
}

/// The lengths leave room for a first name, a blank and a surname in 25 letters, and for a surname
/// in the 10 of a short name. The numbers are rules: draws go by them.
TableFile Names() {
  constexpr std::string_view kName = "std::string_view";
  return {"names.txt",
          {{"names", {"roster/names.h"}}},
          {},
          {{kName, "Surnames", 300, 10, {{"Surnames"}}},
           {kName,
            "WorkerFirstNames",
            303,
            14,
            {{"First names of men in the ring", "", 251, "kLastMaleWorkerFirstName"},
             {"First names of women in the ring", "", 52}}},
           {kName,
            "StaffFirstNames",
            192,
            14,
            {{"First names of men on the staff", "", 161, "kLastMaleStaffFirstName"},
             {"First names of women on the staff", "", 31}}},
           {"FinisherMove", "FinisherMoves", 64, 25, Moves()},
           {"HomeTown", "HomeTowns", 166, 28, HomeTowns()}}};
}

/// What teams, stables and others at rivals are called: any epithet and any noun fit a name of 25
/// letters, and so does any surname of ten with any following.
TableFile Stories() {
  constexpr std::string_view kName = "std::string_view";
  return {"stories.txt",
          {{"stories", {}}},
          {},
          {{kName, "StoryEpithets", 60, 10, {{"Epithets"}}},
           {kName, "TeamNouns", 60, 10, {{"What a team is"}}},
           {kName, "StableNouns", 24, 10, {{"What a stable is"}}},
           {kName, "Followings", 16, 11, {{"What a leader has"}}},
           {kName, "TeamMoves", 40, 25, {{"Moves of two"}}},
           {kName, "Nicknames", 40, 14, {{"Nicknames"}}}}};
}

/// What a player is told about a screen and about a term, and the first week's steps.
TableFile Help() {
  return {"help.txt",
          {{"help", {"info/screens/helprows.h"}}},
          {{.Heading = "Screens",
            .Columns = {{"Screen"}, {"For"}, {"How"}},
            .Keys = {"Screen"},
            .Arrays = {{"help", "HelpRow", "kHelpRows", {"Screen", "For", "How"}}}}},
          {}};
}

TableFile Glossary() {
  return {"glossary.txt",
          {{"glossary", {"info/screens/helprows.h"}}},
          {{.Heading = "Terms",
            .Columns = {{"Term"},
                        {"Field", Text, "{}"},
                        {"Also", Text, "{}"},
                        {"Range", Text, "{}"},
                        {"Means", Text, "{}"},
                        {"Moves", Text, "{}"}},
            .Keys = {"Term"},
            .Arrays = {{"glossary",
                        "GlossaryRow",
                        "kGlossaryRows",
                        {"Term", "Field", "Also", "Range", "Means", "Moves"}}}}},
          {}};
}

TableFile Guide() {
  return {
      "guide.txt",
      {{"guide", {"calendar/guidesteps.h"}}},
      {{.Heading = "Steps",
        .Columns = {{"Tour", Choice, "", "Tour::", {"Backyard", "Television"}},
                    {"Screen", Text, "{}"},
                    {"Done", Choice, "GuideDone::Seen", "GuideDone::", {"Signed", "Feud", "Show"}},
                    {"Page"},
                    {"Title"},
                    {"Says"}},
        .Keys = {"Tour", "Title"},
        .Arrays = {{"guide",
                    "GuideStep",
                    "kGuideSteps",
                    {"Tour", "Screen", "Done", "Page", "Title", "Says"}}}}},
      {}};
}

TableFile Wishes() {
  return {
      "wishes.txt",
      {{"wishes", {"calendar/wishwords.h"}}},
      {{.Heading = "Wishes",
        .Columns = {{"Kind",
                     Choice,
                     "",
                     "kWish",
                     {"NewStars", "DefendWomens", "DefendTitle", "FewTalks", "Profit",
                      "YoungChampion", "BestShow", "GoodShows", "Standing", "Events", "Sponsors",
                      "Savings", "WomensMatches", "FeudMatches", "OnAir", "TamerProduct"}},
                    {"Says"}},
        .Keys = {"Kind"},
        .Arrays = {{"wishes", "WishWords", "kWishWords", {"Kind", "Says"}}}}},
      {}};
}

}  // namespace

const std::vector<TableFile>& AllTableFiles() {
  static const std::vector<TableFile> kFiles = {Segments(), Angles(), NewPromotions(),
                                                Names(),    Help(),   Glossary(),
                                                Guide(),    Wishes(), Stories()};
  return kFiles;
}

}  // namespace grapplemont
