#pragma once

#include <QObject>
#include <utility>

#include "kit/CommandGate.h"
#include "platform/ComboBox.h"
#include "qt/ComboWidget.h"
#include "qt/TextListModel.h"

namespace mavCycEd::qt {

/// A combo box, either to pick from only, or one that also takes a typed text. A text that is no item is shown as the
/// place holder of the widget.
class QtComboBox : public QObject, public platform::ComboBox {
  Q_OBJECT

 public:
  enum class Mode { PickOnly, TypedToo };

  QtComboBox(const kit::CommandGate& gate, Mode mode, const char* name, QWidget* parent);

  ComboWidget* widget() const { return combo_; }

  void setEvents(platform::ComboBoxEvents events) override { events_ = std::move(events); }
  void clear() override { assign({}); }
  void assign(std::vector<std::string> items) override;
  void addItem(std::string_view text) override;
  int itemCount() const override { return model_->count(); }
  std::string itemText(int index) const override { return model_->text(index); }
  int index() const override { return index_; }
  void setIndex(int index) override;
  std::string text() const override { return text_; }
  void setText(std::string_view text) override;

 private:
  void show(int index, std::string text);
  void onPicked();
  void onTyped();

  const kit::CommandGate& gate_;
  TextListModel* model_;
  ComboWidget* combo_;
  platform::ComboBoxEvents events_;
  int index_ = -1;
  std::string text_;
};

}  // namespace mavCycEd::qt
