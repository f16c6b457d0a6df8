// The names of the roles.
#include "Orvane/ui/views/Semantics.hpp"

namespace orvane::ui {

const char* roleName(Role role) {
  switch (role) {
    case Role::group:
      return "group";
    case Role::staticText:
      return "text";
    case Role::heading:
      return "heading";
    case Role::image:
      return "image";
    case Role::button:
      return "button";
    case Role::toggle:
      return "toggle";
    case Role::radioButton:
      return "radio button";
    case Role::popUpButton:
      return "pop-up button";
    case Role::scrollArea:
      return "scroll area";
  }
  return "";
}

}  // namespace orvane::ui
