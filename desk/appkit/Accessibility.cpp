// On the desk what is spoken is remembered, in the order in which it was said.
#include "Orvane/platform/appkit/Accessibility.hpp"

#include "desk/quartz/Utf8.hpp"
#include "desk/windows/WindowServer.hpp"

namespace orvane::appkit {

void Accessibility::announce(const std::string& text) {
  if (!text.empty() && desk::Utf8::isValid(text)) {
    desk::WindowServer::current().announcements.push_back(text);
  }
}

}  // namespace orvane::appkit
