// Opening links on the desk: the machine records the requests.
#include "Orvane/platform/appkit/Workspace.hpp"

#include <utility>

#include "Orvane/platform/appkit/MainQueue.hpp"
#include "desk/machine/Machine.hpp"
#include "desk/quartz/Utf8.hpp"

namespace orvane::appkit {

namespace {

void report(bool isOpened, std::function<void(bool isOpened)> completed) {
  if (completed) {
    MainQueue::async([isOpened, completed = std::move(completed)] { completed(isOpened); });
  }
}

}  // namespace

void Workspace::openURL(std::string_view url, std::function<void(bool isOpened)> completed) {
  report(desk::Machine::current().links.openURL(url), std::move(completed));
}

void Workspace::openFile(std::string_view path, std::function<void(bool isOpened)> completed) {
  report(desk::Machine::current().links.openFile(path), std::move(completed));
}

std::optional<std::string> Workspace::percentEncodedForQuery(std::string_view text) {
  if (!desk::Utf8::isValid(text)) {
    return std::nullopt;
  }
  // NSCharacterSet.URLQueryAllowedCharacterSet: the query of RFC 3986, section 3.4.
  return desk::Links::percentEncoded(text, "!$&'()*+,/:;=?@");
}

}  // namespace orvane::appkit
