#include "qt/QtLineBox.h"

#include "qt/Notify.h"
#include "qt/Text.h"
#include "text/LineEnds.h"

namespace mavCycEd::qt {

QtLineBox::QtLineBox(const char* name, QWidget* parent) : edit_(new QLineEdit(parent)) {
  edit_->setObjectName(QLatin1String(name));
  connect(edit_, &QLineEdit::textEdited, this, &QtLineBox::onTextEdited);
}

void QtLineBox::setText(std::string_view text) {
  text_ = text::toCrLf(text);
  edit_->setText(toQt(text_));
}

void QtLineBox::focusAndSelectAll() {
  edit_->setFocus();
  edit_->selectAll();
}

void QtLineBox::onTextEdited(const QString& text) {
  text_ = text::toCrLf(fromQt(text));
  tell(events_.Change);
}

}  // namespace mavCycEd::qt
