// The stored preferences and the application's cached copies.
#include "desk/machine/Preferences.hpp"

#include <array>
#include <utility>

namespace orvane::desk {

namespace {

std::array<Preferences::Domain, 4> domainsOf(const std::string& application) {
  using User = Preferences::User;
  using Host = Preferences::Host;
  return {{{application, User::current, Host::current},
           {application, User::current, Host::any},
           {application, User::any, Host::current},
           {application, User::any, Host::any}}};
}

}  // namespace

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

std::optional<PropertyValue> Preferences::lookUp(const Values& values,
                                                 std::span<const Domain> domains,
                                                 const std::string& key) {
  for (const Domain& domain : domains) {
    const auto keys = values.find(domain);
    if (keys != values.end() && keys->second.contains(key)) {
      return keys->second.at(key);
    }
  }
  return std::nullopt;
}

std::optional<PropertyValue> Preferences::stored(const std::string& application,
                                                 const std::string& key) const {
  return lookUp(values_, domainsOf(application), key);
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
  return lookUp(copyFor(domain.application), {&domain, 1}, key);
}

std::optional<PropertyValue> Preferences::seen(const std::string& application,
                                               const std::string& key) {
  return lookUp(copyFor(application), domainsOf(application), key);
}

}  // namespace orvane::desk
