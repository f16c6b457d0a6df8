// The links and files that the application has asked to open.
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

  /// False, and not recorded, when `url` is not a valid URL with a scheme (RFC 3986). False, but
  /// recorded, when it begins with a refused prefix.
  bool openURL(std::string_view url);
  /// False, and not recorded, when the path is not absolute.
  bool openFile(std::string_view path);

  void refuse(std::string prefix) { refusedPrefixes_.push_back(std::move(prefix)); }
  /// Removes all refused prefixes.
  void acceptAll() { refusedPrefixes_.clear(); }

  /// All requests since the machine was switched on, in order.
  [[nodiscard]] const std::vector<Opened>& opened() const { return opened_; }

  /// `opened` is called after each request, for the program that handles the link.
  void onOpened(std::function<void(const Opened& link)> opened) {
    openedCallback_ = std::move(opened);
  }

  [[nodiscard]] static bool formsURL(std::string_view text);
  [[nodiscard]] static std::string fileURL(std::string_view absolutePath);
  /// The text with the other characters escaped (RFC 3986, section 2.1).
  [[nodiscard]] static std::string percentEncoded(std::string_view text, std::string_view allowed);

 private:
  bool note(std::string url, bool isFile);

  std::vector<std::string> refusedPrefixes_;
  std::vector<Opened> opened_;
  std::function<void(const Opened&)> openedCallback_;
};

}  // namespace orvane::desk
