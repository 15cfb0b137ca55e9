#include "records/modVar.h"
#include "show/consequences.h"
#include "show/legend.h"

namespace grapplemont {

namespace {

constexpr int kHardestBlow = 10;

/// What the one who was hurt writes about the stiff one, whose name stands between the two.
struct Complaint {
  Wording Before;
  Wording After;
};
constexpr Complaint kComplaints[] = {
    // by the place of the one who was hurt
    {{"", ""},
     {" was working too stiff, i could have been injured.",
      " was working too stiff, brother, the Maulster could have been injured!"}},
    {{"I think ", "Brother, I think "},
     {" was too reckless in my match, i could have been seriously hurt.",
      " was too reckless in my match, the Maulster could have been seriously hurt!"}},
    {{"Can you talk to ", "Brother, can you talk to "},
     {"? There is a big difference between being enthusiastic and just being reckless.",
      "? There is a big difference between being enthusiastic and just being reckless, brother!"}},
    {{"", ""},
     {" was working too stiffly, i could have been badly hurt. ",
      " was working too stiffly, the Maulster could have been badly hurt, brother! "}},
};

}  // namespace

void HurtOthers(SegmentRun& run, const Worker& stiff) {
  const int partner = PartnerOf(run.Segment, stiff.Uid);
  for (std::size_t place = 0; place < std::size(kComplaints); ++place) {
    const int uid =
        static_cast<int>(place) < EntrantsOf(run.Segment) ? run.Segment.Worker[place] : 0;
    Worker* hurt = run.World.FindWorker(uid);
    if (!hurt || uid == stiff.Uid || uid == partner) continue;
    const int blow = run.World.RandomDraw(kHardestBlow);
    hurt->Condition -= blow;
    if (blow < kHardestBlow) continue;
    const Complaint& complaint = kComplaints[place];
    AddNews(run.World, hurt->Name,
            std::string(complaint.Before.By(*hurt)) + stiff.Name.Str() +
                std::string(complaint.After.By(*hurt)));
  }
}

}  // namespace grapplemont
