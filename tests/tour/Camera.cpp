#include "Camera.h"

#include <QApplication>
#include <QDialog>
#include <QImageWriter>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <map>
#include <stdexcept>
#include <utility>
#include <vector>

namespace mavCycEd::tour {
namespace {

/// A window, and its place in the picture.
struct Shot {
  QPixmap pixmap;
  QRect place;
};

QColor frameColor(const QWidget& window) {
  const QColor text = window.palette().color(QPalette::WindowText);
  const QColor ground = window.palette().color(QPalette::Window);
  const auto between = [](int a, int b) { return (a + 2 * b) / 3; };
  return {between(text.red(), ground.red()), between(text.green(), ground.green()),
          between(text.blue(), ground.blue())};
}

// A frame with the window's title.
Shot framed(QWidget& window) {
  const QPixmap content = window.grab();
  const int title = 2 * window.fontMetrics().height();
  Shot shot{QPixmap(content.width() + 2, content.height() + title + 1), {}};
  shot.pixmap.fill(frameColor(window));
  QPainter painter(&shot.pixmap);
  const QRect bar(1, 1, content.width(), title - 1);
  painter.fillRect(bar, window.palette().color(QPalette::Midlight));
  painter.setFont(window.font());
  painter.setPen(window.palette().color(QPalette::WindowText));
  painter.drawText(bar, Qt::AlignCenter, window.windowTitle());
  painter.drawPixmap(1, title, content);
  shot.place = QRect(window.pos() - QPoint(1, title), shot.pixmap.size());
  return shot;
}

// A menu or an open list: the frame is on its edge.
Shot edged(QWidget& window) {
  Shot shot{window.grab(), window.geometry()};
  QPainter painter(&shot.pixmap);
  painter.setPen(frameColor(window));
  painter.drawRect(shot.pixmap.rect().adjusted(0, 0, -1, -1));
  return shot;
}

// How many windows a window stands over.
int heightOf(const QWidget* window) {
  int height = window->windowType() == Qt::Popup ? 100 : 0;
  while ((window = window->parentWidget()) != nullptr) ++height;
  return height;
}

std::vector<QWidget*> shownWindows() {
  std::vector<QWidget*> shown;
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (window->isVisible()) shown.push_back(window);
  }
  std::ranges::stable_sort(shown, {}, heightOf);
  return shown;
}

// The same picture with a table of colours, which makes the file half as long. Shades that differ by less than anybody
// sees share an entry; a picture with more colours than a table holds stays as it is.
QImage withColorTable(const QImage& picture) {
  constexpr int mostColors = 256;
  QImage table(picture.size(), QImage::Format_Indexed8);
  std::map<QRgb, uint> entries;
  QList<QRgb> colors;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QRgb color = picture.pixel(x, y);
      const auto [entry, isNew] = entries.try_emplace(color & 0xFFF8F8F8, static_cast<uint>(colors.size()));
      if (isNew) colors << color;
      if (colors.size() > mostColors) return picture;
      table.scanLine(y)[x] = static_cast<uchar>(entry->second);
    }
  }
  table.setColorTable(colors);
  return table;
}

}  // namespace

Camera::Camera(std::filesystem::path folder, std::string theme) : folder_(std::move(folder)), theme_(std::move(theme)) {
  QCoreApplication::instance()->installEventFilter(this);
}

void Camera::take(const std::string& name) {
  std::vector<Shot> shots{{window_->grab(), window_->geometry()}};
  for (QWidget* const window : shownWindows()) {
    if (window == window_) continue;
    shots.push_back(qobject_cast<QDialog*>(window) != nullptr ? framed(*window) : edged(*window));
  }
  QRect whole;
  for (const Shot& shot : shots) whole |= shot.place;
  QImage picture(whole.size(), QImage::Format_RGB32);
  picture.fill(window_->palette().color(QPalette::Dark));
  QPainter painter(&picture);
  for (const Shot& shot : shots) painter.drawPixmap(shot.place.topLeft() - whole.topLeft(), shot.pixmap);
  painter.end();

  const std::filesystem::path file = folder_ / (name + "-" + theme_ + ".png");
  QImageWriter writer(QString::fromStdString(file.string()), "png");
  writer.setCompression(100);
  if (!writer.write(withColorTable(picture)))
    throw std::runtime_error("The picture " + file.string() + " cannot be written.");
  taken_.insert(name);
}

void Camera::takeWaiting() {
  const std::string name = *std::exchange(next_, std::nullopt);
  take(name);
}

bool Camera::eventFilter(QObject* watched, QEvent* event) {
  // A list takes the key while it is still asked whether it wants it.
  const bool key = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
  if (!next_ || !key || !watched->isWidgetType()) return false;
  const bool picks = static_cast<QKeyEvent*>(event)->key() == Qt::Key_Return &&
                     static_cast<QWidget*>(watched)->window()->windowType() == Qt::Popup;
  if (picks) takeWaiting();
  return false;
}

}  // namespace mavCycEd::tour
