// Reference counting with every use checked.
#include "desk/machine/ObjectRegistry.hpp"

#include <algorithm>
#include <utility>

namespace orvane::desk {

std::map<const void*, Object*>& ObjectRegistry::constants() {
  static std::map<const void*, Object*> all;
  return all;
}

void ObjectRegistry::addConstant(Object& object) {
  constants().emplace(&object, &object);
}

void ObjectRegistry::retain(const void* reference, const char* operation) {
  if (const auto entry = live_.find(reference); entry != live_.end()) {
    ++entry->second.object->references_;
  } else if (!constants().contains(reference)) {
    recordMissing(reference, operation);
  }
}

void ObjectRegistry::release(const void* reference, const char* operation) {
  const auto entry = live_.find(reference);
  if (entry == live_.end()) {
    if (!constants().contains(reference)) {
      recordMissing(reference, operation);
    }
    return;
  }
  if (--entry->second.object->references_ > 0) {
    return;
  }
  std::unique_ptr<Object> released = std::move(entry->second.object);
  live_.erase(entry);
  released->lastReferenceGone();
  quarantine_.push_back(std::move(released));
  if (quarantine_.size() > quarantineLimit) {
    quarantine_.pop_front();
  }
}

Object* ObjectRegistry::find(const void* reference, const char* operation) {
  if (const auto entry = live_.find(reference); entry != live_.end()) {
    return entry->second.object.get();
  }
  if (const auto constant = constants().find(reference); constant != constants().end()) {
    return constant->second;
  }
  recordMissing(reference, operation);
  return nullptr;
}

Object* ObjectRegistry::find(const void* reference, ObjectKind kind, const char* operation) {
  Object* const object = find(reference, operation);
  if (object != nullptr && object->kind() != kind) {
    faults_.record(std::string(operation) + ": " + object->description() + " is no " +
                   nameOf(kind));
    return nullptr;
  }
  return object;
}

std::int64_t ObjectRegistry::referenceCount(const void* reference) const {
  const auto entry = live_.find(reference);
  return entry == live_.end() ? 0 : entry->second.object->references_;
}

std::size_t ObjectRegistry::liveCount(ObjectKind kind) const {
  return static_cast<std::size_t>(
      std::count_if(live_.begin(), live_.end(),
                    [kind](const auto& entry) { return entry.second.object->kind() == kind; }));
}

std::vector<std::string> ObjectRegistry::liveDescriptions() const {
  // The map is ordered by addresses, which differ from run to run; the order of creation does not.
  std::map<std::size_t, const Object*> byAge;
  for (const auto& [reference, entry] : live_) {
    byAge.emplace(entry.order, entry.object.get());
  }
  std::vector<std::string> descriptions;
  descriptions.reserve(byAge.size());
  for (const auto& [order, object] : byAge) {
    descriptions.push_back(object->description() +
                           ", references: " + std::to_string(object->references_));
  }
  return descriptions;
}

void ObjectRegistry::recordMissing(const void* reference, const char* operation) {
  std::string text = operation;
  if (reference == nullptr) {
    faults_.record(text + ": null instead of an object");
    return;
  }
  const auto released =
      std::find_if(quarantine_.begin(), quarantine_.end(),
                   [reference](const auto& object) { return object.get() == reference; });
  if (released != quarantine_.end()) {
    faults_.record(text + ": " + (*released)->description() + " was already released");
  } else {
    faults_.record(text + ": not an object of this machine");
  }
}

}  // namespace orvane::desk
