// Object is the base of every simulated Core Foundation object.
#pragma once

#include <cstdint>
#include <string>

namespace orvane::desk {

/// The kind of an object; the value is its CFTypeID. The Mac's own numbers differ and are not
/// documented.
enum class ObjectKind : std::uint8_t {
  string = 7,
  number = 22,
  boolean = 21,
  uuid = 41,
  machPort = 44,
  runLoop = 46,
  runLoopSource = 47,
};

/// The name of the kind's reference type without "Ref", such as "CFString".
[[nodiscard]] constexpr const char* nameOf(ObjectKind kind) {
  switch (kind) {
    case ObjectKind::string:
      return "CFString";
    case ObjectKind::number:
      return "CFNumber";
    case ObjectKind::boolean:
      return "CFBoolean";
    case ObjectKind::uuid:
      return "CFUUID";
    case ObjectKind::machPort:
      return "CFMachPort";
    case ObjectKind::runLoop:
      return "CFRunLoop";
    case ObjectKind::runLoopSource:
      return "CFRunLoopSource";
  }
  return "CFType";
}

/// A Core Foundation reference points at an Object, which is the first and only base of every
/// concrete one, so that the reference and the Object have one address.
class Object {
 public:
  explicit Object(ObjectKind kind) : kind_(kind) {}
  Object(const Object&) = delete;
  Object& operator=(const Object&) = delete;
  virtual ~Object() = default;

  [[nodiscard]] ObjectKind kind() const { return kind_; }
  /// A short text that identifies the object in a report.
  [[nodiscard]] virtual std::string description() const { return nameOf(kind_); }
  /// Called when the last reference is released: drops the object's own references.
  virtual void lastReferenceGone() {}

 private:
  friend class ObjectRegistry;
  ObjectKind kind_;
  std::int64_t references_ = 1;
};

}  // namespace orvane::desk
