// The panel of bench/KitPanel.cpp in GTK 4, styled by CSS; shown once on an X server without a
// screen, it prints the same figures as orvane-panel.
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iostream>
#include <string>

#include <gtk/gtk.h>

namespace {

constexpr int width = 640;
constexpr int height = 430;
constexpr double scale = 2;

constexpr const char* style = R"(
window { background: transparent; }
.panel { background: #ececec; border-radius: 24px; padding: 20px; }
label { font-family: Inter Display; font-size: 13px; color: rgba(0,0,0,0.85); }
label.title { font-size: 18px; font-weight: bold; }
label.bold { font-weight: bold; }
label.secondary { color: rgba(0,0,0,0.5); }
label.small { font-size: 11px; color: rgba(0,0,0,0.5); }
label.button { font-size: 15px; font-weight: 600; color: white; }
.icon { background: linear-gradient(#2e92ff, #007aff); border-radius: 11px; }
.pill { background: rgba(0,0,0,0.05); border-radius: 99px; padding: 8px 13px; }
.card { background: rgba(0,0,0,0.04); border: 1px solid rgba(0,0,0,0.26); border-radius: 12px; }
.card:hover { background: rgba(0,0,0,0.1); }
.card.selected { border-color: #007aff; }
.picture { background: rgba(143,143,148,0.4); border-radius: 6px; }
.track { background: rgba(0,0,0,0.26); border-radius: 9px; padding: 1px; }
.track.on { background: #007aff; }
.knob { background: white; border-radius: 8px; }
.push { background: #007aff; border-radius: 8px; }
)";

/// Processor time of all threads of the process.
double millisecondsOfWork() {
  return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double millisecondsNow() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(now).count();
}

long residentMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.rfind("VmRSS:", 0) == 0) {
      return std::stol(line.substr(6));
    }
  }
  return 0;
}

GtkWidget* box(GtkOrientation orientation, int spacing, const char* name = nullptr) {
  GtkWidget* const made = gtk_box_new(orientation, spacing);
  if (name != nullptr) {
    gtk_widget_add_css_class(made, name);
  }
  return made;
}

GtkWidget* label(const std::string& text, const char* name = nullptr) {
  GtkWidget* const made = gtk_label_new(text.c_str());
  if (name != nullptr) {
    gtk_widget_add_css_class(made, name);
  }
  return made;
}

GtkWidget* sized(GtkWidget* widget, int width, int height) {
  gtk_widget_set_size_request(widget, width, height);
  gtk_widget_set_halign(widget, GTK_ALIGN_CENTER);
  gtk_widget_set_valign(widget, GTK_ALIGN_CENTER);
  return widget;
}

void add(GtkWidget* parent, GtkWidget* child) {
  gtk_box_append(GTK_BOX(parent), child);
}

GtkWidget* spacer() {
  GtkWidget* const made = box(GTK_ORIENTATION_HORIZONTAL, 0);
  gtk_widget_set_hexpand(made, TRUE);
  return made;
}

GtkWidget* head() {
  GtkWidget* const row = box(GTK_ORIENTATION_HORIZONTAL, 14);
  add(row, sized(box(GTK_ORIENTATION_HORIZONTAL, 0, "icon"), 48, 48));
  GtkWidget* const words = box(GTK_ORIENTATION_VERTICAL, 3);
  gtk_widget_set_valign(words, GTK_ALIGN_CENTER);
  GtkWidget* const title = label("Pin to a Display", "title");
  gtk_widget_set_halign(title, GTK_ALIGN_START);
  add(words, title);
  GtkWidget* const revision = label("Revision 1", "secondary");
  gtk_widget_set_halign(revision, GTK_ALIGN_START);
  add(words, revision);
  add(row, words);
  add(row, spacer());
  GtkWidget* const pill = box(GTK_ORIENTATION_HORIZONTAL, 0, "pill");
  gtk_widget_set_valign(pill, GTK_ALIGN_CENTER);
  add(pill, label("Not Pinned", "bold"));
  add(row, pill);
  return row;
}

GtkWidget* card(int number) {
  GtkWidget* const made = sized(box(GTK_ORIENTATION_VERTICAL, 0, "card"), 140, 120);
  if (number == 1) {
    gtk_widget_add_css_class(made, "selected");
  }
  GtkWidget* const content = box(GTK_ORIENTATION_VERTICAL, 5);
  gtk_widget_set_vexpand(content, TRUE);
  gtk_widget_set_valign(content, GTK_ALIGN_CENTER);
  add(content, sized(box(GTK_ORIENTATION_HORIZONTAL, 0, "picture"), 96, 54));
  add(content, label("Display " + std::to_string(number), "bold"));
  add(content, label("External Display", "small"));
  add(made, content);
  return made;
}

GtkWidget* settingRow(int number) {
  GtkWidget* const row = box(GTK_ORIENTATION_HORIZONTAL, 8);
  gtk_widget_set_size_request(row, -1, 24);
  add(row, label("Setting " + std::to_string(number)));
  add(row, spacer());
  GtkWidget* const track = sized(box(GTK_ORIENTATION_HORIZONTAL, 0, "track"), 34, 18);
  gtk_widget_set_hexpand(track, FALSE);
  const bool isOn = number % 2 == 0;
  if (isOn) {
    gtk_widget_add_css_class(track, "on");
    add(track, spacer());
  }
  add(track, sized(box(GTK_ORIENTATION_HORIZONTAL, 0, "knob"), 15, 15));
  add(row, track);
  return row;
}

GtkWidget* pushButton(const char* title) {
  GtkWidget* const made = box(GTK_ORIENTATION_HORIZONTAL, 0, "push");
  gtk_widget_set_size_request(made, 294, 38);
  GtkWidget* const text = label(title, "button");
  gtk_widget_set_hexpand(text, TRUE);
  add(made, text);
  return made;
}

GtkWidget* panel() {
  GtkWidget* const made = box(GTK_ORIENTATION_VERTICAL, 10, "panel");
  gtk_widget_set_size_request(made, width, height);
  GtkWidget* const column = box(GTK_ORIENTATION_VERTICAL, 10);
  gtk_widget_set_vexpand(column, TRUE);
  gtk_widget_set_valign(column, GTK_ALIGN_CENTER);
  add(made, column);
  add(column, head());
  for (int line = 0; line < 1; ++line) {
    GtkWidget* const row = box(GTK_ORIENTATION_HORIZONTAL, 12);
    gtk_widget_set_halign(row, GTK_ALIGN_CENTER);
    for (int place = 0; place < 4; ++place) {
      add(row, card(line * 4 + place));
    }
    add(column, row);
  }
  GtkWidget* const settings = box(GTK_ORIENTATION_VERTICAL, 0);
  for (int number = 0; number < 6; ++number) {
    add(settings, settingRow(number));
  }
  add(column, settings);
  GtkWidget* const buttons = box(GTK_ORIENTATION_HORIZONTAL, 12);
  add(buttons, pushButton("Pin"));
  add(buttons, pushButton("Prevent"));
  add(column, buttons);
  return made;
}

/// Describes and draws the whole panel on the surface.
void paint(GdkPaintable* paintable, cairo_surface_t* surface) {
  gdk_paintable_invalidate_contents(paintable);
  GtkSnapshot* const snapshot = gtk_snapshot_new();
  gdk_paintable_snapshot(paintable, snapshot, width, height);
  GskRenderNode* const node = gtk_snapshot_free_to_node(snapshot);
  if (node != nullptr) {
    cairo_t* const context = cairo_create(surface);
    cairo_scale(context, scale, scale);
    gsk_render_node_draw(node, context);
    cairo_destroy(context);
    gsk_render_node_unref(node);
  }
}

}  // namespace

int main() {
  const char* const started = std::getenv("PANEL_STARTED_MS");
  gtk_init();
  GtkCssProvider* const css = gtk_css_provider_new();
  gtk_css_provider_load_from_data(css, style, -1);
  gtk_style_context_add_provider_for_display(gdk_display_get_default(), GTK_STYLE_PROVIDER(css),
                                             GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
  GtkWidget* const window = gtk_window_new();
  gtk_window_set_decorated(GTK_WINDOW(window), FALSE);
  GtkWidget* const content = panel();
  gtk_window_set_child(GTK_WINDOW(window), content);
  gtk_window_present(GTK_WINDOW(window));
  bool isDrawn = false;
  GdkFrameClock* const clock = gtk_native_get_surface(GTK_NATIVE(window)) != nullptr
                                   ? gtk_widget_get_frame_clock(window)
                                   : nullptr;
  if (clock == nullptr) {
    return 1;
  }
  g_signal_connect(clock, "after-paint",
                   G_CALLBACK(+[](GdkFrameClock*, bool* drawn) { *drawn = true; }), &isDrawn);
  while (!isDrawn || gtk_widget_get_width(content) == 0) {
    g_main_context_iteration(nullptr, TRUE);
  }
  if (started != nullptr) {
    std::cout << "first_frame_ms " << millisecondsNow() - std::stod(started) << '\n';
  }
  GdkPaintable* const paintable = gtk_widget_paintable_new(content);
  cairo_surface_t* const surface = cairo_image_surface_create(
      CAIRO_FORMAT_ARGB32, static_cast<int>(width * scale), static_cast<int>(height * scale));
  constexpr int repaints = 50;
  const double began = millisecondsOfWork();
  for (int repaint = 0; repaint < repaints; ++repaint) {
    gtk_widget_queue_draw(content);
    paint(paintable, surface);
  }
  std::cout << "repaint_ms " << (millisecondsOfWork() - began) / repaints << '\n'
            << "resident_kb " << residentMemory() << '\n';
  if (const char* const file = std::getenv("PANEL_PICTURE")) {
    cairo_surface_write_to_png(surface, file);
  }
  return 0;
}
