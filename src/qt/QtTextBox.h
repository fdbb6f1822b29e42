#pragma once

#include <QObject>
#include <QPlainTextEdit>
#include <utility>

#include "platform/TextBox.h"

namespace mavCycEd::qt {

/// A text box of several lines. What was set is read back unchanged, whatever the widget can show of it, until the user
/// edits the text.
class QtTextBox : public QObject, public platform::TextBox {
  Q_OBJECT

 public:
  QtTextBox(const char* name, QWidget* parent);

  QPlainTextEdit* widget() const { return edit_; }

  void setEvents(platform::TextBoxEvents events) override { events_ = std::move(events); }
  std::string text() const override;
  void setText(std::string_view text) override;
  bool isEnabled() const override { return !edit_->testAttribute(Qt::WA_ForceDisabled); }
  void setEnabled(bool enabled) override { edit_->setEnabled(enabled); }
  void focusAndSelectAll() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void onTextChanged();
  std::string typedText() const;
  void putCaretBehind(std::string_view text);

  QPlainTextEdit* edit_;
  platform::TextBoxEvents events_;
  std::string text_;  // as set or as last typed
  bool settingText_ = false;
  bool composing_ = false;  // an input method shows what it may yet enter
};

}  // namespace mavCycEd::qt
