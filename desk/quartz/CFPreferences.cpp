// Preferences, as seen by the application's process.
#include <memory>
#include <optional>
#include <string>

#include "desk/machine/Machine.hpp"
#include "desk/quartz/CFObjects.hpp"
#include "desk/quartz/Utf8.hpp"

using orvane::desk::Machine;
using orvane::desk::ObjectRegistry;
using orvane::desk::Preferences;
using orvane::desk::PropertyValue;
using orvane::desk::textOf;

const CFStringRef kCFPreferencesCurrentUser = CFSTR("kCFPreferencesCurrentUser");
const CFStringRef kCFPreferencesAnyHost = CFSTR("kCFPreferencesAnyHost");
const CFStringRef kCFPreferencesCurrentHost = CFSTR("kCFPreferencesCurrentHost");

namespace {

CFPropertyListRef constantBoolean(bool value) {
  static __CFBoolean yes(true);
  static __CFBoolean no(false);
  ObjectRegistry::addConstant(yes);
  ObjectRegistry::addConstant(no);
  return value ? &yes : &no;
}

/// An object that the caller owns; null for no value.
CFPropertyListRef copyOf(const std::optional<PropertyValue>& value) {
  if (!value) {
    return nullptr;
  }
  ObjectRegistry& objects = Machine::current().objects;
  if (const auto* const text = std::get_if<std::string>(&*value)) {
    return orvane::desk::Utf8::isValid(*text) ? objects.add(std::make_unique<__CFString>(*text))
                                              : nullptr;
  }
  if (const auto* const truth = std::get_if<bool>(&*value)) {
    return constantBoolean(*truth);
  }
  return objects.add(std::make_unique<__CFNumber>(std::get<double>(*value)));
}

}  // namespace

Boolean CFPreferencesAppSynchronize(CFStringRef applicationID) {
  const std::string* const application = textOf(applicationID, "CFPreferencesAppSynchronize");
  if (application == nullptr) {
    return 0;
  }
  Machine::current().preferences.synchronise(*application);
  return 1;
}

CFPropertyListRef CFPreferencesCopyValue(CFStringRef key, CFStringRef applicationID,
                                         CFStringRef userName, CFStringRef hostName) {
  constexpr const char* operation = "CFPreferencesCopyValue";
  const std::string* const keyText = textOf(key, operation);
  const std::string* const application = textOf(applicationID, operation);
  const std::string* const user = textOf(userName, operation);
  const std::string* const host = textOf(hostName, operation);
  if (keyText == nullptr || application == nullptr || user == nullptr || host == nullptr) {
    return nullptr;
  }
  const Preferences::Domain domain{
      *application,
      *user == "kCFPreferencesCurrentUser" ? Preferences::User::current : Preferences::User::any,
      *host == "kCFPreferencesCurrentHost" ? Preferences::Host::current : Preferences::Host::any};
  return copyOf(Machine::current().preferences.seen(domain, *keyText));
}

CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef applicationID) {
  const std::string* const keyText = textOf(key, "CFPreferencesCopyAppValue");
  const std::string* const application = textOf(applicationID, "CFPreferencesCopyAppValue");
  if (keyText == nullptr || application == nullptr) {
    return nullptr;
  }
  return copyOf(Machine::current().preferences.seen(*application, *keyText));
}
