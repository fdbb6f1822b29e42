#pragma once

#include <QLabel>

#include "platform/Label.h"
#include "qt/Text.h"

namespace mavCycEd::qt {

/// A label in front of a control.
class QtLabel : public platform::Label {
 public:
  QtLabel(const char* name, QWidget* parent) : label_(new QLabel(parent)) {
    label_->setObjectName(QLatin1String(name));
    label_->setTextFormat(Qt::PlainText);
  }

  QLabel* widget() const { return label_; }

  void setCaption(std::string_view caption) override { label_->setText(toQt(caption)); }

 private:
  QLabel* label_;
};

}  // namespace mavCycEd::qt
