// Links and files that the application asked to have opened.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace orvane::desk {

class Links {
 public:
  struct Opened {
    /// For a file, its file URL.
    std::string url;
    bool isFile;
    bool wasAccepted;
  };

  /// False, and nothing noted, when `url` does not form a URL with a scheme (RFC 3986); false also
  /// when it begins with a refused prefix.
  bool openURL(std::string_view url);
  /// False, and nothing noted, when the path is not absolute.
  bool openFile(std::string_view path);

  void refuse(std::string prefix) { refusedPrefixes_.push_back(std::move(prefix)); }
  /// Everything is accepted again.
  void acceptAll() { refusedPrefixes_.clear(); }

  /// Everything asked for since the machine was switched on, in order.
  [[nodiscard]] const std::vector<Opened>& opened() const { return opened_; }

  /// Called after each of them, for the program that a link belongs to.
  void onOpened(std::function<void(const Opened& link)> opened) { told_ = std::move(opened); }

  [[nodiscard]] static bool formsURL(std::string_view text);
  [[nodiscard]] static std::string fileURL(std::string_view absolutePath);

 private:
  bool note(std::string url, bool isFile);

  std::vector<std::string> refusedPrefixes_;
  std::vector<Opened> opened_;
  std::function<void(const Opened&)> told_;
};

}  // namespace orvane::desk
