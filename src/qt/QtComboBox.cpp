#include "qt/QtComboBox.h"

#include <QLineEdit>
#include <QPointer>

#include "kit/Notify.h"
#include "qt/LineEdits.h"
#include "qt/Text.h"

namespace mavCycEd::qt {

QtComboBox::QtComboBox(const kit::CommandGate& gate, Mode mode, const char* name, QWidget* parent)
    : gate_(gate), model_(new TextListModel), combo_(new ComboWidget(parent)) {
  combo_->setObjectName(QLatin1String(name));
  model_->setParent(combo_);
  combo_->setModel(model_);
  if (mode == Mode::TypedToo) {
    combo_->setEditable(true);
    combo_->setInsertPolicy(QComboBox::NoInsert);
    // With duplicates allowed Enter does not look for an item that only resembles the typed text.
    combo_->setDuplicatesEnabled(true);
    combo_->setCompleter(nullptr);
    connect(combo_->lineEdit(), &QLineEdit::textEdited, this, &QtComboBox::onTyped);
  }
  // The last of the signals that tell of a user's pick, also of the item that was selected already.
  connect(combo_, &QComboBox::textActivated, this, &QtComboBox::onPicked);
  connect(combo_, &ComboWidget::focusLeft, this, [this] { kit::tell(events_.LostFocus); });
}

void QtComboBox::assign(std::vector<std::string> items) {
  model_->assign(std::move(items));
  show(-1, {});
}

void QtComboBox::addItem(std::string_view text) {
  model_->append(text);
  show(index_, text_);  // the widget may have selected its first item
}

void QtComboBox::setIndex(int index) {
  show(index, index == -1 ? std::string() : itemText(index));
  kit::tell(events_.Click);
}

void QtComboBox::setText(std::string_view text) {
  show(model_->indexOf(text), std::string(text));
  kit::tell(events_.Click);
}

void QtComboBox::show(int index, std::string text) {
  index_ = index;
  text_ = std::move(text);
  const QString shown = toQt(text_);
  combo_->setCurrentIndex(index_);
  combo_->setPlaceholderText(index_ < 0 ? shown : QString());
  if (combo_->isEditable()) combo_->setEditText(shown);
  combo_->update();
}

void QtComboBox::onPicked() {
  index_ = combo_->currentIndex();
  text_ = index_ < 0 ? std::string() : itemText(index_);
  combo_->setPlaceholderText({});
  const QPointer<QtComboBox> self(this);
  gate_.pass();
  if (self) kit::tell(events_.Click);
}

void QtComboBox::onTyped() {
  text_ = fromQt(keepOnOneLine(*combo_->lineEdit()));
  index_ = model_->indexOf(text_);
}

}  // namespace mavCycEd::qt
