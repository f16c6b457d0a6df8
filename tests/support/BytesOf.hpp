// The bytes of a file, for comparisons.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace orvane {

/// Empty when the file cannot be read.
inline std::string bytesOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace orvane
