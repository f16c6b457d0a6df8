# Writes a C++ source with the content of files as a list of artwork.
#   cmake -DFOLDER=... -DSUFFIX=... -DNAMES=a|b|c -DFUNCTION=... -DOUTPUT=... -P EmbedArtwork.cmake
string(REPLACE "|" ";" names "${NAMES}")
list(SORT names COMPARE STRING)
set(entries "")
foreach(name IN LISTS names)
  set(file "${FOLDER}/${name}${SUFFIX}")
  file(READ "${file}" bytes HEX)
  string(REGEX REPLACE "(..)" "\\\\x\\1" bytes "${bytes}")
  file(SIZE "${file}" size)
  string(APPEND entries "    {\"${name}\", {\"${bytes}\", ${size}}},\n")
endforeach()
file(WRITE "${OUTPUT}" "// Generated from ${FOLDER}; edit the files there.
#include \"desk/canvas/Artwork.hpp\"

namespace orvane::desk {
namespace {
constexpr Artwork artworks[] = {
${entries}};
}  // namespace

std::span<const Artwork> ${FUNCTION}() { return artworks; }
}  // namespace orvane::desk
")
