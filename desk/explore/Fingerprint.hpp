// Fingerprint is a hash of the values that were added to it, in their order.
#pragma once

#include <bit>
#include <cstdint>
#include <string_view>

namespace orvane::desk::explore {

class Fingerprint {
 public:
  void add(std::string_view text) {
    for (const char character : text) {
      addByte(static_cast<unsigned char>(character));
    }
    add(static_cast<std::uint64_t>(text.size()));
  }
  void add(std::uint64_t number) {
    for (unsigned shift = 0; shift < 64; shift += 8) {
      addByte(static_cast<unsigned char>(number >> shift));
    }
  }
  void add(std::int64_t number) { add(static_cast<std::uint64_t>(number)); }
  void add(bool value) { addByte(value ? 1 : 0); }
  void add(double number) { add(std::bit_cast<std::uint64_t>(number)); }

  [[nodiscard]] std::uint64_t value() const { return hash_; }

 private:
  /// FNV-1a, 64 bits, with the constants of its authors.
  void addByte(unsigned char byte) { hash_ = (hash_ ^ byte) * 0x100000001B3ULL; }

  std::uint64_t hash_ = 0xCBF29CE484222325ULL;
};

}  // namespace orvane::desk::explore
