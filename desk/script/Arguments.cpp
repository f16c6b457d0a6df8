// Arguments parses the words after a command's name.
#include "desk/script/Arguments.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>
#include <utility>

#include "desk/hand/InQuotes.hpp"
#include "desk/script/Decimal.hpp"

namespace orvane::desk::script {

namespace {

/// In quotes; long text is cut.
std::string excerpt(std::string_view text) {
  constexpr std::size_t shownBytes = 60;
  std::string shown(text);
  if (text.size() > shownBytes) {
    // Not within a character.
    std::size_t end = shownBytes;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) {
      --end;
    }
    shown = std::string(text.substr(0, end)) + "...";
  }
  return inQuotes(shown);
}

std::string joined(std::span<const std::string_view> choices) {
  std::string list;
  for (const std::string_view choice : choices) {
    list += list.empty() ? "" : ", ";
    list += choice;
  }
  return list;
}

}  // namespace

std::optional<std::size_t> Arguments::next() const {
  const auto found = std::ranges::find(isRead_, false);
  return found != isRead_.end()
             ? std::optional(static_cast<std::size_t>(std::distance(isRead_.begin(), found)))
             : std::nullopt;
}

std::string Arguments::text(std::string_view what) {
  const std::optional<std::size_t> place = next();
  if (!place) {
    report(std::string(what) + " is missing");
    return {};
  }
  isRead_[*place] = true;
  const Word& word = words_[*place];
  if (word.problem) {
    report(*word.problem);
    return {};
  }
  return word.text;
}

double Arguments::number(std::string_view what, const Given& given) {
  const std::string word = given ? *given : text(what);
  const std::optional<double> value = parseDecimal(word);
  if (!value) {
    report(std::string(what) + " must be a decimal number, not " + excerpt(word));
  }
  return value.value_or(0);
}

double Arguments::coordinate(std::string_view what, const Given& given) {
  const std::string word = given ? *given : text(what);
  const double value = number(what, word);
  if (std::abs(value) > coordinateLimit) {
    report(std::string(what) + " is too large: " + excerpt(word));
  }
  return value;
}

std::uint32_t Arguments::displayNumber(std::string_view what) {
  constexpr std::int64_t highest = std::numeric_limits<std::uint32_t>::max();
  return static_cast<std::uint32_t>(integer(what, 0, highest));
}

std::int64_t Arguments::integer(std::string_view what, std::int64_t lowest, std::int64_t highest,
                                const Given& given) {
  const std::string word = given ? *given : text(what);
  const std::optional<std::int64_t> value = parseInteger(word);
  if (value && *value >= lowest && *value <= highest) {
    return *value;
  }
  report(std::string(what) + " must be a whole number from " + std::to_string(lowest) + " to " +
         std::to_string(highest) + ", not " + excerpt(word));
  return lowest;
}

std::int64_t Arguments::nanoseconds(std::string_view what, std::int64_t highest) {
  const std::string word = text(what);
  if (!parseDecimal(word)) {
    report(std::string(what) + " must be a decimal number of seconds, not " + excerpt(word));
    return 0;
  }
  const std::optional<std::int64_t> value = parseNanoseconds(word);
  if (!value || *value < 0 || *value > highest) {
    report(std::string(what) + " must be from 0 to " + secondsText(highest) + " seconds, not " +
           excerpt(word));
    return 0;
  }
  return *value;
}

CGRect Arguments::rectangle(std::string_view what, const Given& given) {
  const std::string word = given ? *given : text(what);
  const std::vector<std::string> parts = split(word, ',');
  std::array<double, 4> numbers{};
  if (parts.size() != numbers.size()) {
    report(std::string(what) + " must be X,Y,W,H, not " + excerpt(word));
    return {};
  }
  std::ranges::transform(parts, numbers.begin(),
                         [&](const std::string& part) { return coordinate(what, part); });
  return CGRectMake(numbers[0], numbers[1], numbers[2], numbers[3]);
}

std::size_t Arguments::choice(std::string_view what, std::span<const std::string_view> choices) {
  const std::string word = text(what);
  const auto found = std::ranges::find(choices, word);
  if (found == choices.end()) {
    report(std::string(what) + " must be one of " + joined(choices) + ", not " + excerpt(word));
    return 0;
  }
  return static_cast<std::size_t>(std::distance(choices.begin(), found));
}

std::optional<std::string> Arguments::option(std::string_view key) {
  for (std::size_t index = 0; index < words_.size(); ++index) {
    const Word& word = words_[index];
    if (!isRead_[index] && word.text.size() > key.size() && word.text.starts_with(key) &&
        word.text[key.size()] == '=') {
      isRead_[index] = true;
      if (word.problem) {
        report(*word.problem);
      }
      return word.text.substr(key.size() + 1);
    }
  }
  return std::nullopt;
}

bool Arguments::flag(std::string_view word) {
  for (std::size_t index = 0; index < words_.size(); ++index) {
    if (!isRead_[index] && words_[index].text == word) {
      isRead_[index] = true;
      return true;
    }
  }
  return false;
}

bool Arguments::keyword(std::string_view word) {
  const std::optional<std::size_t> place = next();
  if (!place || words_[*place].text != word) {
    return false;
  }
  isRead_[*place] = true;
  return true;
}

std::string_view Arguments::restAsWritten(std::string_view what) {
  const std::optional<std::size_t> place = next();
  if (!place) {
    report(std::string(what) + " is missing");
    return {};
  }
  std::fill(isRead_.begin(), isRead_.end(), true);
  const std::size_t begin = words_[*place].begin;
  return line_.substr(begin, words_.back().end - begin);
}

std::string Arguments::restAsText() {
  std::string rest;
  bool isFirst = true;
  while (!isEmpty()) {
    rest += isFirst ? "" : " ";
    rest += text("the text");
    isFirst = false;
  }
  return rest;
}

void Arguments::report(std::string problem) {
  if (!problem_) {
    problem_ = std::move(problem);
  }
}

Problem Arguments::finish() {
  if (const std::optional<std::size_t> place = next()) {
    report("unexpected " + excerpt(words_[*place].text));
  }
  return problem_;
}

std::vector<std::string> split(std::string_view text, char separator) {
  std::vector<std::string> parts;
  if (text.empty()) {
    return parts;
  }
  std::size_t begin = 0;
  while (true) {
    const std::size_t end = text.find(separator, begin);
    parts.emplace_back(text.substr(begin, end - begin));
    if (end == std::string_view::npos) {
      return parts;
    }
    begin = end + 1;
  }
}

}  // namespace orvane::desk::script
