// Updates the menu's items, keeping those whose entries are of the same kind.
#include "Orvane/app/StatusMenu.hpp"

#include <algorithm>
#include <iterator>

#include "Orvane/ui/views/View.hpp"

namespace orvane {

namespace {

appkit::MenuItem itemFor(const StatusMenuEntry& entry,
                         const std::optional<appkit::HostingView>& view) {
  appkit::MenuItem item;
  item.view = view;
  if (const auto* row = std::get_if<StatusMenuRow>(&entry)) {
    item.title = row->title;
    item.isEnabled = row->isEnabled;
    item.isOn = row->isOn.value_or(row->isSelected);
    item.keepsMenuOpen = row->isOn.has_value();
    item.action = row->action;
  } else if (const auto* header = std::get_if<StatusMenuSectionHeader>(&entry)) {
    item.title = header->title;
    item.isEnabled = false;
  } else {
    item.isSeparator = true;
  }
  return item;
}

}  // namespace

CGSize StatusMenu::sizeOf(const StatusMenuEntry& entry) const {
  const auto* const row = std::get_if<StatusMenuRow>(&entry);
  return row != nullptr ? CGSizeMake(row->rowWidth, StatusMenuRow::rowHeight)
                        : CGSizeMake(headerWidth_, StatusMenuSectionHeader::height);
}

std::optional<appkit::HostingView> StatusMenu::viewOf(
    const std::shared_ptr<StatusMenuEntry>& entry) const {
  if (std::holds_alternative<StatusMenuSeparator>(*entry)) {
    return std::nullopt;
  }
  appkit::HostingView view([entry](const ui::Environment& /*environment*/) -> ui::View {
    if (const auto* row = std::get_if<StatusMenuRow>(entry.get())) {
      return *row;
    }
    return std::get<StatusMenuSectionHeader>(*entry);
  });
  const CGSize size = sizeOf(*entry);
  view.setFrame(CGRectMake(0, 0, size.width, size.height));
  return view;
}

void StatusMenu::show(const std::vector<StatusMenuEntry>& entries) {
  const auto isSameKind = [](const Shown& shown, const StatusMenuEntry& entry) {
    return shown.entry->index() == entry.index();
  };
  // Displays come and go in the middle; the entries above and below them stay.
  const std::size_t common = std::min(shown_.size(), entries.size());
  const std::size_t above = static_cast<std::size_t>(
      std::distance(entries.begin(), std::ranges::mismatch(shown_, entries, isSameKind).in2));
  std::size_t below = 0;
  while (below < common - above &&
         isSameKind(shown_[shown_.size() - 1 - below], entries[entries.size() - 1 - below])) {
    ++below;
  }
  while (shown_.size() > above + below) {
    remove(above);
  }
  for (std::size_t index = 0; index < entries.size(); ++index) {
    if (index < above || index >= entries.size() - below) {
      change(index, entries[index]);
    } else {
      insert(index, entries[index]);
    }
  }
}

void StatusMenu::insert(std::size_t index, const StatusMenuEntry& entry) {
  const auto kept = std::make_shared<StatusMenuEntry>(entry);
  const auto view = viewOf(kept);
  shown_.insert(shown_.begin() + static_cast<std::ptrdiff_t>(index), Shown{kept, view});
  menu_.insertItem(index, itemFor(entry, view));
}

void StatusMenu::change(std::size_t index, const StatusMenuEntry& entry) {
  Shown& shown = shown_[index];
  if (!shown.view) {
    return;
  }
  *shown.entry = entry;
  shown.view->setNeedsUpdate();
  menu_.changeItem(index, itemFor(entry, shown.view));
}

void StatusMenu::remove(std::size_t index) {
  shown_.erase(shown_.begin() + static_cast<std::ptrdiff_t>(index));
  menu_.removeItem(index);
}

}  // namespace orvane
