# Writes the C++ source that holds the SVG drawings of the symbols.
#   cmake -DFOLDER=... -DNAMES=a|b|c -DOUTPUT=... -P EmbedSymbols.cmake
string(REPLACE "|" ";" names "${NAMES}")
list(SORT names COMPARE STRING)
set(entries "")
foreach(name IN LISTS names)
  file(READ "${FOLDER}/${name}.svg" svg)
  string(APPEND entries "    {\"${name}\", R\"svg(${svg})svg\"},\n")
endforeach()
file(WRITE "${OUTPUT}" "// Generated from desk/symbols; edit the drawings there.
#include \"desk/canvas/SymbolArtwork.hpp\"

namespace orvane::desk {
namespace {
constexpr SymbolArtwork symbols[] = {
${entries}};
}  // namespace

std::span<const SymbolArtwork> symbolArtworks() { return symbols; }
}  // namespace orvane::desk
")
