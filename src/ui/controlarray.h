#pragma once

#include <memory>
#include <string>
#include <vector>

namespace grapplemont::ui {

/// Controls of one kind under one name: cmdbook(1), cmdbook(2) ...
template <class C>
class Array {
 public:
  /// Makes `count` controls named NAME(1) to NAME(count); `make` takes the full name and the index
  /// from 1.
  template <class Make>
  Array(const std::string& name, int count, Make make) {
    for (int i = 1; i <= count; ++i)
      controls_.push_back(make(name + "(" + std::to_string(i) + ")", i));
  }
  C& operator()(int index) { return *controls_.at(static_cast<std::size_t>(index - 1)); }
  int Count() const { return static_cast<int>(controls_.size()); }

 private:
  std::vector<std::unique_ptr<C>> controls_;
};

}  // namespace grapplemont::ui
