#include "qt/QtLineBox.h"

#include "kit/Notify.h"
#include "qt/FocusRules.h"
#include "qt/LineEdits.h"
#include "qt/Text.h"

namespace mavCycEd::qt {

QtLineBox::QtLineBox(const char* name, QWidget* parent) : edit_(new QLineEdit(parent)) {
  edit_->setObjectName(QLatin1String(name));
  edit_->installEventFilter(this);
  connect(edit_, &QLineEdit::textEdited, this, &QtLineBox::onTextEdited);
}

void QtLineBox::setText(std::string_view text) {
  text_ = text;
  edit_->setText(toQt(text_));
}

void QtLineBox::focusAndSelectAll() {
  edit_->setFocus();
  edit_->selectAll();
}

bool QtLineBox::eventFilter(QObject* watched, QEvent* event) {
  const bool lost = event->type() == QEvent::FocusOut;
  if (lost && leavesControl(*edit_, static_cast<const QFocusEvent&>(*event))) kit::tell(events_.LostFocus);
  return QObject::eventFilter(watched, event);
}

void QtLineBox::onTextEdited() {
  text_ = fromQt(keepOnOneLine(*edit_));
  kit::tell(events_.Change);
}

}  // namespace mavCycEd::qt
