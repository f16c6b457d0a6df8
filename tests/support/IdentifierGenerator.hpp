// Random language and locale identifiers, most of them nearly valid, and whether they name a
// language.
#pragma once

#include <numeric>
#include <regex>
#include <string>
#include <vector>

#include <rapidcheck.h>

namespace orvane {

inline rc::Gen<std::string> genIdentifier() {
  namespace gen = rc::gen;
  const auto blank = gen::element<std::string>("", "", "", " ", "\n", "\t ", "\r\n");
  const auto language = gen::element<std::string>("zh", "zh", "ZH", "zH", "en", "EN", "e", "z",
                                                  "zhx", "english", "fr", "de", "");
  const auto tail =
      gen::scale(0.04, gen::container<std::vector<std::string>>(gen::element<std::string>(
                           "-", "_", "-", "_", "Hant", "hant", "Hans", "TW", "tw", "HK", "mo", "CN",
                           "x", " ", "中")));
  return gen::apply(
      [](const std::string& before, const std::string& name, const std::vector<std::string>& rest,
         const std::string& after) {
        return std::accumulate(rest.begin(), rest.end(), before + name) + after;
      },
      blank, language, tail, blank);
}

/// Whether the identifier names the language, by a regular expression.
inline bool namesChinese(const std::string& identifier) {
  static const std::regex pattern(R"(\s*zh(?:\s*|[-_][\s\S]*))", std::regex::icase);
  return std::regex_match(identifier, pattern);
}
inline bool namesEnglish(const std::string& identifier) {
  static const std::regex pattern(R"(\s*en(?:\s*|[-_][\s\S]*))", std::regex::icase);
  return std::regex_match(identifier, pattern);
}

inline rc::Gen<std::vector<std::string>> genIdentifiers() {
  return rc::gen::scale(0.05, rc::gen::container<std::vector<std::string>>(genIdentifier()));
}

}  // namespace orvane
