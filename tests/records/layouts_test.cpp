#include <gtest/gtest.h>

#include <cstring>
#include <set>

#include "records/fields/fields.h"
#include "records/store/table.h"
#include "support/smallworld.h"

// One record of every file, byte by byte as the formats have it, read and written through the
// program.

namespace grapplemont {
namespace {

/// The bytes of one field and what it is to read as.
struct Piece {
  const char* Bytes;  // "ff 7f", or a text and the width it is padded to: "'Bram':25"
  const char* Field;
  const char* Reads;
};

std::string BytesOf(const char* piece) {
  std::string bytes;
  if (piece[0] == '\'') {
    const char* close = std::strrchr(piece, '\'');
    bytes.assign(piece + 1, close);
    bytes.resize(std::stoul(close + 2), ' ');
    return bytes;
  }
  for (const char* at = piece; *at; at += at[2] == ' ' ? 3 : 2)
    bytes += static_cast<char>(std::stoi(std::string(at, 2), nullptr, 16));
  return bytes;
}

std::string ImageOf(std::span<const Piece> pieces) {
  std::string image;
  for (const Piece& piece : pieces) image += BytesOf(piece.Bytes);
  return image;
}

std::string Reading(const Field& field, const std::byte* record, int index) {
  if (field.Kind == FieldKind::Text) return std::string(FieldText(field, record, index));
  if (field.Kind != FieldKind::Date) return std::to_string(FieldNumber(field, record, index));
  Date date;
  date.SetRaw(FieldDate(field, record, index));
  return IsoDate(date);
}

/// Calls `visit` with each field and place of the layout, in their order.
template <class Visit>
void ForEachField(const RecordLayout& layout, Visit visit) {
  for (const Field& field : layout.Fields)
    for (int index = 0; index < field.Count; ++index) visit(field, index);
}

const Piece* Find(std::span<const Piece> pieces, const std::string& name) {
  for (const Piece& piece : pieces)
    if (piece.Field == name) return &piece;
  return nullptr;
}

template <class T>
void ExpectReads(std::span<const Piece> pieces) {
  const RecordLayout& layout = LayoutOf<T>();
  const std::string image = ImageOf(pieces);
  ASSERT_EQ(static_cast<std::size_t>(layout.Size), image.size());
  Records<T> file;
  // The second of two, where the file may hold two.
  const std::string twice = layout.Limit > 1 ? image + image : image;
  file.Load(std::as_bytes(std::span(twice)));
  const auto* second = reinterpret_cast<const std::byte*>(&file[layout.Limit > 1 ? 2 : 1]);
  std::size_t fields = 0;
  ForEachField(layout, [&](const Field& field, int index) {
    const std::string name = FieldName(field, index);
    const Piece* piece = Find(pieces, name);
    ASSERT_TRUE(piece) << layout.Name << " has a field " << name << " that nobody knows";
    EXPECT_EQ(piece->Reads, Reading(field, second, index)) << layout.Name << " " << name;
    ++fields;
  });
  EXPECT_EQ(pieces.size(), fields) << layout.Name << " lacks a field";
}

/// Stores what each field reads into an empty record and expects the image.
template <class T>
void ExpectWrites(std::span<const Piece> pieces) {
  const RecordLayout& layout = LayoutOf<T>();
  const std::string image = ImageOf(pieces);
  ASSERT_EQ(sizeof(T), image.size());
  std::string written(image.size(), '\x2A');
  auto* record = reinterpret_cast<std::byte*>(written.data());
  ForEachField(layout, [&](const Field& field, int index) {
    const char* reads = Find(pieces, FieldName(field, index))->Reads;
    if (field.Kind == FieldKind::Text)
      SetFieldText(field, record, index, reads);
    else if (field.Kind == FieldKind::Date)
      SetFieldDate(field, record, index, Date(*ParseIsoDate(reads)).Raw());
    else
      SetFieldNumber(field, record, index, std::stoll(reads));
  });
  EXPECT_EQ(image, written) << layout.Name;
}

template <class T>
void ExpectLayout(std::span<const Piece> pieces) {
  ExpectReads<T>(pieces);
  ExpectWrites<T>(pieces);
}

TEST(Layouts, Worker) {
  const Piece pieces[] = {
      {"0c 01", "Uid", "268"},
      {"'Bartholomew Featherstones':25", "Name", "Bartholomew Featherstones"},
      {"'Featherst.':10", "ShortName", "Featherst."},
      {"ff ff", "Gender", "-1"},
      {"0b 00", "BirthMonth", "11"},
      {"1f 00", "Age", "31"},
      {"'L':1", "Weight", "L"},
      {"03 02", "Employer", "515"},
      {"'Wri':3", "ContractType", "Wri"},
      {"ff ff", "ContractMonths", "-1"},
      {"ff ff", "CreativeControl", "-1"},
      {"2c 01 00 00", "Wage", "300"},
      {"53 00", "Position", "83"},
      {"'Inj':3", "Status", "Inj"},
      {"04 00", "StatusMonths", "4"},
      {"'Broken Leg':15", "InjuryName", "Broken Leg"},
      {"15 00", "Brawl", "21"},
      {"16 00", "Technical", "22"},
      {"17 00", "Speed", "23"},
      {"18 00", "Stiff", "24"},
      {"19 00", "Sell", "25"},
      {"1a 00", "Over", "26"},
      {"1b 00", "Charisma", "27"},
      {"ff ff", "HighSpots", "-1"},
      {"1c 00", "Attitude", "28"},
      {"01 00", "Speaks", "1"},
      {"'H':1", "Disposition", "H"},
      {"'Quill Driver':25", "Finisher1", "Quill Driver"},
      {"ff ff", "Finisher1Submission", "-1"},
      {"00 00", "Finisher1TopRope", "0"},
      {"02 00", "Finisher1Ground", "2"},
      {"'Inkwell Lock':25", "Finisher2", "Inkwell Lock"},
      {"00 00", "Finisher2Submission", "0"},
      {"03 00", "Finisher2TopRope", "3"},
      {"ff ff", "Finisher2Ground", "-1"},
      {"'The Scriveners':25", "Stable", "The Scriveners"},
      {"0e 01", "Manager", "270"},
      {"'North':10", "Split", "North"},
      {"1d 00", "Condition", "29"},
      {"1e 00", "Morale", "30"},
      {"20 00", "Behaviour", "32"},
      {"21 00", "Loyalty", "33"},
      {"ff ff", "Unsackable", "-1"},
      {"04 00", "TurnPending", "4"},
      {"00 00 00 00 40 80 e6 40", "LastTurn", "2026-03-01"},
      {"05 00", "Trainer", "5"},
      {"06 00", "SuperstarLook", "6"},
      {"07 00", "Announcer", "7"},
      {"08 00", "Booker", "8"},
      {"63 00", "Potential", "99"},
      {"50 00", "OverFloor", "80"},
      {"09 00", "Debuted", "9"},
      {"0a 00", "RetiringSoon", "10"},
      {"00 80", "Diva", "-32768"},
  };
  ExpectLayout<Worker>(pieces);
}

TEST(Layouts, Promotion) {
  const Piece pieces[] = {
      {"07 00", "Uid", "7"},
      {"ff ff", "Active", "-1"},
      {"'Crown and Anvil Wrestling':40", "Name", "Crown and Anvil Wrestling"},
      {"'CWA:EC':6", "Initials", "CWA:EC"},
      {"03 00", "Size", "3"},
      {"80 3d cd ff", "Money", "-3326592"},
      {"1e 00", "TicketPrice", "30"},
      {"40 00", "Image", "64"},
      {"fe ff", "Momentum", "-2"},
      {"0d 01", "Commissioner", "269"},
      {"28 00", "Production", "40"},
      {"46 00", "Risk", "70"},
      {"04 00", "Advertising", "4"},
      {"3c 00", "Merchandising", "60"},
      {"'Wednesday':9", "MeetingDay", "Wednesday"},
      {"6c 01", "Rank1", "364"},
      {"6d 01", "Rank2", "365"},
      {"6e 01", "Rank3", "366"},
      {"6f 01", "Rank4", "367"},
      {"ff ff", "Rank5", "-1"},
      {"01 00 00 00", "Money1", "1"},
      {"00 01 00 00", "Money2", "256"},
      {"00 00 01 00", "Money3", "65536"},
      {"00 00 00 01", "Money4", "16777216"},
      {"ff ff ff ff", "Money5", "-1"},
      {"a0 86 01 00", "LoanAmount", "100000"},
      {"0c 00", "LoanMonths", "12"},
      {"50 c3 00 00", "LoanRepaid", "50000"},
      {"02 00", "LoanMissed", "2"},
      {"e9 03 00 00", "TicketIncome", "1001"},
      {"ea 03 00 00", "MerchIncome", "1002"},
      {"eb 03 00 00", "PpvIncome", "1003"},
      {"ec 03 00 00", "SponsorIncome", "1004"},
      {"ed 03 00 00", "WrestlerWages", "1005"},
      {"ee 03 00 00", "StaffWages", "1006"},
      {"ef 03 00 00", "ProductionCost", "1007"},
      {"f0 03 00 00", "AdvertisingCost", "1008"},
      {"f1 03 00 00", "MerchCost", "1009"},
      {"d1 07 00 00", "LastTicketIncome", "2001"},
      {"d2 07 00 00", "LastMerchIncome", "2002"},
      {"d3 07 00 00", "LastPpvIncome", "2003"},
      {"d4 07 00 00", "LastSponsorIncome", "2004"},
      {"d5 07 00 00", "LastWrestlerWages", "2005"},
      {"d6 07 00 00", "LastStaffWages", "2006"},
      {"d7 07 00 00", "LastProductionCost", "2007"},
      {"d8 07 00 00", "LastAdvertisingCost", "2008"},
      {"d9 07 00 00", "LastMerchCost", "2009"},
      {"'North':10", "Split1", "North"},
      {"'South West':10", "Split2", "South West"},
      {"'None':10", "Split3", "None"},
      {"'East':10", "Split4", "East"},
      {"0b 00", "Sponsor1", "11"},
      {"0c 00", "Sponsor2", "12"},
      {"0d 00", "Sponsor3", "13"},
      {"0e 00", "Sponsor4", "14"},
      {"'The Forge':25", "CampName", "The Forge"},
      {"04 00", "CampFacilities", "4"},
      {"21 00", "HeadTrainer", "33"},
      {"'Anvil Valley Wrestling':35", "DevName", "Anvil Valley Wrestling"},
      {"22 00", "DevBooker", "34"},
  };
  ExpectLayout<Promotion>(pieces);
}

TEST(Layouts, Staff) {
  const Piece pieces[] = {
      {"21 00", "Uid", "33"},
      {"'Nell Haddock':25", "Name", "Nell Haddock"},
      {"00 00", "Gender", "0"},
      {"05 00", "BirthMonth", "5"},
      {"2d 00", "Age", "45"},
      {"07 00", "Employer", "7"},
      {"18 00", "ContractMonths", "24"},
      {"'Non':3", "ContractType", "Non"},
      {"06 00 00 00", "Wage", "6"},
      {"01 00", "Position", "1"},
      {"47 00", "Talent", "71"},
      {"48 00", "Morale", "72"},
      {"49 00", "Backstage", "73"},
      {"4a 00", "Loyalty", "74"},
      {"ff ff", "Unsackable", "-1"},
      {"00 00", "Booker", "0"},
  };
  ExpectLayout<Staff>(pieces);
}

TEST(Layouts, TeamAndStable) {
  const Piece team[] = {
      {"'Pen and Sword':25", "Name", "Pen and Sword"},
      {"0c 01", "Worker1", "268"},
      {"0d 01", "Worker2", "269"},
      {"'Full Stop':25", "Finisher", "Full Stop"},
      {"42 00", "Experience", "66"},
  };
  ExpectLayout<Team>(team);
  const Piece stable[] = {{"'The Scriveners':25", "Name", "The Scriveners"},
                          {"ff ff", "Owner", "-1"}};
  ExpectLayout<Stable>(stable);
}

TEST(Layouts, Title) {
  const Piece pieces[] = {
      {"'CWA Heavyweight':20", "Name", "CWA Heavyweight"},
      {"ff ff", "Singles", "-1"},
      {"07 00", "Owner", "7"},
      {"0c 01", "Holder", "268"},
      {"0d 01", "Partner", "269"},
      {"00 00", "Lightweight", "0"},
      {"ff ff", "Woman", "-1"},
      {"58 00", "Image", "88"},
      {"00 00", "Suspended", "0"},
      {"00 00 00 00 40 80 e6 40", "Won1", "2026-03-01"},
      {"'Bram \\ Ilya':25", "Holder1", "Bram \\ Ilya"},
      {"00 00 00 00 40 89 dc 40", "Lost1", "1980-01-01"},
      {"00 00 00 00 20 80 e6 40", "Won2", "2026-02-28"},
      {"'Vacant':25", "Holder2", "Vacant"},
      {"00 00 00 00 40 80 e6 40", "Lost2", "2026-03-01"},
      {"00 00 00 00 00 80 e6 40", "Won3", "2026-02-27"},
      {"'Three':25", "Holder3", "Three"},
      {"00 00 00 00 20 80 e6 40", "Lost3", "2026-02-28"},
      {"00 00 00 00 e0 7f e6 40", "Won4", "2026-02-26"},
      {"'Four':25", "Holder4", "Four"},
      {"00 00 00 00 00 80 e6 40", "Lost4", "2026-02-27"},
      {"00 00 00 00 40 89 dc 40", "Won5", "1980-01-01"},
      {"'None':25", "Holder5", "None"},
      {"00 00 00 00 00 00 00 00", "Lost5", "1899-12-30"},
  };
  ExpectLayout<Title>(pieces);
}

TEST(Layouts, Show) {
  const Piece pieces[] = {
      {"'Wednesday Warfare!!!':20", "Name", "Wednesday Warfare!!!"},
      {"07 00", "Owner", "7"},
      {"'Wednesday':9", "Day", "Wednesday"},
      {"'G':1", "Slot", "G"},
      {"02 00", "Network", "2"},
      {"18 00", "ContractWeeks", "24"},
      {"21 00", "Announcer", "33"},
      {"0c 01", "Colour", "268"},
      {"ff ff", "ColourIsWorker", "-1"},
      {"c2 01", "Rating1", "450"},
      {"96 00", "Rating2", "150"},
      {"2c 01", "Rating3", "300"},
      {"02 00", "Rating4", "2"},
  };
  ExpectLayout<Show>(pieces);
}

TEST(Layouts, Network) {
  const Piece pieces[] = {
      {"02 00", "Uid", "2"},
      {"'Continental Five':20", "Name", "Continental Five"},
      {"a8 02", "EarlyAudience", "680"},
      {"20 03", "PrimeAudience", "800"},
      {"80 02", "LateAudience", "640"},
      {"08 02", "GraveAudience", "520"},
      {"1e 00", "EarlyRisk", "30"},
      {"28 00", "PrimeRisk", "40"},
      {"32 00", "LateRisk", "50"},
      {"41 00", "GraveRisk", "65"},
      {"3c 00", "Production", "60"},
      {"ff ff", "Generic", "-1"},
  };
  ExpectLayout<Network>(pieces);
}

TEST(Layouts, SponsorAndEvent) {
  const Piece sponsor[] = {
      {"0b 00", "Uid", "11"},
      {"'Colossal Cola':20", "Name", "Colossal Cola"},
      {"'Bigger than your thirst. By a long way!!':40", "Slogan",
       "Bigger than your thirst. By a long way!!"},
      {"07 00", "Promotion", "7"},
      {"09 00", "ContractMonths", "9"},
      {"37 00", "Morality", "55"},
      {"c0 03 00 00", "Pay", "960"},
  };
  ExpectLayout<Sponsor>(sponsor);
  const Piece event[] = {{"'Hammer Time':20", "Name", "Hammer Time"},
                         {"07 00", "Owner", "7"},
                         {"0c 00", "Month", "12"},
                         {"04 00", "Type", "4"}};
  ExpectLayout<Event>(event);
}

TEST(Layouts, GameInfo) {
  const Piece pieces[] = {
      {"'Sam Archer':25", "PlayerName", "Sam Archer"},
      {"50 00", "Reputation", "80"},
      {"00 00 00 00 40 80 e6 40", "StartDate", "2026-03-01"},
      {"01 00", "Shortlist1", "1"},
      {"02 00", "Shortlist2", "2"},
      {"03 00", "Shortlist3", "3"},
      {"04 00", "Shortlist4", "4"},
      {"05 00", "Shortlist5", "5"},
      {"06 00", "Shortlist6", "6"},
      {"07 00", "Shortlist7", "7"},
      {"08 00", "Shortlist8", "8"},
      {"09 00", "Shortlist9", "9"},
      {"0a 00", "Shortlist10", "10"},
      {"0b 00", "Shortlist11", "11"},
      {"0c 00", "Shortlist12", "12"},
      {"0d 00", "Shortlist13", "13"},
      {"0e 00", "Shortlist14", "14"},
      {"0f 00", "Shortlist15", "15"},
      {"'Crown and Anvil Wrestling':40", "Job1Promotion", "Crown and Anvil Wrestling"},
      {"00 00 00 00 40 80 e6 40", "Job1Started", "2026-03-01"},
      {"11 00", "Job1StartImage", "17"},
      {"01 00", "Job1StartSize", "1"},
      {"12 00", "Job1EndImage", "18"},
      {"02 00", "Job1EndSize", "2"},
      {"'Second':40", "Job2Promotion", "Second"},
      {"00 00 00 00 20 80 e6 40", "Job2Started", "2026-02-28"},
      {"15 00", "Job2StartImage", "21"},
      {"03 00", "Job2StartSize", "3"},
      {"16 00", "Job2EndImage", "22"},
      {"04 00", "Job2EndSize", "4"},
      {"'Third':40", "Job3Promotion", "Third"},
      {"00 00 00 00 00 80 e6 40", "Job3Started", "2026-02-27"},
      {"1f 00", "Job3StartImage", "31"},
      {"05 00", "Job3StartSize", "5"},
      {"20 00", "Job3EndImage", "32"},
      {"06 00", "Job3EndSize", "6"},
      {"'None':40", "Job4Promotion", "None"},
      {"00 00 00 00 00 00 00 00", "Job4Started", "1899-12-30"},
      {"29 00", "Job4StartImage", "41"},
      {"07 00", "Job4StartSize", "7"},
      {"2a 00", "Job4EndImage", "42"},
      {"08 00", "Job4EndSize", "8"},
      {"'Fifth':40", "Job5Promotion", "Fifth"},
      {"00 00 00 00 00 00 f0 3f", "Job5Started", "1899-12-31"},
      {"33 00", "Job5StartImage", "51"},
      {"09 00", "Job5StartSize", "9"},
      {"34 00", "Job5EndImage", "52"},
      {"0a 00", "Job5EndSize", "10"},
      {"'Save Game 1':30", "SaveName", "Save Game 1"},
      {"04 00", "LoadingSet", "4"},
      {"02 00", "TapeWait", "2"},
      {"03 00", "TvOfferWait", "3"},
      {"07 00", "PlayerPromotion", "7"},
      {"02 00", "Difficulty", "2"},
      {"00 00 00 00 20 87 e6 40", "Today", "2026-04-25"},
      {"c9 00", "MailOwners", "201"},
      {"ca 00", "MailWorkerHire", "202"},
      {"cb 00", "MailWorkerFire", "203"},
      {"cc 00", "MailStaffHire", "204"},
      {"cd 00", "MailStaffFire", "205"},
      {"ce 00", "MailTv", "206"},
      {"cf 00", "MailRetirement", "207"},
      {"d0 00", "MailOtherFed", "208"},
      {"d1 00", "MailSponsor", "209"},
      {"64 00", "EndCode", "100"},
      {"d2 00", "MailShows", "210"},
      {"d3 00", "MailTvShow", "211"},
      {"d4 00", "MailStaffRetire", "212"},
      {"d5 00", "MailDev", "213"},
      {"d6 00", "MailTrain", "214"},
      {"d7 00", "Reporter", "215"},
      {"f9 ff", "Economy", "-7"},
      {"ff ff", "EconomyRising", "-1"},
      {"'Version 2.0':11", "Version", "Version 2.0"},
  };
  ExpectLayout<GameInfo>(pieces);
}

TEST(Layouts, Feud) {
  const Piece pieces[] = {
      {"00 00", "Singles", "0"},
      {"0c 01", "Worker1", "268"},
      {"0d 01", "Worker2", "269"},
      {"0e 01", "Worker3", "270"},
      {"0f 01", "Worker4", "271"},
      {"01 00", "Clean1", "1"},
      {"02 00", "Dirty1", "2"},
      {"03 00", "Interference1", "3"},
      {"04 00", "Sneak1", "4"},
      {"05 00", "Clean2", "5"},
      {"06 00", "Dirty2", "6"},
      {"07 00", "Interference2", "7"},
      {"08 00", "Sneak2", "8"},
      {"5a 00", "Heat", "90"},
      {"00 00 00 00 40 80 e6 40", "Started", "2026-03-01"},
  };
  ExpectLayout<Feud>(pieces);
}

TEST(Layouts, Segment) {
  const Piece pieces[] = {
      {"4d 00", "Rating", "77"},
      {"01 00", "Kind", "1"},
      {"09 00", "Style", "9"},
      {"02 00", "MatchType", "2"},
      {"03 00", "Purpose", "3"},
      {"0c 01", "Winner", "268"},
      {"0d 01", "Loser", "269"},
      {"0e 01", "Place3", "270"},
      {"0f 01", "Place4", "271"},
      {"10 01", "Place5", "272"},
      {"11 01", "Place6", "273"},
      {"12 01", "Place7", "274"},
      {"13 01", "Place8", "275"},
      {"04 00", "Finish", "4"},
      {"'CWA Heavyweight':20", "TitleName", "CWA Heavyweight"},
      {"14 01", "Other1", "276"},
      {"15 01", "Other2", "277"},
      {"16 01", "Other3", "278"},
      {"17 01", "Other4", "279"},
      {"1a 00", "Aftermath", "26"},
      {"01 02", "Worker1", "513"},
      {"02 02", "Worker2", "514"},
      {"03 02", "Worker3", "515"},
      {"04 02", "Worker4", "516"},
      {"05 02", "Worker5", "517"},
      {"06 02", "Worker6", "518"},
      {"07 02", "Worker7", "519"},
      {"08 02", "Worker8", "520"},
      {"09 02", "Worker9", "521"},
      {"0a 02", "Worker10", "522"},
      {"0b 02", "Worker11", "523"},
      {"0c 02", "Worker12", "524"},
      {"0d 02", "Worker13", "525"},
      {"0e 02", "Worker14", "526"},
      {"0f 02", "Worker15", "527"},
      {"10 02", "Worker16", "528"},
      {"11 02", "Worker17", "529"},
      {"12 02", "Worker18", "530"},
      {"13 02", "Worker19", "531"},
      {"14 02", "Worker20", "532"},
      {"15 02", "Worker21", "533"},
      {"16 02", "Worker22", "534"},
      {"17 02", "Worker23", "535"},
      {"18 02", "Worker24", "536"},
      {"19 02", "Worker25", "537"},
      {"1a 02", "Worker26", "538"},
      {"1b 02", "Worker27", "539"},
      {"1c 02", "Worker28", "540"},
      {"1d 02", "Worker29", "541"},
      {"00 00", "Worker30", "0"},
      {"'The Scriveners':25", "Text", "The Scriveners"},
  };
  ExpectLayout<Segment>(pieces);
}

TEST(Layouts, MailAndIncident) {
  const Piece mail[] = {{"'Finance Dept.':30", "From", "Finance Dept."},
                        {"'01/03/2026':10", "Date", "01/03/2026"},
                        {"'We made $1000 off merchandise this month.':250", "Body",
                         "We made $1000 off merchandise this month."}};
  ExpectLayout<Mail>(mail);
  const Piece incident[] = {{"06 00", "Type", "6"}, {"0c 01", "Uid", "268"}};
  ExpectLayout<Incident>(incident);
}

TEST(Layouts, FilesHaveTheirNamesAndLimits) {
  const struct {
    const char* File;
    int Size;
    int Limit;
  } rows[] = {{"belt.dat", 241, 5000},      {"event.dat", 26, 10000},   {"network.dat", 42, 1000},
              {"promos.dat", 309, 35},      {"sponsor.dat", 72, 1000},  {"stables.dat", 27, 10000},
              {"staff.dat", 58, 10000},     {"teams.dat", 56, 10000},   {"tv.dat", 50, 1000},
              {"wrestler.dat", 237, 25000}, {"gameinfo.dat", 440, 1},   {"news.dat", 290, 20000},
              {"notes.dat", 0, 0},          {"feudinfo.dat", 36, 8},    {"match.dat", 143, 11},
              {"incident.tmp", 4, 10},      {"showrun.dat", 50, 1},     {"history.dat", 78, 30000},
              {"bouts.dat", 220, 5000},     {"tallies.dat", 49, 10000}, {"reigns.dat", 77, 12000},
              {"reports.dat", 220, 8000},   {"awards.dat", 176, 2000},  {"yearend.dat", 4, 25000},
              {"deeds.dat", 106, 3000}};
  const World world;
  const auto tables = world.Tables();
  ASSERT_EQ(std::size(rows), tables.size());
  for (std::size_t i = 0; i < tables.size(); ++i) {
    EXPECT_EQ(rows[i].File, tables[i]->File());
    if (rows[i].Size == 0) continue;
    EXPECT_EQ(rows[i].Size, tables[i]->Layout()->Size) << rows[i].File;
    EXPECT_EQ(rows[i].Limit, tables[i]->Layout()->Limit) << rows[i].File;
  }
}

// What all tools that read the lists rely on.
TEST(FieldLists, DescribeEveryByteOnceAndInOrder) {
  const World world;
  for (const Table* table : world.Tables()) {
    if (!table->Layout()) continue;
    const RecordLayout& layout = *table->Layout();
    std::vector<int> described(static_cast<std::size_t>(layout.Size));
    std::set<std::string> names;
    ForEachField(layout, [&](const Field& field, int index) {
      for (int i = 0; i < field.Width; ++i)
        ++described.at(static_cast<std::size_t>(field.Offset + index * field.Stride + i));
      EXPECT_TRUE(names.insert(FieldName(field, index)).second)
          << layout.Name << " " << FieldName(field, index);
      EXPECT_FALSE(field.Help.empty()) << layout.Name << " " << field.Name;
      EXPECT_LE(field.Min, field.Max) << layout.Name << " " << field.Name;
    });
    EXPECT_EQ(std::vector<int>(described.size(), 1), described) << layout.Name;
  }
}

TEST(FieldLists, ShowValuesAsAPersonReadsThem) {
  Worker worker;
  worker.Gender = true;
  worker.Position = kSentToDevelopment + kMidcard;
  worker.Status = "Inj";
  worker.Weight = "?";
  worker.Wage = 40;
  worker.LastTurn = test::kGameStart;
  const struct {
    const char* Field;
    const char* Shown;
  } rows[] = {{"Gender", "male"},    {"Position", "Midcard (sent to development)"},
              {"Status", "Injured"}, {"Weight", "?"},
              {"Wage", "40"},        {"LastTurn", "2026-03-01"},
              {"HighSpots", "no"},   {"Name", ""}};
  for (const auto& row : rows) {
    const auto fields = LayoutOf<Worker>().Fields;
    const auto field = std::find_if(fields.begin(), fields.end(),
                                    [&](const Field& one) { return one.Name == row.Field; });
    ASSERT_NE(fields.end(), field) << row.Field;
    EXPECT_EQ(row.Shown, FieldShown(*field, reinterpret_cast<const std::byte*>(&worker)))
        << row.Field;
  }
}

}  // namespace
}  // namespace grapplemont
