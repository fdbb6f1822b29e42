#include "qt/QtOptionButton.h"

#include <QPointer>
#include <utility>

#include "qt/Notify.h"
#include "qt/Text.h"

namespace mavCycEd::qt {

QtOptionButton::QtOptionButton(const CommandGate& gate, const char* name, QWidget* parent)
    : gate_(gate), button_(new QRadioButton(parent)) {
  button_->setObjectName(QLatin1String(name));
  connect(button_, &QRadioButton::toggled, this, [this](bool selected) { isNewlySelected_ = selected; });
  connect(button_, &QRadioButton::clicked, this, &QtOptionButton::raiseClick);
}

void QtOptionButton::setCaption(std::string_view caption) {
  caption_ = caption;
  button_->setText(toQt(caption));
}

void QtOptionButton::select() {
  button_->setChecked(true);
  isNewlySelected_ = false;
  tell(events_.Click);
}

void QtOptionButton::raiseClick() {
  if (!std::exchange(isNewlySelected_, false)) return;
  const QPointer<QtOptionButton> self(this);
  gate_.pass();
  if (self) tell(events_.Click);
}

}  // namespace mavCycEd::qt
