#pragma once

#include <QLineEdit>
#include <QObject>
#include <utility>

#include "platform/TextBox.h"

namespace mavCycEd::qt {

/// A text box of one line. What was set is read back unchanged until the user edits the text.
class QtLineBox : public QObject, public platform::TextBox {
  Q_OBJECT

 public:
  QtLineBox(const char* name, QWidget* parent);

  QLineEdit* widget() const { return edit_; }

  void setEvents(platform::TextBoxEvents events) override { events_ = std::move(events); }
  std::string text() const override { return text_; }
  void setText(std::string_view text) override;
  bool isEnabled() const override { return !edit_->testAttribute(Qt::WA_ForceDisabled); }
  void setEnabled(bool enabled) override { edit_->setEnabled(enabled); }
  void focusAndSelectAll() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void onTextEdited();

  QLineEdit* edit_;
  platform::TextBoxEvents events_;
  std::string text_;  // as set or as last typed
};

}  // namespace mavCycEd::qt
