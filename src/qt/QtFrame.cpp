#include "qt/QtFrame.h"

#include "qt/Text.h"

namespace mavCycEd::qt {

QtFrame::QtFrame(const char* name, QWidget* parent) : box_(new QGroupBox(parent)) {
  box_->setObjectName(QLatin1String(name));
}

void QtFrame::setCaption(std::string_view caption) {
  caption_ = caption;
  box_->setTitle(withoutAccessKey(caption));
}

void QtFrame::setVisible(bool visible) {
  visible_ = visible;
  box_->setVisible(visible);
}

}  // namespace mavCycEd::qt
