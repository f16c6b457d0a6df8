// User defaults on the desk: written straight to the machine's disk.
#include "Orvane/platform/appkit/UserDefaults.hpp"

#include "desk/machine/Machine.hpp"

namespace orvane::appkit {

namespace {

template <typename Value>
std::optional<Value> valueOf(std::string_view key) {
  const auto value = desk::Machine::current().userDefaults.value(key);
  const auto* const typed = value ? std::get_if<Value>(&*value) : nullptr;
  return typed == nullptr ? std::nullopt : std::optional(*typed);
}

/// Writes from the destructors of an ending process are dropped: a real process ends without
/// running them.
bool canWrite() {
  return desk::Machine::current().process.state() != desk::Process::State::ending;
}

}  // namespace

std::optional<std::string> UserDefaults::string(std::string_view key) {
  return valueOf<std::string>(key);
}

std::optional<bool> UserDefaults::boolean(std::string_view key) {
  return valueOf<bool>(key);
}

void UserDefaults::setString(std::string_view key, std::string_view value) {
  desk::recordCall("UserDefaults.setString", {key, value});
  if (canWrite()) {
    desk::Machine::current().userDefaults.set(key, std::string(value));
  }
}

void UserDefaults::setBoolean(std::string_view key, bool value) {
  desk::recordCall("UserDefaults.setBoolean", {key, value});
  if (canWrite()) {
    desk::Machine::current().userDefaults.set(key, value);
  }
}

void UserDefaults::remove(std::string_view key) {
  if (canWrite()) {
    desk::Machine::current().userDefaults.remove(key);
  }
}

}  // namespace orvane::appkit
