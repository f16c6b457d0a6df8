// Announcements on the desk: the window server keeps them in order.
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
