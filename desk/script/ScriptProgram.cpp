// ScriptProgram runs scripts: the program behind "orvane-desk script".
#include "desk/script/ScriptProgram.hpp"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>
#include <utility>

namespace orvane::desk::script {

namespace {

constexpr const char* standardInput = "-";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// Without a byte-order mark and a carriage return, which other editors write.
std::string_view cleaned(std::string_view line, std::int64_t lineNumber) {
  if (lineNumber == 1 && line.starts_with(byteOrderMark)) {
    line.remove_prefix(byteOrderMark.size());
  }
  if (line.ends_with('\r')) {
    line.remove_suffix(1);
  }
  return line;
}

}  // namespace

ScriptProgram::ScriptProgram(Settings settings, std::istream& input, std::ostream& output,
                             std::ostream& errors)
    : settings_(std::move(settings)), input_(input), output_(output), errors_(errors) {}

ScriptProgram::Status ScriptProgram::runFiles(const std::vector<std::string>& files) {
  Status worst = held;
  for (const std::string& file : files) {
    worst = std::max(worst, runFile(file));
    if (worst == broken) {
      break;
    }
  }
  return worst;
}

ScriptProgram::Status ScriptProgram::runFile(const std::string& file) {
  if (file == standardInput) {
    return run(input_, file);
  }
  // Opening a directory succeeds; only reading from it fails.
  std::error_code error;
  if (std::filesystem::is_directory(file, error)) {
    return reportUnreadable(file, "it is a directory");
  }
  errno = 0;
  std::ifstream script(file, std::ios::binary);
  if (!script) {
    return reportUnreadable(file, errno != 0 ? std::strerror(errno) : "it cannot be opened");
  }
  return run(script, file);
}

ScriptProgram::Status ScriptProgram::reportUnreadable(const std::string& file,
                                                      const std::string& reason) {
  errors_ << file << ":0: the file cannot be read: " << reason << std::endl;
  return broken;
}

ScriptProgram::Status ScriptProgram::run(std::istream& script, const std::string& name) {
  Session session(settings_.prepare);
  Status status = held;
  std::int64_t lineNumber = 0;
  const auto report = [&](const std::string& text) {
    output_.flush();
    errors_ << name << ':' << lineNumber << ": " << text << std::endl;
  };
  ScriptContext context{.session = session,
                        .inspectables = settings_.inspectables,
                        .output = output_,
                        .limits = settings_.limits,
                        .pictureWriter = settings_.pictureWriter,
                        .expectationFailed = [&](const std::string& text) {
                          status = failed;
                          report(text);
                        }};
  std::string line;
  while (status != broken && std::getline(script, line)) {
    ++lineNumber;
    if (const Problem problem = settings_.commands.run(cleaned(line, lineNumber), context)) {
      report(*problem);
      status = broken;
    }
    output_.flush();
  }
  if (script.bad()) {
    report("reading the file failed");
    status = broken;
  }
  session.end();
  for (const std::string& problem : session.problems()) {
    report(problem);
  }
  return status;
}

}  // namespace orvane::desk::script
