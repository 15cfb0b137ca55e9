#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

// An enumeration's names as its declaration has them, so that no table need repeat them.

namespace grapplemont {

namespace detail {

/// "ContractEnds" of Whisper::ContractEnds, "Clean" of kClean; empty for a number without a name.
template <auto Value>
constexpr std::string_view EnumName() {
  // "... [with auto Value = grapplemont::kClean; ...]"
  std::string_view name = __PRETTY_FUNCTION__;
  constexpr std::string_view kBefore = "Value = ";
  name.remove_prefix(name.find(kBefore) + kBefore.size());
  name = name.substr(0, name.find_first_of(";]"));
  if (name.starts_with('(')) return {};
  name.remove_prefix(name.rfind(':') + 1);  // npos + 1 is 0
  if (name.size() > 1 && name[0] == 'k' && name[1] >= 'A' && name[1] <= 'Z') name.remove_prefix(1);
  return name;
}

template <auto First, std::size_t... Steps>
constexpr auto NamesFrom(std::index_sequence<Steps...>) {
  using Enum = decltype(First);
  return std::array<std::string_view, sizeof...(Steps)>{
      EnumName<static_cast<Enum>(static_cast<int>(First) + static_cast<int>(Steps))>()...};
}

}  // namespace detail

/// The names of all from First to Last, without a leading k.
template <auto First, auto Last>
inline constexpr auto kEnumNames = detail::NamesFrom<First>(
    std::make_index_sequence<static_cast<std::size_t>(static_cast<int>(Last) -
                                                      static_cast<int>(First) + 1)>());

/// The name of one between First and Last; empty for one that is not.
template <auto First, auto Last>
constexpr std::string_view EnumNameIn(int value) {
  const int step = value - static_cast<int>(First);
  if (step < 0 || value > static_cast<int>(Last)) return {};
  return kEnumNames<First, Last>[static_cast<std::size_t>(step)];
}

}  // namespace grapplemont
