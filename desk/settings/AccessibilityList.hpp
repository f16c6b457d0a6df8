// AccessibilityList is the system's list of the applications that may control the computer, or that
// have asked to.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "desk/machine/Permission.hpp"

namespace orvane::desk {

/// Orvane's own entry is the machine's permission; the other applications exist on this Mac only as
/// names.
class AccessibilityList {
 public:
  /// Orvane, as it is called in the list.
  static constexpr const char* orvane = "Orvane";

  struct Entry {
    std::string name;
    bool isAllowed = false;

    friend bool operator==(const Entry&, const Entry&) = default;
  };

  explicit AccessibilityList(Permission& permission) : permission_(permission) {}

  /// In the order of their names.
  [[nodiscard]] std::vector<Entry> entries() const;
  /// The applications of this Mac that could be added, in the order of their names.
  [[nodiscard]] std::vector<std::string> applicationsNotListed() const;

  /// Nothing for an application that is not listed.
  void setAllowed(const std::string& name, bool isAllowed);
  /// Lists an application, if it is not listed, and allows it.
  void add(const std::string& name);
  /// Takes an application out of the list, and what it was allowed with it.
  void remove(const std::string& name);

  /// The name of the application whose bundle a file URL is; empty when it is no application.
  [[nodiscard]] static std::string applicationOf(const std::string& fileUrl);

 private:
  Permission& permission_;
  std::map<std::string, bool> others_{{"Remote Help", true}, {"Text Macros", false}};
};

}  // namespace orvane::desk
