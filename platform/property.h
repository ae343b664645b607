#pragma once

#include <functional>
#include <utility>

// A member of a control that reads and assigns like a plain value. At most one watcher (the window
// that mirrors the control) hears of an assignment, and only when the value really changes. Copies
// are of the value: a watcher stays with the property that it watches.
template <class T>
class Property {
 public:
  Property() = default;
  // Implicit on purpose: Property<bool> Enabled = true;
  Property(T value) : value_(std::move(value)) {}  // NOLINT(google-explicit-constructor)

  Property(const Property& other) : value_(other.value_) {}
  Property& operator=(const Property& other) {
    if (this != &other) *this = other.value_;
    return *this;
  }
  ~Property() = default;

  operator const T&() const { return value_; }  // NOLINT(google-explicit-constructor)
  const T& Get() const { return value_; }

  Property& operator=(T value) {
    if (value_ == value) return *this;
    value_ = std::move(value);
    if (watcher_) watcher_(value_);
    return *this;
  }

  // Replaces the watcher; an empty function takes it away.
  void Watch(std::function<void(const T&)> watcher) { watcher_ = std::move(watcher); }

 private:
  T value_{};
  std::function<void(const T&)> watcher_;
};
