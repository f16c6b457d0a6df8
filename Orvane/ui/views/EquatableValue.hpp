// Any value that can be compared with an earlier one of its kind.
#pragma once

#include <memory>
#include <utility>

namespace orvane::ui {

class EquatableValue {
 public:
  template <typename T>
  explicit EquatableValue(T value) : held_(std::make_shared<Held<T>>(std::move(value))) {}

  // Values of different types are never equal.
  friend bool operator==(const EquatableValue& a, const EquatableValue& b) {
    return a.held_->equals(*b.held_);
  }

 private:
  struct Base {
    virtual ~Base() = default;
    virtual bool equals(const Base& other) const = 0;
  };
  template <typename T>
  struct Held final : Base {
    explicit Held(T initial) : value(std::move(initial)) {}
    bool equals(const Base& other) const override {
      const auto* same = dynamic_cast<const Held*>(&other);
      return same != nullptr && same->value == value;
    }
    T value;
  };

  std::shared_ptr<const Base> held_;
};

}  // namespace orvane::ui
