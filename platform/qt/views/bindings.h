#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "platform/property.h"

// The properties that a window watches. The controls outlive windows, so they are let go with it.
class Bindings {
 public:
  Bindings() = default;
  Bindings(const Bindings&) = delete;
  Bindings& operator=(const Bindings&) = delete;
  ~Bindings() {
    for (const auto& release : releases_) release();
  }

  // Calls `show` with the value now, and at every change.
  template <class T, class Show>
  void Bind(Property<T>& property, Show show) {
    show(property.Get());
    property.Watch(std::move(show));
    releases_.push_back([&property] { property.Watch({}); });
  }

 private:
  std::vector<std::function<void()>> releases_;
};
