#include "qt/QtOptionButton.h"

#include <QPointer>
#include <QScopedValueRollback>

#include "kit/Notify.h"
#include "qt/PromptButton.h"
#include "qt/Text.h"

namespace mavCycEd::qt {

QtOptionButton::QtOptionButton(const kit::CommandGate& gate, const char* name, QWidget* parent)
    : gate_(gate), button_(new PromptButton<QRadioButton>(parent)) {
  button_->setObjectName(QLatin1String(name));
  // Not clicked(): assistive technology selects without it, and a press of the selected option selects nothing.
  connect(button_, &QRadioButton::toggled, this, [this](bool selected) {
    if (selected && !selecting_) raiseClick();
  });
}

void QtOptionButton::setCaption(std::string_view caption) {
  caption_ = caption;
  button_->setText(toQt(caption));
}

void QtOptionButton::select() {
  {
    const QScopedValueRollback selecting(selecting_, true);
    button_->setChecked(true);
  }
  kit::tell(events_.Click);
}

void QtOptionButton::raiseClick() {
  const QPointer<QtOptionButton> self(this);
  gate_.pass();
  if (self) kit::tell(events_.Click);
}

}  // namespace mavCycEd::qt
