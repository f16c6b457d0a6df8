// Hardware changes the simulated hardware and system: displays, Dock, permission, appearance,
// language, and the application's process.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "desk/application/ApplicationHost.hpp"
#include "desk/machine/Machine.hpp"

namespace orvane::showroom {

/// A choice of preferred languages, best first, and locale.
struct LanguageList {
  const char* title;
  std::vector<std::string> preferred;
  const char* locale;
};

/// Each change runs the machine's due tasks. Machine and application must outlive it.
class Hardware {
 public:
  Hardware(desk::Machine& machine, desk::ApplicationHost& application)
      : machine_(machine), application_(application) {}

  [[nodiscard]] desk::Machine& machine() { return machine_; }
  [[nodiscard]] const desk::Machine& machine() const { return machine_; }
  [[nodiscard]] const desk::ApplicationHost& application() const { return application_; }

  [[nodiscard]] bool canAttachDisplay() const;
  /// Attaches the next standard display, if any is left.
  void attachDisplay();
  /// A number without a display is ignored, here and in makeMain().
  void detachDisplay(std::uint32_t number);
  void makeMain(std::uint32_t number);

  void setEdge(desk::DockEdge edge);
  void setAutoHides(bool hides);

  void setTrusted(bool trusted);
  void setDark(bool isDark);
  void setWallpaper(desk::Appearance::Wallpaper wallpaper);
  [[nodiscard]] static const std::vector<LanguageList>& languageLists();
  /// The index in languageLists() of the present setting; none if it is not among them.
  [[nodiscard]] std::optional<std::size_t> languageList() const;
  /// An index out of range is ignored.
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
