// Which texts are valid URLs, and the handling of requests to open them.
#include "desk/machine/Links.hpp"

#include <algorithm>

#include <glib.h>

namespace orvane::desk {

namespace {

/// RFC 3986, section 2.3.
bool isUnreserved(char character) {
  return g_ascii_isalnum(character) ||
         std::string_view("-._~").find(character) != std::string_view::npos;
}

/// RFC 3986, section 2.2, without the number sign, which may occur only once.
bool isReserved(char character) {
  return std::string_view(":/?[]@!$&'()*+,;=").find(character) != std::string_view::npos;
}

bool isScheme(std::string_view text) {
  return !text.empty() && g_ascii_isalpha(text.front()) &&
         std::all_of(text.begin(), text.end(), [](char character) {
           return g_ascii_isalnum(character) || character == '+' || character == '-' ||
                  character == '.';
         });
}

}  // namespace

bool Links::formsURL(std::string_view text) {
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos || !isScheme(text.substr(0, colon))) {
    return false;
  }
  const std::string_view rest = text.substr(colon + 1);
  if (std::count(rest.begin(), rest.end(), '#') > 1) {
    return false;
  }
  for (std::size_t index = 0; index < rest.size(); ++index) {
    const char character = rest[index];
    if (character == '%') {
      if (index + 2 >= rest.size() || !g_ascii_isxdigit(rest[index + 1]) ||
          !g_ascii_isxdigit(rest[index + 2])) {
        return false;
      }
      index += 2;
    } else if (!isUnreserved(character) && !isReserved(character) && character != '#') {
      return false;
    }
  }
  return true;
}

std::string Links::percentEncoded(std::string_view text, std::string_view allowed) {
  // GLib's function leaves a null character as it is.
  constexpr std::string_view hexDigits = "0123456789ABCDEF";
  std::string encoded;
  for (const char character : text) {
    if (isUnreserved(character) || allowed.find(character) != std::string_view::npos) {
      encoded += character;
    } else {
      const auto byte = static_cast<unsigned char>(character);
      encoded += '%';
      encoded += hexDigits[byte >> 4U];
      encoded += hexDigits[byte & 15U];
    }
  }
  return encoded;
}

std::string Links::fileURL(std::string_view absolutePath) {
  // RFC 3986, section 3.3.
  return "file://" + percentEncoded(absolutePath, "/:@!$&'()*+,=");
}

bool Links::openURL(std::string_view url) {
  return formsURL(url) && note(std::string(url), url.starts_with("file:"));
}

bool Links::openFile(std::string_view path) {
  return path.starts_with('/') && note(fileURL(path), true);
}

bool Links::note(std::string url, bool isFile) {
  const bool isRefused = std::any_of(
      refusedPrefixes_.begin(), refusedPrefixes_.end(),
      [&url](const std::string& prefix) { return url.compare(0, prefix.size(), prefix) == 0; });
  opened_.push_back({std::move(url), isFile, !isRefused});
  if (openedCallback_) {
    const Opened link = opened_.back();
    openedCallback_(link);
  }
  return !isRefused;
}

}  // namespace orvane::desk
