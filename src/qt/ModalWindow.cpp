#include "qt/ModalWindow.h"

#include <QPointer>

namespace mavCycEd::qt {

void ModalWindow::reject() {
  const QPointer<ModalWindow> self(this);
  emit closing();
  if (self) QDialog::reject();
}

}  // namespace mavCycEd::qt
