// Shows Panel.qml once without a screen and prints the same figures as orvane-panel.
#include <QGuiApplication>
#include <QImage>
#include <QQuickView>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <iostream>
#include <string>

namespace {

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

}  // namespace

int main(int count, char** arguments) {
  const char* const started = std::getenv("PANEL_STARTED_MS");
  QGuiApplication application(count, arguments);
  QQuickView view;
  view.setColor(Qt::transparent);
  view.setSource(QUrl::fromLocalFile(QString::fromUtf8(arguments[1])));
  if (view.status() != QQuickView::Ready) {
    return 1;
  }
  view.show();
  QImage picture = view.grabWindow();
  if (started != nullptr) {
    std::cout << "first_frame_ms " << millisecondsNow() - std::stod(started) << '\n';
  }
  constexpr int repaints = 50;
  const double began = millisecondsOfWork();
  for (int repaint = 0; repaint < repaints; ++repaint) {
    // Changing the window's colour invalidates all of it; otherwise nothing would be drawn.
    view.setColor(repaint % 2 == 0 ? QColor(0, 0, 0, 1) : QColor(Qt::transparent));
    picture = view.grabWindow();
  }
  std::cout << "repaint_ms " << (millisecondsOfWork() - began) / repaints << '\n'
            << "resident_kb " << residentMemory() << '\n';
  if (const char* const file = std::getenv("PANEL_PICTURE")) {
    picture.save(QString::fromUtf8(file));
  }
  return 0;
}
