// What a platform's view is given to show. By itself, so that to hold one needs no view.
#pragma once

#include <functional>

namespace orvane::ui {

class View;
struct Environment;

using RootBuilder = std::function<View(const Environment&)>;

}  // namespace orvane::ui
