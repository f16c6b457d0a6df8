// CFRef owns one reference to a Core Foundation object, as a Create or Copy function returns it,
// and releases it exactly once: when the CFRef is destroyed or assigned another object.
#pragma once

#include <utility>

// Declared as in Core Foundation's headers, so that this header needs none of them.
extern "C" void CFRelease(const void* object);

namespace orvane {

/// `Ref` is a Core Foundation reference type such as `CFStringRef`. An empty CFRef holds a null
/// reference; Create and Copy functions may return null, so test before use.
template <typename Ref>
class CFRef {
 public:
  CFRef() = default;

  /// Takes over the caller's reference, as returned by a Create or Copy function.
  [[nodiscard]] static CFRef owning(Ref created) { return CFRef(created); }

  CFRef(const CFRef&) = delete;
  CFRef& operator=(const CFRef&) = delete;

  CFRef(CFRef&& other) noexcept : ref_(std::exchange(other.ref_, nullptr)) {}
  CFRef& operator=(CFRef&& other) noexcept {
    if (this != &other) {
      reset();
      ref_ = std::exchange(other.ref_, nullptr);
    }
    return *this;
  }

  ~CFRef() { reset(); }

  void reset() {
    if (Ref released = std::exchange(ref_, nullptr); released != nullptr) {
      CFRelease(released);
    }
  }

  /// The object, still owned by this CFRef.
  [[nodiscard]] Ref get() const { return ref_; }
  explicit operator bool() const { return ref_ != nullptr; }

 private:
  explicit CFRef(Ref created) : ref_(created) {}

  Ref ref_ = nullptr;
};

}  // namespace orvane
