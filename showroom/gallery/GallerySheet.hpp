// What the gallery shows: sheets, each with one kind of component in all its states.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "Orvane/model/OrvaneLanguage.hpp"
#include "Orvane/ui/views/View.hpp"

namespace orvane::showroom {

/// What somebody is doing with a component while its picture is taken.
enum class Hand : std::uint8_t {
  away,
  /// The pointer rests on it.
  over,
  /// The pointer holds it down.
  pressing,
  /// It was reached with the Tab key.
  tabbing,
};

struct GalleryItem {
  std::string caption;
  /// The component with the texts of a language; asked anew whenever the component is redrawn.
  std::function<ui::View(OrvaneLanguage)> make = nullptr;
  Hand hand = Hand::away;
  /// Set for a whole panel, and then in place of `make`: brings the current machine into the item's
  /// state and returns what makes the panel, on a model that it keeps. The texts are in the
  /// language that is stored on the machine.
  std::function<std::function<ui::View()>()> stage = nullptr;
};

struct GallerySheet {
  /// What the components lie on: the main window's surface, a panel on it, the settings' surface,
  /// an open menu, or the plain background of a dialogue. A whole panel lies on nothing but the
  /// desktop, in a window of its own.
  enum class Ground : std::uint8_t {
    window,
    panel,
    settings,
    menu,
    dialogue,
    mainWindow,
    settingsWindow
  };

  /// Of the file, without its ending.
  std::string name;
  std::string title;
  Ground ground = Ground::panel;
  /// Whether the items differ between the languages.
  bool hasTexts = true;
  /// Items in a row.
  std::size_t columns = 8;
  std::vector<GalleryItem> items;
};

/// Every sheet, in the order in which they are written.
[[nodiscard]] std::vector<GallerySheet> gallerySheets();

/// The sheets of the main panel's parts, of both panels' buttons, of the settings' other parts, of
/// the colours, of the menu's parts, of the permission's dialogues, and of whole panels; together
/// they are all.
[[nodiscard]] std::vector<GallerySheet> mainPanelSheets();
[[nodiscard]] std::vector<GallerySheet> buttonSheets();
[[nodiscard]] std::vector<GallerySheet> settingsSheets();
[[nodiscard]] std::vector<GallerySheet> paletteSheets();
[[nodiscard]] std::vector<GallerySheet> menuSheets();
[[nodiscard]] std::vector<GallerySheet> dialogueSheets();
[[nodiscard]] std::vector<GallerySheet> panelSheets();

/// The sheet of that name; there must be one.
[[nodiscard]] GallerySheet gallerySheetNamed(const std::string& name);

}  // namespace orvane::showroom
