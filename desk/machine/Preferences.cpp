// The stored preferences and the application's cached copies.
#include "desk/machine/Preferences.hpp"

#include <array>
#include <utility>

namespace orvane::desk {

void Preferences::set(const Domain& domain, const std::string& key, PropertyValue value) {
  values_[domain].insert_or_assign(key, std::move(value));
  if (changed_) {
    changed_();
  }
}

void Preferences::remove(const Domain& domain, const std::string& key) {
  if (const auto keys = values_.find(domain); keys != values_.end()) {
    keys->second.erase(key);
  }
  if (changed_) {
    changed_();
  }
}

std::optional<PropertyValue> Preferences::lookUp(const Values& values, const Domain& domain,
                                                 const std::string& key) {
  const auto keys = values.find(domain);
  if (keys == values.end()) {
    return std::nullopt;
  }
  const auto value = keys->second.find(key);
  return value == keys->second.end() ? std::nullopt : std::optional(value->second);
}

std::optional<PropertyValue> Preferences::search(const Values& values,
                                                 const std::string& application,
                                                 const std::string& key) {
  const std::array<Domain, 4> order{Domain{application, User::current, Host::current},
                                    Domain{application, User::current, Host::any},
                                    Domain{application, User::any, Host::current},
                                    Domain{application, User::any, Host::any}};
  for (const Domain& domain : order) {
    if (auto value = lookUp(values, domain, key)) {
      return value;
    }
  }
  return std::nullopt;
}

std::optional<PropertyValue> Preferences::stored(const Domain& domain,
                                                 const std::string& key) const {
  return lookUp(values_, domain, key);
}

std::optional<PropertyValue> Preferences::stored(const std::string& application,
                                                 const std::string& key) const {
  return search(values_, application, key);
}

const Preferences::Values& Preferences::copyFor(const std::string& application) {
  const auto known = copies_.find(application);
  if (known != copies_.end()) {
    return known->second;
  }
  Values copy;
  for (const auto& [domain, keys] : values_) {
    if (domain.application == application) {
      copy.emplace(domain, keys);
    }
  }
  return copies_.emplace(application, std::move(copy)).first->second;
}

std::optional<PropertyValue> Preferences::seen(const Domain& domain, const std::string& key) {
  return lookUp(copyFor(domain.application), domain, key);
}

std::optional<PropertyValue> Preferences::seen(const std::string& application,
                                               const std::string& key) {
  return search(copyFor(application), application, key);
}

}  // namespace orvane::desk
