// The live Core Foundation objects of a machine. Every use of a reference is checked here first, so
// that a mistake becomes a recorded fault and never an access to freed memory.
#pragma once

#include <cstddef>
#include <deque>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "desk/machine/Faults.hpp"
#include "desk/machine/Object.hpp"

namespace orvane::desk {

class ObjectRegistry {
 public:
  explicit ObjectRegistry(Faults& faults) : faults_(faults) {}
  ObjectRegistry(const ObjectRegistry&) = delete;
  ObjectRegistry& operator=(const ObjectRegistry&) = delete;

  /// The caller owns the object's initial reference.
  template <typename T>
  T* add(std::unique_ptr<T> object) {
    T* const reference = object.get();
    live_.emplace(reference, Entry{std::move(object), created_++});
    return reference;
  }

  /// Registers an object that is valid on every machine, never released and never counted, such as
  /// a constant string. It must live until the end of the program.
  static void addConstant(Object& object);

  /// `operation` names the caller in the fault that is recorded when `reference` is null, already
  /// released or not an object.
  void retain(const void* reference, const char* operation);
  void release(const void* reference, const char* operation);
  /// Null, and a fault, when there is no such object.
  [[nodiscard]] Object* find(const void* reference, const char* operation);
  /// Null, and a fault, when there is no such object or it is of another kind.
  [[nodiscard]] Object* find(const void* reference, ObjectKind kind, const char* operation);

  /// 0 for what is not a live object.
  [[nodiscard]] std::int64_t referenceCount(const void* reference) const;
  /// Constants are not counted.
  [[nodiscard]] std::size_t liveCount() const { return live_.size(); }
  [[nodiscard]] std::size_t liveCount(ObjectKind kind) const;
  /// One line for each live object, in the order of their creation.
  [[nodiscard]] std::vector<std::string> liveDescriptions() const;

 private:
  /// This many released objects keep their memory, so that no new object takes the address of one
  /// that is still used by mistake.
  static constexpr std::size_t quarantineLimit = 1024;

  struct Entry {
    std::unique_ptr<Object> object;
    std::size_t order;
  };

  [[nodiscard]] static std::map<const void*, Object*>& constants();
  void recordMissing(const void* reference, const char* operation);

  Faults& faults_;
  std::map<const void*, Entry> live_;
  std::deque<std::unique_ptr<Object>> quarantine_;
  std::size_t created_ = 0;
};

}  // namespace orvane::desk
