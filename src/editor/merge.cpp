#include "editor/merge.h"

#include <algorithm>
#include <set>

#include "editor/datafolder.h"
#include "records/fields/wording.h"
#include "records/severing.h"
#include "records/tables/worldreport.h"

namespace grapplemont {

int Arrivals::Count(Fate fate) const {
  return static_cast<int>(std::count_if(Rows.begin(), Rows.end(),
                                        [&](const Arrival& row) { return row.Comes == fate; }));
}

std::string WhyNoArrivals(const World& world) {
  const std::size_t faults = TellFaults(world);
  return faults == 0 ? "" : "The data have " + Counted(faults, "fault") + ". Clean them up first.";
}

std::string Shown(std::string_view text) {
  std::string shown(text);
  std::replace_if(
      shown.begin(), shown.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, ' ');
  return shown;
}

bool IsNoName(std::string_view text) {
  const std::string shown = Shown(text);
  const std::string_view letters = detail::Trimmed(shown);
  return letters.empty() || letters == "None";
}

int NamesTaken::UidOf(std::string_view name) const {
  const auto found = uids_.find(std::string(name));
  return found == uids_.end() ? 0 : found->second;
}

int UidMap::operator()(int uid) const {
  const auto found = leads_.find(uid);
  if (found != leads_.end()) return found->second;
  return here_.contains(uid) ? uid : 0;
}

namespace {

/// Puts in order what came into a world that was in order before.
void MendArrivals(World& world, Arrivals& arrivals) {
  const FaultList mended = MendWorld(world);
  arrivals.Mended.insert(arrivals.Mended.end(), mended.begin(), mended.end());
}

void MakeFreeAgent(World& world, Worker& worker) {
  worker.Employer = 0;  // of the other world: nobody here lost them
  SeverWorker(world, worker);
  worker.CreativeControl = false;
  worker.Split = "None";
  worker.Debuted = false;
}

constexpr int kMostShows = 3;

template <class T>
NewRecords::FileLine LineOf(const RecordFile<T>& file) {
  return {file.Name, file.Exists ? std::to_string(file.Records.size()) : "not there", file.Remark};
}

class Merger {
 public:
  Merger(World& world, const NewRecords& coming, const NewNames& names)
      : world_(world),
        coming_(coming),
        names_(names),
        networks_(world.Networks(), coming.Networks.Records),
        promotions_(world.Promotions(), coming.Promotions.Records),
        workers_(world.Workers(), coming.Workers.Records),
        staff_(world.AllStaff(), coming.AllStaff.Records) {}

  Arrivals Merge() {
    AdmitPromotions();
    AdmitAll(coming_.Networks, networks_);
    AdmitAll(coming_.Workers, workers_);
    AdmitAll(coming_.AllStaff, staff_);
    Follow(world_.Promotions(), firstPromotion_, coming_.Promotions.Name);
    Follow(world_.Workers(), firstWorker_, coming_.Workers.Name);
    Follow(world_.AllStaff(), firstStaff_, coming_.AllStaff.Name);
    for (int number = firstWorker_; number <= world_.Workers().Count(); ++number)
      if (world_.Workers()[number].Employer == 0) EndPosting(world_.Workers()[number]);
    AdmitTeams();
    AdmitShows();
    MendArrivals(world_, arrivals_);
    return std::move(arrivals_);
  }

 private:
  /// The record under the name that the player gave it.
  template <class T>
  T Renamed(T record, int number) const {
    const auto chosen = names_.find({LayoutOf<T>().Name, number});
    if (chosen == names_.end()) return record;
    if (!chosen->second.Name.empty()) record.Name = chosen->second.Name;
    if constexpr (requires { record.Initials; })
      if (!chosen->second.Initials.empty()) record.Initials = chosen->second.Initials;
    return record;
  }

  /// Calls `visit` with each record, as it is named, and its number.
  template <class T, class Visit>
  void ForEach(const RecordFile<T>& file, Visit visit) const {
    int number = 0;
    for (const T& record : file.Records) {
      ++number;
      visit(Renamed(record, number), number);
    }
  }

  template <class T>
  void AdmitAll(const RecordFile<T>& file, Entrance<T>& entrance) {
    ForEach(file, [&](const T& record, int number) {
      arrivals_.Rows.push_back(entrance.Admit(record, number));
    });
  }

  void AdmitPromotions() {
    NamesTaken initials;
    for (const Promotion& promotion : world_.Promotions())
      initials.Mark(promotion.Initials, promotion.Uid);
    ForEach(coming_.Promotions, [&](const Promotion& promotion, int number) {
      const bool taken = initials.Has(promotion.Initials);
      std::string barred;
      if (!promotions_.Names().Has(promotion.Name))
        barred = IsNoName(promotion.Initials) ? "It has no initials." : taken ? kInitialsTaken : "";
      arrivals_.Rows.push_back(promotions_.Admit(promotion, number, barred));
      Arrival& row = arrivals_.Rows.back();
      row.NameTaken = row.NameTaken || !barred.empty();
      if (row.Comes != Fate::LeftOut) initials.Mark(promotion.Initials, row.Becomes);
    });
  }

  /// nullptr for what is not among the new files: the mending sees to it.
  const UidMap* LeadsOf(Refers to) const {
    return to == Refers::Worker      ? &workers_.Leads()
           : to == Refers::Promotion ? &promotions_.Leads()
           : to == Refers::Staff     ? &staff_.Leads()
           : to == Refers::Network   ? &networks_.Leads()
                                     : nullptr;
  }

  /// Where the fields of a record lead once everybody has their uid.
  template <class T>
  void FollowRecord(T& record, int number, const std::string& file) {
    auto* bytes = reinterpret_cast<std::byte*>(&record);
    for (const Field& field : LayoutOf<T>().Fields) {
      Refers to = field.To;
      if constexpr (requires { record.ColourIsWorker; })
        if (to == Refers::Commentator) to = record.ColourIsWorker ? Refers::Worker : Refers::Staff;
      const UidMap* leads = LeadsOf(to);
      if (!leads) continue;
      for (int index = 0; index < field.Count; ++index) {
        const int uid = static_cast<int>(FieldNumber(field, bytes, index));
        if (uid <= 0) continue;
        const int now = (*leads)(uid);
        SetFieldNumber(field, bytes, index, now);
        if (now == 0)
          arrivals_.Mended.push_back({file, number, Shown(record.Name), FieldName(field, index),
                                      "is " + std::to_string(uid) +
                                          ", but nobody came or was "
                                          "here under it; made 0"});
      }
    }
  }

  template <class T>
  void Follow(Records<T>& records, int first, const std::string& file) {
    // The rows of this kind that came in stand in the order of the records.
    auto row = arrivals_.Rows.begin();
    for (int number = first; number <= records.Count(); ++number, ++row) {
      row = std::find_if(row, arrivals_.Rows.end(), [](const Arrival& arrival) {
        return arrival.Kind == LayoutOf<T>().Name && arrival.Comes != Fate::LeftOut;
      });
      FollowRecord(records[number], row->Record, file);
    }
  }

  void AdmitTeams() {
    std::set<std::pair<int, int>> pairs;
    for (const Team& team : world_.Teams()) pairs.insert(PairOf(team));
    ForEach(coming_.Teams, [&](Team team, int number) {
      FollowRecord(team, number, coming_.Teams.Name);
      std::string why;
      if (team.Worker1 == 0 || team.Worker2 == 0)
        why = "It lacks a partner.";
      else if (team.Worker1 == team.Worker2)
        why = "Its partners are one and the same.";
      else if (pairs.contains(PairOf(team)))
        why = "The two are a team already.";
      if (LetIn(world_.Teams(), team, number, why)) pairs.insert(PairOf(team));
    });
  }

  static std::pair<int, int> PairOf(const Team& team) {
    return std::minmax<int>({int(team.Worker1), int(team.Worker2)});
  }

  void AdmitShows() {
    NamesTaken shows;
    for (const Show& show : world_.Shows()) shows.Mark(show.Name, 0);
    ForEach(coming_.Shows, [&](Show show, int number) {
      FollowRecord(show, number, coming_.Shows.Name);
      const bool taken = shows.Has(show.Name);
      const std::string why = IsNoName(show.Name)         ? kNoName
                              : show.Name == kToBeDeleted ? "It is marked as gone."
                              : taken                     ? kNameTaken
                                                          : WhyNoShow(show);
      if (LetIn(world_.Shows(), show, number, why)) shows.Mark(show.Name, 0);
      arrivals_.Rows.back().NameTaken = taken;
    });
  }

  std::string WhyNoShow(const Show& show) const {
    int ofOwner = 0;
    const Network* network = world_.FindNetwork(show.Network);
    for (const Show& other : world_.Shows()) {
      if (show.Owner != 0 && other.Owner == show.Owner) ++ofOwner;
      if (network && !network->Generic && other.Network == show.Network && other.Day == show.Day &&
          other.Slot == show.Slot)
        return "Its network has " + Shown(other.Name) + " at that time.";
    }
    return ofOwner >= kMostShows ? "Its promotion has three shows already." : "";
  }

  /// Notes a record without a uid; true when it came in.
  template <class T>
  bool LetIn(Records<T>& into, const T& record, int number, std::string why) {
    if (why.empty() && into.Full()) why = LimitMessage(LayoutOf<T>());
    const bool comes = why.empty();
    arrivals_.Rows.push_back({LayoutOf<T>().Name, number, Shown(record.Name), 0, 0,
                              comes ? Fate::Added : Fate::LeftOut, std::move(why)});
    if (comes) into.Append(record);
    return comes;
  }

  World& world_;
  const NewRecords& coming_;
  const NewNames& names_;
  Entrance<Network> networks_;
  Entrance<Promotion> promotions_;
  Entrance<Worker> workers_;
  Entrance<Staff> staff_;
  const int firstPromotion_ = world_.Promotions().Count() + 1;
  const int firstWorker_ = world_.Workers().Count() + 1;
  const int firstStaff_ = world_.AllStaff().Count() + 1;
  Arrivals arrivals_;
};

}  // namespace

RecordFile<Worker> ReadForeignWorkers(Disk& disk, const std::string& folder) {
  return ReadRecordFile<Worker>(disk, folder, "wrestler2.dat");
}

Arrivals ImportWorkers(World& world, const std::vector<Worker>& all,
                       const std::vector<int>& chosen) {
  Arrivals arrivals;
  Entrance<Worker> entrance(world.Workers(), all);
  for (const int number : chosen) {
    arrivals.Rows.push_back(entrance.Admit(all.at(static_cast<std::size_t>(number - 1)), number));
    if (arrivals.Rows.back().Comes != Fate::LeftOut)
      MakeFreeAgent(world, world.Workers()[world.Workers().Count()]);
  }
  MendArrivals(world, arrivals);
  return arrivals;
}

Arrivals PreviewImport(const World& world, const std::vector<Worker>& all,
                       const std::vector<int>& chosen) {
  World trial = TrialCopyOf(world);
  return ImportWorkers(trial, all, chosen);
}

std::vector<NewRecords::FileLine> NewRecords::Files() const {
  return {LineOf(Networks), LineOf(Promotions), LineOf(Workers),
          LineOf(AllStaff), LineOf(Teams),      LineOf(Shows)};
}

bool NewRecords::Empty() const {
  return Networks.Records.empty() && Promotions.Records.empty() && Workers.Records.empty() &&
         AllStaff.Records.empty() && Teams.Records.empty() && Shows.Records.empty();
}

NewRecords ReadNewRecords(Disk& disk, const std::string& folder) {
  return {ReadRecordFile<Network>(disk, folder, "newnetwork.dat"),
          ReadRecordFile<Promotion>(disk, folder, "newpromos.dat"),
          ReadRecordFile<Worker>(disk, folder, "newwrestler.dat"),
          ReadRecordFile<Staff>(disk, folder, "newstaff.dat"),
          ReadRecordFile<Team>(disk, folder, "newteams.dat"),
          ReadRecordFile<Show>(disk, folder, "newtv.dat")};
}

Arrivals MergeNewRecords(World& world, const NewRecords& coming, const NewNames& names) {
  return Merger(world, coming, names).Merge();
}

Arrivals PreviewMerge(const World& world, const NewRecords& coming, const NewNames& names) {
  World copy = TrialCopyOf(world);
  return MergeNewRecords(copy, coming, names);
}

}  // namespace grapplemont
