// What the gallery shows: sheets, each with one kind of component in all its states.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "Orvane/model/OrvaneLanguage.hpp"
#include "Orvane/ui/View.hpp"

namespace orvane::desk {

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
  std::function<ui::View(OrvaneLanguage)> make;
  Hand hand = Hand::away;
};

struct GallerySheet {
  /// What the components lie on: the window's surface, a panel on it, an open menu, or the plain
  /// background of a dialogue.
  enum class Ground : std::uint8_t { window, panel, menu, dialogue };

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

/// The sheets of the main panel's parts, of the menu's, and of the settings panel and the
/// permission's dialogues; together they are all.
[[nodiscard]] std::vector<GallerySheet> mainPanelSheets();
[[nodiscard]] std::vector<GallerySheet> buttonSheets();
[[nodiscard]] std::vector<GallerySheet> menuSheets();
[[nodiscard]] std::vector<GallerySheet> dialogueSheets();

/// The sheet of that name; there must be one.
[[nodiscard]] GallerySheet gallerySheetNamed(const std::string& name);

}  // namespace orvane::desk
