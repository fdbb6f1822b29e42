#pragma once

#include <QObject>
#include <QString>
#include <QWidget>
#include <filesystem>
#include <optional>
#include <set>
#include <string>

namespace mavCycEd::tour {

/// Makes pictures of a window with all that stands over it: dialogs, message boxes, menus, open lists. Off screen there
/// is nobody who gives windows a frame with their title, so the camera does.
class Camera : public QObject {
 public:
  /// Pictures go to `folder` as NAME-`theme`.png.
  Camera(std::filesystem::path folder, std::string theme);

  /// The window that is in the picture; it outlives the camera.
  void pointAt(QWidget& window) { window_ = &window; }
  void take(const std::string& name);
  /// Takes this picture of the next message box, or of the next list from which an item is picked.
  void takeNext(const std::string& name) { next_ = name; }
  /// Takes the picture that is waited for.
  void takeWaiting();
  bool isWaiting() const { return next_.has_value(); }
  const std::set<std::string>& taken() const { return taken_; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::filesystem::path folder_;
  std::string theme_;
  QWidget* window_ = nullptr;
  std::optional<std::string> next_;
  std::set<std::string> taken_;
};

}  // namespace mavCycEd::tour
