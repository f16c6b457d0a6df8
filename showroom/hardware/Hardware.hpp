// Hardware is what a person does to the Mac itself, and not to a program on it: plugs displays,
// moves the Dock, grants the permission, starts and ends the application.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "desk/application/ApplicationHost.hpp"
#include "desk/machine/Machine.hpp"

namespace orvane::showroom {

/// A list of languages that the Mac can be set to, best first, with the region that goes with it.
struct LanguageList {
  const char* title;
  std::vector<std::string> preferred;
  const char* locale;
};

/// After each change the machine has done all that is due. Machine and application outlive it.
class Hardware {
 public:
  Hardware(desk::Machine& machine, desk::ApplicationHost& application)
      : machine_(machine), application_(application) {}

  [[nodiscard]] desk::Machine& machine() { return machine_; }
  [[nodiscard]] const desk::Machine& machine() const { return machine_; }
  [[nodiscard]] const desk::ApplicationHost& application() const { return application_; }

  [[nodiscard]] bool canAttachDisplay() const;
  /// The next of the standard displays; nothing when all are attached.
  void attachDisplay();
  /// Nothing for a display that is not there.
  void detachDisplay(std::uint32_t number);
  void makeMain(std::uint32_t number);

  void setEdge(desk::DockEdge edge);
  void setAutoHides(bool hides);

  void setTrusted(bool trusted);
  void setDark(bool isDark);
  void setWallpaper(desk::Appearance::Wallpaper wallpaper);
  [[nodiscard]] static const std::vector<LanguageList>& languageLists();
  /// The place in languageLists of what the Mac is set to; none when it is another list.
  [[nodiscard]] std::optional<std::size_t> languageList() const;
  /// Nothing for a place that is not in languageLists.
  void setLanguageList(std::size_t index);

  [[nodiscard]] bool isRunning() const { return application_.isRunning(); }
  void launch();
  void terminate();
  void crash();
  void reopen();

  [[nodiscard]] bool showsZones() const { return showsZones_; }
  void setShowsZones(bool shows) { showsZones_ = shows; }

 private:
  desk::Machine& machine_;
  desk::ApplicationHost& application_;
  bool showsZones_ = true;
};

}  // namespace orvane::showroom
