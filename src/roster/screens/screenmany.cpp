#include "roster/screens/screenmany.h"

#include "records/fields/wording.h"
#include "roster/leaving.h"
#include "roster/screens/screentalks.h"
#include "roster/screens/screenworkers.h"

namespace grapplemont {

namespace {

/// Names between commas, and reasons a line each.
class Outcome {
 public:
  void Done(const Worker& worker) {
    done_ += (done_.empty() ? "" : ", ") + worker.Name.Str();
    ++count_;
  }
  void Not(const std::string& why) { not_ += "\n" + why; }

  int Count() const { return count_; }
  std::string Text(const std::string& yes, const std::string& no) const {
    std::string text = done_.empty() ? "" : yes + ": " + done_ + ".";
    if (not_.empty()) return text;
    return text + (text.empty() ? "" : "\n") + no + ":" + not_;
  }

 private:
  std::string done_, not_;
  int count_ = 0;
};

}  // namespace

std::string WhyToNobody(const World& world, const std::vector<int>& uids, const ManyAct& act) {
  std::string first = kNobodyChosen;
  for (const int uid : uids) {
    const Worker* worker = world.FindWorker(uid);
    const std::string why = worker ? act.WhyNot(*worker) : std::string(kNobodyChosen);
    if (why.empty()) return {};
    if (uid == uids.front()) first = why;
  }
  return first;
}

void DoToAll(Game& game, const std::vector<int>& uids, const ManyAct& act) {
  World& world = game.World();
  Outcome outcome;
  for (const int uid : uids) {
    Worker* worker = world.FindWorker(uid);
    if (!worker) continue;
    if (const std::string why = act.WhyNot(*worker); !why.empty()) {
      outcome.Not(why);
      continue;
    }
    act.Does(*worker);
    outcome.Done(*worker);
  }
  if (uids.size() > 1) game.Desk().Say(act.Title, outcome.Text("Done", "Not done"));
}

std::string CaptionFor(const std::string& caption, const std::vector<int>& uids) {
  return uids.size() < 2 ? caption : caption + " (" + std::to_string(uids.size()) + ")";
}

bool OfferRelease(Game& game, Worker& worker) {
  ui::Desk& desk = game.Desk();
  const ReleaseAnswer answer = AnswerToRelease(game.World(), worker);
  for (const Remark& remark : answer.Remarks) desk.Say(remark.Title, remark.Text);
  if (!answer.Accepted ||
      !desk.Ask("Release", worker.Name + " formally accepts your offer. Proceed?"))
    return false;
  ReleaseWorker(game.World(), worker);
  return true;
}

void OfferReleases(Game& game, const std::vector<int>& uids,
                   const std::function<std::string(const Worker&)>& whyNot) {
  World& world = game.World();
  std::vector<int> going;
  Outcome outcome;
  for (const int uid : uids) {
    Worker* worker = world.FindWorker(uid);
    if (!worker) continue;
    if (const std::string why = whyNot(*worker); !why.empty()) {
      outcome.Not(why);
      continue;
    }
    if (uids.size() == 1) {
      OfferRelease(game, *worker);
      return;
    }
    const ReleaseAnswer answer = AnswerToRelease(world, *worker);
    if (answer.Accepted) {
      going.push_back(uid);
      outcome.Done(*worker);
    } else {
      outcome.Not(answer.Remarks.front().Text);
    }
  }
  if (uids.size() < 2) return;
  const std::string text = outcome.Text("These accept your offer", "These do not");
  if (going.empty()) return game.Desk().Say("Release", text);
  if (!game.Desk().Ask("Release", text + "\nLet " + Counted(outcome.Count(), "worker") + " go?",
                       ui::Default::No))
    return;
  for (const int uid : going)
    if (Worker* worker = world.FindWorker(uid)) ReleaseWorker(world, *worker);
}

std::vector<ui::ListBox::View> WorkerViews() {
  return {{"Ring",
           {"Name", kWorksFor, "Position", "Disposition", "Over", "Condition", "Brawl", "Tech.",
            "Speed", "Char.", "Status"}},
          {"Contract",
           {"Name", kWorksFor, "Position", "Over", "Age", "Contract", "Months", "Wage", "Morale"}},
          {"Mood",
           {"Name", "Disposition", "Over", "Morale", "Condition", "Turned", "Months", "Status"}},
          {"Money", {"Name", kWorksFor, "Over", "Wage", "Contract", "Months", "Age", "Position"}}};
}

}  // namespace grapplemont
