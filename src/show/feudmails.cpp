#include "show/feudmails.h"

#include "records/modVar.h"
#include "show/legend.h"

namespace grapplemont {

namespace {

/// From this Attitude on the mild words are chosen; a team speaks with its first member's.
constexpr int kMild = 61;

struct Words {
  Wording Mild;
  Wording Loud;
};

/// What a side writes.
struct FeudMail {
  FeudStory Story;
  bool FromWinners;
  Words Single;
  std::string_view TeamMild, TeamLoud;
};

constexpr Words kHelpedALot = {
    {"That feud was excellent, it has really helped me. ",
     "That feud was excellent, brother, it has really helped the Maulster. "},
    {"That last feud rocked, it has helped my career a lot! ",
     "That last feud rocked, brother, Maulamania is running wilder than ever! "}};
constexpr Wording kGreat = {"The last feud was great, thanks. ",
                            "The last feud was great, thanks, brother. "};
constexpr Wording kExcellent = {
    "My last feud was excellent, it has helped me a lot. ",
    "My last feud was excellent, brother, it has helped the Maulster a lot. "};
constexpr Wording kHated = {
    "I hated the last feud, it has done a lot of damage to my image. ",
    "I hated the last feud, brother, it has done a lot of damage to the Maulster's image. "};

constexpr FeudMail kMails[] = {
    {FeudStory::Comeback, true, kHelpedALot, "Great feud, thanks for booking it. ",
     "That last feud ruled, we hope the next one is just as good! "},
    {FeudStory::Comeback,
     false,
     {kGreat, kGreat},
     "Great feud, that helped both us and our opponents get over. ",
     "Great feud, that helped both us and our opponents get over. "},
    {FeudStory::Long,
     true,
     {kExcellent, kExcellent},
     "That last feud was well booked, thank you. ",
     "The previous feud was excellent. "},
    {FeudStory::Rout,
     false,
     {kHated, kHated},
     "That last feud sucked, we were much better off before. ",
     "That last feud sucked, we were much better off before. "},
};

}  // namespace

void WriteAboutFeud(World& world, FeudStory story, const FeudSide& winners,
                    const FeudSide& losers) {
  for (const FeudMail& mail : kMails) {
    if (mail.Story != story) continue;
    const FeudSide& side = mail.FromWinners ? winners : losers;
    const Worker* speaker = world.FindWorker(side.First);
    if (!speaker) continue;
    const bool isMild = speaker->Attitude >= kMild;
    const std::string_view text = side.IsTeam()
                                      ? (isMild ? mail.TeamMild : mail.TeamLoud)
                                      : (isMild ? mail.Single.Mild : mail.Single.Loud).By(*speaker);
    AddNews(world, SideName(world, side), text);
  }
}

}  // namespace grapplemont
