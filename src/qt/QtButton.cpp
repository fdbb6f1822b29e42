#include "qt/QtButton.h"

#include <QPointer>

#include "kit/Notify.h"
#include "qt/PromptButton.h"
#include "qt/Text.h"

namespace mavCycEd::qt {

QtButton::QtButton(const kit::CommandGate& gate, const char* name, QWidget* parent)
    : gate_(gate), button_(new PromptButton<QPushButton>(parent)) {
  button_->setObjectName(QLatin1String(name));
  // Inside a host's dialog none of our buttons is what Enter presses.
  button_->setAutoDefault(false);
  connect(button_, &QPushButton::clicked, this, &QtButton::raiseClick);
}

void QtButton::setCaption(std::string_view caption) {
  caption_ = caption;
  button_->setText(toQt(caption));
}

void QtButton::raiseClick() {
  const QPointer<QtButton> self(this);
  gate_.pass();
  if (self) kit::tell(events_.Click);
}

}  // namespace mavCycEd::qt
