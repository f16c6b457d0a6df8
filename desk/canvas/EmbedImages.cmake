# Writes the C++ source that holds the application's images as PNGs at two pixels per point.
#   cmake -DFOLDER=... -DNAMES=a|b|c -DOUTPUT=... -P EmbedImages.cmake
string(REPLACE "|" ";" names "${NAMES}")
set(arrays "")
set(entries "")
set(count 0)
foreach(name IN LISTS names)
  file(READ "${FOLDER}/${name}@2x.png" bytes HEX)
  string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
  string(APPEND arrays "constexpr std::uint8_t image${count}[] = {${bytes}};\n")
  string(APPEND entries "    {\"${name}\", image${count}},\n")
  math(EXPR count "${count} + 1")
endforeach()
file(WRITE "${OUTPUT}" "// Generated from Orvane/resources; edit the drawings there.
#include \"desk/canvas/ImageArtwork.hpp\"

namespace orvane::desk {
namespace {
${arrays}
constexpr ImageArtwork images[] = {
${entries}};
}  // namespace

std::span<const ImageArtwork> imageArtworks() { return images; }
}  // namespace orvane::desk
")
