#include "roster/staffneeds.h"

#include <algorithm>
#include <array>

#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

int OwnShows(const World& world) {
  const auto& shows = world.Shows();
  return static_cast<int>(std::count_if(
      shows.begin(), shows.end(), [&](const Show& s) { return s.Owner == world.PlayerUid(); }));
}

template <class Test>
int CountOwn(const World& world, Test test) {
  const auto& all = world.Workers();
  return static_cast<int>(std::count_if(all.begin(), all.end(), [&](const Worker& w) {
    return WorksForPlayer(world, w) && test(w);
  }));
}

int AnnouncersWanted(const World& world) {
  return OwnShows(world) > 0 ? 1 : 0;
}
int MedicsWanted(const World& world) {
  return MedicsNeeded(CountOwn(world, [](const Worker&) { return true; }));
}
int WritersWanted(const World& world) {
  return WritersNeeded(OwnShows(world));
}
int AgentsWanted(const World& world) {
  return AgentsNeeded(
      CountOwn(world, [](const Worker& w) { return w.Position < kDevelopmentDeal; }));
}
int TrainersWanted(const World& world) {
  return world.Player().CampName == "None" ? 0 : 1;
}
int NoneWanted(const World&) {
  return 0;
}

struct Post {
  int Code;
  const char* Plural;
  int (*Need)(const World& world);
  const char* Lack;  // what comes of too few, behind "Hire 2 more, or "
};
constexpr std::array<Post, 7> kPosts = {{
    {kAnnouncer, "Announcers", AnnouncersWanted, "nobody calls the shows"},
    {kReferee, "Referees", NoneWanted, ""},
    {kProduction, "Production", NoneWanted, ""},
    {kMedical, "Medical", MedicsWanted, "the roster recovers slowly"},
    {kWriter, "Writers", WritersWanted, "angles have to wait"},
    {kRoadAgent, "Road Agents", AgentsWanted, "there will be more trouble behind the scenes"},
    {kTrainer, "Trainers", TrainersWanted, "nobody teaches in the training camp"},
}};

const Post& PostOf(int code) {
  return *std::find_if(kPosts.begin(), kPosts.end(),
                       [=](const Post& post) { return post.Code == code; });
}

}  // namespace

int WritersNeeded(int shows) {
  // By shows from none to more than three.
  constexpr std::array<int, 5> kNeeded = {1, 2, 4, 6, 10};
  return kNeeded[static_cast<std::size_t>(std::clamp(shows, 0, 4))];
}

int MedicsNeeded(int workers) {
  return workers >= 56 ? 3 : workers >= 31 ? 2 : 0;
}

int AgentsNeeded(int wrestlers) {
  if (wrestlers > 80) return 5;
  if (wrestlers > 60) return 4;
  if (wrestlers > 40) return 3;
  return wrestlers > 25 ? 2 : wrestlers > 0 ? 1 : 0;
}

std::vector<PostCount> PostCounts(const World& world) {
  std::vector<PostCount> posts;
  for (const Post& post : kPosts) posts.push_back({post.Code, 0, post.Need(world)});
  for (const Staff& staff : world.AllStaff())
    for (PostCount& post : posts)
      post.Have += WorksForPlayer(world, staff) && staff.Position == post.Post;
  return posts;
}

std::string PostLine(const std::vector<PostCount>& posts) {
  std::string line;
  for (const PostCount& post : posts) {
    line += (line.empty() ? "" : ", ") + std::string(PostOf(post.Post).Plural) + " " +
            std::to_string(post.Have);
    if (post.Need > 0) line += " (needs " + std::to_string(post.Need) + ")";
  }
  return line + ".";
}

std::string PostAdvice(const std::vector<PostCount>& posts) {
  std::string advice;
  for (const PostCount& post : posts)
    if (post.Have < post.Need)
      advice += (advice.empty() ? "" : " ") + std::string(PostOf(post.Post).Plural) + ": hire " +
                std::to_string(post.Need - post.Have) + " more, or " + PostOf(post.Post).Lack + ".";
  return advice.empty() ? "Every post has the hands it needs." : advice;
}

}  // namespace grapplemont
