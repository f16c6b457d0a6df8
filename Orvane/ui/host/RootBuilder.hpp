// The function that makes a host's root view. In a header of its own, which needs no view.
#pragma once

#include <functional>

namespace orvane::ui {

class View;
struct Environment;

using RootBuilder = std::function<View(const Environment&)>;

}  // namespace orvane::ui
