#include "halls/trees.h"

#include <algorithm>
#include <map>
#include <ranges>
#include <set>

namespace grapplemont {

namespace {

/// The pairs that somebody was part of, the earliest first.
std::vector<TreePair> PairsOf(const Ledger& ledger, int career, int depth) {
  std::vector<TreePair> pairs;
  for (const Partnership& pair : ledger.Pairs)
    if (pair.One == career || pair.Two == career)
      pairs.push_back({&pair, depth, career, pair.One == career ? int(pair.Two) : int(pair.One)});
  std::ranges::stable_sort(pairs, {}, [](const TreePair& held) { return Day(held.Pair->First); });
  return pairs;
}

}  // namespace

std::vector<TreeReign> TreeOf(const World& world, const Lineage& lineage) {
  std::vector<TreeReign> tree;
  std::map<std::string, int> times;
  int number = 0;
  const TitleReign* before = nullptr;
  for (const TitleReign* reign : ReignsOf(world, lineage) | std::views::reverse) {
    const std::string holder = reign->Holder.Str();
    const bool vacant = IsVacancy(*reign);
    // Reigns that the file has dropped leave gaps.
    const bool follows = before && !IsVacancy(*before) && Day(before->Until) == Day(reign->From);
    tree.push_back({reign, vacant ? 0 : ++number, vacant ? 0 : ++times[holder],
                    follows ? before->Holder.Str() : std::string()});
    before = reign;
  }
  return tree;
}

std::vector<const Career*> PartnersIn(const Ledger& ledger) {
  std::set<int> numbers;
  for (const Partnership& pair : ledger.Pairs) numbers.insert({int(pair.One), int(pair.Two)});
  std::vector<const Career*> people;
  for (const int number : numbers)
    if (const int place = ledger.PlaceOf(number); place >= 0)
      people.push_back(&ledger.Careers[static_cast<std::size_t>(place)]);
  std::ranges::stable_sort(people, {}, [](const Career* career) { return career->Name.View(); });
  return people;
}

std::vector<TreePair> TeamTreeOf(const Ledger& ledger, int career) {
  std::vector<TreePair> tree;
  for (const TreePair& own : PairsOf(ledger, career, 0)) {
    tree.push_back(own);
    for (const TreePair& other : PairsOf(ledger, own.Partner, 1))
      if (other.Partner != career) tree.push_back(other);
  }
  return tree;
}

}  // namespace grapplemont
