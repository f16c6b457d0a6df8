// The preferences of all programs, as Core Foundation stores them. The application sees a cached
// copy until it synchronises.
#pragma once

#include <compare>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>

#include "desk/machine/PropertyValue.hpp"

namespace orvane::desk {

class Preferences {
 public:
  enum class User { current, any };
  enum class Host { current, any };

  /// One place where values are stored.
  struct Domain {
    std::string application;
    User user = User::current;
    Host host = Host::any;
    auto operator<=>(const Domain&) const = default;
  };

  void set(const Domain& domain, const std::string& key, PropertyValue value);
  void remove(const Domain& domain, const std::string& key);
  /// The stored value of the first domain of the application that has one, from the current user
  /// and host to any user and host.
  [[nodiscard]] std::optional<PropertyValue> stored(const std::string& application,
                                                    const std::string& key) const;

  /// As the application sees it: the first lookup for a program copies everything stored for it,
  /// and later lookups read the copy.
  [[nodiscard]] std::optional<PropertyValue> seen(const Domain& domain, const std::string& key);
  [[nodiscard]] std::optional<PropertyValue> seen(const std::string& application,
                                                  const std::string& key);
  /// Makes the next lookup for this program read the stored values again.
  void synchronise(const std::string& application) { copies_.erase(application); }
  /// To be called when the process has ended.
  void forgetCopies() { copies_.clear(); }

  /// `changed` is called after each change of a stored value.
  void onChange(std::function<void()> changed) { changed_ = std::move(changed); }

 private:
  using Values = std::map<Domain, std::map<std::string, PropertyValue>>;

  /// The value of the first domain that has one.
  [[nodiscard]] static std::optional<PropertyValue> lookUp(const Values& values,
                                                           std::span<const Domain> domains,
                                                           const std::string& key);
  const Values& copyFor(const std::string& application);

  Values values_;
  std::map<std::string, Values> copies_;
  std::function<void()> changed_;
};

}  // namespace orvane::desk
