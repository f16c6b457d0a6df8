// Strings: UTF-8 in, UTF-8 out.
#include <cstring>
#include <map>
#include <memory>
#include <string_view>

#include "desk/machine/Machine.hpp"
#include "desk/quartz/CFObjects.hpp"
#include "desk/quartz/Utf8.hpp"

using orvane::desk::Machine;
using orvane::desk::ObjectKind;
using orvane::desk::ObjectRegistry;
using orvane::desk::textOf;
using orvane::desk::Utf8;

namespace orvane::desk {

const std::string* textOf(CFStringRef string, const char* operation) {
  const auto* const object = static_cast<const __CFString*>(
      Machine::current().objects.find(string, ObjectKind::string, operation));
  return object == nullptr ? nullptr : &object->text;
}

}  // namespace orvane::desk

CFTypeID CFStringGetTypeID() {
  return static_cast<CFTypeID>(ObjectKind::string);
}

CFStringRef CFStringCreateWithCString(CFAllocatorRef, const char* text, CFStringEncoding encoding) {
  Machine& machine = Machine::current();
  if (text == nullptr) {
    machine.faults.record("CFStringCreateWithCString: null instead of a text");
    return nullptr;
  }
  if (encoding != kCFStringEncodingUTF8 || !Utf8::isValid(text)) {
    return nullptr;
  }
  return machine.objects.add(std::make_unique<__CFString>(text));
}

CFIndex CFStringGetLength(CFStringRef string) {
  const std::string* const text = textOf(string, "CFStringGetLength");
  return text == nullptr ? 0 : static_cast<CFIndex>(Utf8::lengthInUtf16(*text));
}

CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding encoding) {
  // No UTF-16 unit needs more than three bytes: a character of four has two units.
  return encoding == kCFStringEncodingUTF8 ? length * 3 : -1;
}

Boolean CFStringGetCString(CFStringRef string, char* buffer, CFIndex bufferSize,
                           CFStringEncoding encoding) {
  const std::string* const text = textOf(string, "CFStringGetCString");
  if (text == nullptr || buffer == nullptr || encoding != kCFStringEncodingUTF8 ||
      bufferSize <= static_cast<CFIndex>(text->size())) {
    return 0;
  }
  std::memcpy(buffer, text->c_str(), text->size() + 1);
  return 1;
}

CFStringRef deskConstantString(const char* text) {
  static std::map<std::string, std::unique_ptr<__CFString>, std::less<>> constants;
  const auto known = constants.find(std::string_view(text));
  if (known != constants.end()) {
    return known->second.get();
  }
  auto constant = std::make_unique<__CFString>(text);
  ObjectRegistry::addConstant(*constant);
  return constants.emplace(text, std::move(constant)).first->second.get();
}
