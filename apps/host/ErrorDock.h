#pragma once

#include <QDockWidget>
#include <QString>

class QTableWidget;

namespace mavCycEd::host {

/// Lists the errors that the editor reports. It shows itself when the first one comes.
class ErrorDock : public QDockWidget {
  Q_OBJECT

 public:
  /// Older errors are dropped.
  static constexpr int mostErrors = 1000;

  explicit ErrorDock(QWidget* parent);

  /// Takes the arguments of the editor's event.
  void add(int number, const QString& text, const QString& application, const QString& module, const QString& procedure,
           int line);
  int count() const;

 private:
  void copyAll() const;
  void clear();

  QTableWidget* table_;
};

}  // namespace mavCycEd::host
