// An image for the window system's own controls; NSImage on a Mac.
#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "Orvane/platform/Quartz.hpp"

namespace orvane::appkit {

/// The symbol weights in use.
enum class SymbolWeight { regular };

/// A handle; copies refer to the same image. Main thread only.
class Image {
 public:
  /// The system's symbol of that name at a size in points; none when there is no such symbol.
  [[nodiscard]] static std::optional<Image> systemSymbol(std::string_view name,
                                                         std::string_view accessibilityDescription,
                                                         double pointSize, SymbolWeight weight);

  /// A template image is tinted by the control that shows it.
  void setTemplate(bool isTemplate);
  void setSize(CGSize size);

  struct Implementation;
  [[nodiscard]] const std::shared_ptr<Implementation>& implementation() const {
    return implementation_;
  }

 private:
  explicit Image(std::shared_ptr<Implementation> implementation);
  std::shared_ptr<Implementation> implementation_;
};

}  // namespace orvane::appkit
