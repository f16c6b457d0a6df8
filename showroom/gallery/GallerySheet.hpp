// The gallery's sheets, each with one kind of component in all its states.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "Orvane/model/OrvaneLanguage.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane::showroom {

/// What the user does with a component in its picture.
enum class Interaction : std::uint8_t {
  none,
  /// The pointer is over it.
  hovered,
  /// The pointer presses it.
  pressed,
  /// The Tab key has moved the focus to it.
  focused,
};

struct GalleryItem {
  std::string caption;
  /// Makes the component in a language; called at every rebuild.
  std::function<ui::View(OrvaneLanguage)> make = nullptr;
  Interaction interaction = Interaction::none;
  /// For a whole panel, in place of `make`: brings the current machine into the item's state and
  /// returns a function that makes the panel and owns its model. The texts are in the machine's
  /// stored language.
  std::function<std::function<ui::View()>()> stage = nullptr;
};

struct GallerySheet {
  /// The background of the components: the main window, a panel on it, the settings, an open menu
  /// or a dialogue. The last two show a whole panel in its own window on the desktop.
  enum class Background : std::uint8_t {
    window,
    panel,
    settings,
    menu,
    dialogue,
    mainWindow,
    settingsWindow
  };

  /// The file's name without suffix.
  std::string name;
  std::string title;
  Background background = Background::panel;
  /// Whether the items have texts, and so differ between the languages.
  bool hasTexts = true;
  /// Items in a row.
  std::size_t columns = 8;
  std::vector<GalleryItem> items;
};

/// All sheets, in the order in which they are written.
[[nodiscard]] std::vector<GallerySheet> gallerySheets();

/// The sheets by part of the application; gallerySheets() joins them.
[[nodiscard]] std::vector<GallerySheet> mainPanelSheets();
[[nodiscard]] std::vector<GallerySheet> buttonSheets();
[[nodiscard]] std::vector<GallerySheet> settingsSheets();
[[nodiscard]] std::vector<GallerySheet> paletteSheets();
[[nodiscard]] std::vector<GallerySheet> menuSheets();
[[nodiscard]] std::vector<GallerySheet> dialogueSheets();
[[nodiscard]] std::vector<GallerySheet> panelSheets();

/// The sheet with this name, which must exist.
[[nodiscard]] GallerySheet gallerySheetNamed(const std::string& name);

}  // namespace orvane::showroom
