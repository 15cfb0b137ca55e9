#pragma once

#include <utility>

namespace grapplemont::ui {

/// A value of a control that counts its changes, so that a shell redraws only what has changed.
template <class T>
class Property {
 public:
  Property(unsigned& revision, T value) : revision_(revision), value_(std::move(value)) {}
  Property(const Property&) = delete;
  Property& operator=(const Property&) = delete;

  template <class V>
  Property& operator=(V&& value) {
    T next(std::forward<V>(value));
    if (next != value_) {
      value_ = std::move(next);
      ++revision_;
    }
    return *this;
  }
  operator const T&() const { return value_; }
  const T& Get() const { return value_; }
  const T* operator->() const { return &value_; }

 private:
  unsigned& revision_;
  T value_;
};

}  // namespace grapplemont::ui
