#pragma once

#include <concepts>
#include <string>
#include <string_view>
#include <utility>

namespace zelvs {

/// What owns properties: a control or a form. It learns of every assignment that changes one.
class PropertyOwner {
 public:
  virtual void propertyChanged(const void* property) = 0;

 protected:
  ~PropertyOwner() = default;
};

/// A value with assignment. Reading is a plain read; an assignment that changes the value tells the owner, one that
/// does not costs a comparison and nothing else.
template <class T>
class Property {
 public:
  explicit Property(PropertyOwner* owner, T initial = T()) : owner_(owner), value_(std::move(initial)) {}
  Property(const Property&) = delete;
  Property& operator=(const Property& other) {
    if (this != &other) assign(other.value_);
    return *this;
  }

  template <class U>
  requires std::convertible_to<U, T> ||
      (std::same_as<T, std::string>&& std::convertible_to<U, std::string_view>)Property&
      operator=(const U& value) {
    assign(value);
    return *this;
  }

  // NOLINTNEXTLINE(google-explicit-constructor): a property reads as its value
  operator const T&() const { return value_; }
  const T& get() const { return value_; }

  friend bool operator==(const Property& property, std::string_view text) requires std::same_as<T, std::string> {
    // With a literal the length is known when this is compiled: the engine asks so for a Tag several times a step.
    return property.value_.size() == text.size() &&
           std::char_traits<char>::compare(property.value_.data(), text.data(), text.size()) == 0;
  }
  friend bool operator==(const Property& property, const T& value) requires(!std::same_as<T, std::string>) {
    return property.value_ == value;
  }

 private:
  template <class U>
  void assign(const U& value) {
    if constexpr (std::same_as<T, std::string>) {
      // Short texts stay inside the string object, so that the engine may write a Tag without allocating.
      const std::string_view text(value);
      if (value_ == text) return;
      value_.assign(text);
    } else {
      const T next = static_cast<T>(value);
      if (value_ == next) return;
      value_ = next;
    }
    owner_->propertyChanged(this);
  }

  PropertyOwner* owner_;
  T value_;
};

}  // namespace zelvs
