// AccessibilityList is the system's list of applications that have requested or been given the
// permission to control the computer.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "desk/machine/Permission.hpp"

namespace orvane::desk {

/// Orvane's entry is the machine's permission; the other applications are only names.
class AccessibilityList {
 public:
  /// Orvane's name in the list.
  static constexpr const char* orvane = "Orvane";

  struct Entry {
    std::string name;
    bool isAllowed = false;

    friend bool operator==(const Entry&, const Entry&) = default;
  };

  explicit AccessibilityList(Permission& permission) : permission_(permission) {}

  /// Ordered by name.
  [[nodiscard]] std::vector<Entry> entries() const;
  /// The installed applications that are not in the list, ordered by name.
  [[nodiscard]] std::vector<std::string> applicationsNotListed() const;

  /// Does nothing for an application that is not listed.
  void setAllowed(const std::string& name, bool isAllowed);
  /// Adds an application, if it is not listed, and allows it.
  void add(const std::string& name);
  /// Removes an application and its permission.
  void remove(const std::string& name);

  /// The name of the application bundle at a file URL; empty when it is none.
  [[nodiscard]] static std::string applicationOf(const std::string& fileUrl);

 private:
  Permission& permission_;
  std::map<std::string, bool> others_{{"Remote Help", true}, {"Text Macros", false}};
};

}  // namespace orvane::desk
