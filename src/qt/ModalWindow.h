#pragma once

#include <QDialog>

namespace mavCycEd::qt {

/// The window of a modal dialog: it says when its user wants to close it by its frame or with Esc, and then closes.
class ModalWindow : public QDialog {
  Q_OBJECT

 public:
  using QDialog::QDialog;

  void reject() override;

 signals:
  void closing();
};

}  // namespace mavCycEd::qt
