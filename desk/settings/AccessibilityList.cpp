// Orvane's entry is not stored: scripts and the hardware panel change the permission, too.
#include "desk/settings/AccessibilityList.hpp"

#include <algorithm>
#include <array>
#include <filesystem>

namespace orvane::desk {

namespace {

/// The installed applications that may need the permission.
constexpr std::array<const char*, 4> installedApplications{
    AccessibilityList::orvane, "Pointer Lens", "Remote Help", "Text Macros"};

}  // namespace

std::vector<AccessibilityList::Entry> AccessibilityList::entries() const {
  std::vector<Entry> all;
  for (const auto& [name, isAllowed] : others_) {
    all.push_back({name, isAllowed});
  }
  if (permission_.isListed()) {
    all.push_back({orvane, permission_.isTrusted()});
  }
  std::ranges::sort(all, {}, &Entry::name);
  return all;
}

std::vector<std::string> AccessibilityList::applicationsNotListed() const {
  const std::vector<Entry> listed = entries();
  std::vector<std::string> missing;
  for (const char* const name : installedApplications) {
    if (std::ranges::find(listed, name, &Entry::name) == listed.end()) {
      missing.emplace_back(name);
    }
  }
  return missing;
}

void AccessibilityList::setAllowed(const std::string& name, bool isAllowed) {
  if (name == orvane) {
    if (permission_.isListed()) {
      permission_.setTrusted(isAllowed);
    }
    return;
  }
  const auto other = others_.find(name);
  if (other != others_.end()) {
    other->second = isAllowed;
  }
}

void AccessibilityList::add(const std::string& name) {
  if (name == orvane) {
    permission_.setTrusted(true);
  } else {
    others_[name] = true;
  }
}

void AccessibilityList::remove(const std::string& name) {
  if (name == orvane) {
    permission_.unlist();
  } else {
    others_.erase(name);
  }
}

std::string AccessibilityList::applicationOf(const std::string& fileUrl) {
  std::filesystem::path path = fileUrl;
  if (!path.has_filename()) {
    path = path.parent_path();
  }
  const bool isBundle =
      fileUrl.starts_with("file:") && path.has_parent_path() && path.extension() == ".app";
  return isBundle ? path.stem().string() : std::string();
}

}  // namespace orvane::desk
