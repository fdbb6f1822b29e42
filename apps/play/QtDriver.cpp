#include "QtDriver.h"

#include <QComboBox>
#include <QContextMenuEvent>
#include <QGroupBox>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <QTextDocumentFragment>
#include <QTimer>
#include <QWidgetAction>
#include <algorithm>
#include <utility>

#include "QtGridHands.h"
#include "QtHands.h"
#include "platform/Timer.h"
#include "qt/EditorAccess.h"
#include "qt/Text.h"
#include "qt/TextListModel.h"
#include "qt/ValueListModel.h"
#include "text/LineEnds.h"

namespace mavCycEd::play {
namespace {

using qt::toQt;
using qt::ValueListModel;

// Whether a text comes back from a QString as it was.
bool survivesQt(const std::string& text) { return toQt(text).toStdString() == text; }

std::string exactText(const QModelIndex& index, int role) { return index.data(role).toByteArray().toStdString(); }

std::vector<std::string> itemsOf(const QAbstractItemModel& model) {
  std::vector<std::string> items;
  for (int row = 0; row < model.rowCount(); ++row) {
    items.push_back(exactText(model.index(row, 0), qt::TextListModel::ExactTextRole));
  }
  return items;
}

int indexOf(const std::vector<std::string>& items, const std::string& control, const std::string& text) {
  const auto item = std::ranges::find(items, text);
  if (item == items.end()) throw StepRefused(control + " has no item " + text + ".");
  return static_cast<int>(item - items.begin());
}

void checkIndex(int index, int lowest, int count, std::string_view list) {
  if (index < lowest || index >= count) {
    throw StepRefused(std::string(list) + " has no item " + std::to_string(index) + ".");
  }
}

// The position of a click on a list's item, which is brought into view.
QPoint placeOf(QListView& list, int index) {
  const QModelIndex item = list.model()->index(index, 0);
  list.scrollTo(item);
  const QRect rect = list.visualRect(item).intersected(list.viewport()->rect());
  return rect.center();
}

// What was shown with a mark before an access key, or a doubled one where the character is meant.
std::string withoutMarks(QString caption) {
  return caption.replace(QLatin1String("&&"), QLatin1String("&")).toStdString();
}

void checkRow(const GridHands& hands, std::string_view grid, int row) {
  if (row >= 1 && row < hands.rowCount()) return;
  throw StepRefused(std::string(grid) + " has no parameter row " + std::to_string(row) + ".");
}

CycleEditorErrorEvent asEvent(int number, const QString& error, const QString& application, const QString& module,
                              const QString& procedure, qint16 line) {
  return {number, error.toStdString(), application.toStdString(), module.toStdString(), procedure.toStdString(), line};
}

}  // namespace

/// Sees the variable dialog appear, and calls whoever works in it.
class QtDriver::DialogWatch : public QObject {
 public:
  DialogWatch() { QCoreApplication::instance()->installEventFilter(this); }

  void setUser(std::function<void()> user) { user_ = std::move(user); }
  QDialog* dialog() const { return dialog_ && dialog_->isVisible() ? dialog_.get() : nullptr; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* const dialog = event->type() == QEvent::Show ? qobject_cast<QDialog*>(watched) : nullptr;
    if (dialog != nullptr && dialog->objectName() == QLatin1String("frmparams")) {
      dialog_ = dialog;
      QTimer::singleShot(0, dialog, [this] { work(); });
    }
    return QObject::eventFilter(watched, event);
  }

 private:
  void work() {
    letGo(*dialog_);  // of the double click that opened the dialog
    if (const auto user = user_) user();
    if (QDialog* const open = dialog()) open->close();
  }

  std::function<void()> user_;
  QPointer<QDialog> dialog_;
};

QtDriver::QtDriver(HostServices services, CycleEditorErrorHandler onError, std::function<void()> tick)
    : gridTimer_(services.gridTimer),
      tick_(std::move(tick)),
      control_(std::make_unique<ctlCycEd>(std::move(services))),
      dialogWatch_(std::make_unique<DialogWatch>()) {
  QObject::connect(control_.get(), &ctlCycEd::CycleEditorError, control_.get(),
                   [onError = std::move(onError)](auto... arguments) { onError(asEvent(arguments...)); });
  constexpr QSize size(900, 600);
  control_->resize(size);
  control_->show();
  activate(*control_);
}

QtDriver::~QtDriver() = default;

// The host. A text that is no UTF-8 does not fit into a QString; the editor behind the widget takes it as it is.

void QtDriver::SetConfigXML(const std::string& strConfigXml) {
  if (survivesQt(strConfigXml)) {
    control_->SetConfigXML(toQt(strConfigXml));
  } else {
    editorOf(*control_).SetConfigXML(strConfigXml);
  }
}

void QtDriver::SetXMLStrings(const std::string& strLatestKam, const std::string& strCycle) {
  if (survivesQt(strLatestKam) && survivesQt(strCycle)) {
    control_->SetXMLStrings(toQt(strLatestKam), toQt(strCycle));
  } else {
    editorOf(*control_).SetXMLStrings(strLatestKam, strCycle);
  }
}

void QtDriver::Ignore_Hidden(bool booNewValue) { control_->setProperty("Ignore_Hidden", booNewValue); }
bool QtDriver::CycleChanged() { return control_->property("CycleChanged").toBool(); }
std::string QtDriver::RetrieveCycle() { return control_->RetrieveCycle().toStdString(); }

void QtDriver::ResetCycle(const std::string& strCycle) {
  if (survivesQt(strCycle)) {
    control_->setProperty("ResetCycle", toQt(strCycle));
  } else {
    editorOf(*control_).ResetCycle(strCycle);
  }
}

const EditorControl& QtDriver::editor() const { return editorOf(*control_); }
std::string QtDriver::MacroString() { return control_->MacroString().toStdString(); }

// The widget of this name, to look at it.
template <typename Widget>
Widget& QtDriver::see(std::string_view name) const {
  auto* const widget = control_->findChild<Widget*>(toQt(name));
  if (widget == nullptr) throw StepRefused("There is no such control here: " + std::string(name));
  return *widget;
}

// The same, for a user who works with it.
template <typename Widget>
Widget& QtDriver::use(std::string_view name) const {
  Widget& widget = see<Widget>(name);
  QWidget* const window = widget.window();
  if (isDialogOpen() && window != dialogWatch_->dialog()) {
    throw StepRefused("The control " + std::string(name) + " is behind the open dialog frmparams.");
  }
  if (!widget.isEnabled() || !widget.isVisible()) {
    throw StepRefused("The control " + std::string(name) + " is disabled.");
  }
  activate(*window);
  closeList();
  return widget;
}

// By the keys, where no value is being typed.
void QtDriver::undo() {
  see<QListView>("lstAtomSequence").setFocus();
  QTest::keyClick(control_.get(), Qt::Key_Z, Qt::ControlModifier);
}

void QtDriver::redo() {
  see<QListView>("lstAtomSequence").setFocus();
  QTest::keyClick(control_.get(), Qt::Key_Y, Qt::ControlModifier);
}

void QtDriver::chooseItem(std::string_view combo, const std::string& text) {
  auto& control = use<QComboBox>(combo);
  const int index = indexOf(itemsOf(*control.model()), std::string(combo), text);
  control.setFocus(Qt::MouseFocusReason);
  pickInList(control, index);
}

void QtDriver::typeInCombo(std::string_view combo, const std::string& text) {
  auto& control = use<QComboBox>(combo);
  if (!control.isEditable()) throw StepRefused("Nothing can be typed into " + std::string(combo) + ".");
  pasteOverAll(control, text);
}

void QtDriver::leaveCombo(std::string_view combo) {
  auto& control = use<QComboBox>(combo);
  control.setFocus();
  control.clearFocus();
}

void QtDriver::chooseInGrid(std::string_view grid, int row, const std::string& text) {
  auto& view = use<QTableView>(grid);
  GridHands hands(view);
  checkRow(hands, grid, row);
  std::vector<std::string> items;
  for (const QString& item : hands.valueCell(row).data(ValueListModel::PickListRole).toStringList()) {
    items.push_back(item.toStdString());
  }
  const int index = indexOf(items, "The pick list of row " + std::to_string(row), text);
  hands.goTo(row);
  QTest::keyClick(&view, Qt::Key_F2);
  auto* const editor = qobject_cast<QComboBox*>(hands.editor(row));
  if (editor == nullptr) throw StepRefused("Row " + std::to_string(row) + " cannot be edited.");
  pickInList(*editor, index);
}

void QtDriver::editInGrid(std::string_view grid, int row, const std::string& text) {
  auto& view = use<QTableView>(grid);
  GridHands hands(view);
  checkRow(hands, grid, row);
  hands.goTo(row);
  if (text.empty()) QTest::keyClick(&view, Qt::Key_Delete);
  bool first = true;  // the first character opens the editor
  for (const QString& character : charactersOf(toQt(text))) {
    QWidget* const target = first ? &view : hands.editor(row);
    if (target == nullptr) break;
    typeCharacter(*target, character);
    first = false;
  }
  view.setFocus();  // away from the editor
}

void QtDriver::pressInGrid(std::string_view grid, int x, int y) {
  const auto [widget, place] = GridHands(use<QTableView>(grid)).at(x, y);
  QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, place);
}

void QtDriver::hoverOverGrid(std::string_view grid, int x, int y) {
  const auto [widget, place] = GridHands(use<QTableView>(grid)).at(x, y);
  QMouseEvent move(QEvent::MouseMove, place, widget->mapToGlobal(place), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(widget, &move);
}

std::optional<std::vector<std::string>> QtDriver::askForMenu(std::string_view grid, int x, int y) {
  const auto [widget, place] = GridHands(use<QTableView>(grid)).at(x, y);
  QTest::mouseClick(widget, Qt::RightButton, Qt::NoModifier, place);
  QContextMenuEvent request(QContextMenuEvent::Mouse, place, widget->mapToGlobal(place));
  QCoreApplication::sendEvent(widget, &request);
  const qt::PopupMenuWidget* const shown = openMenu();
  if (shown == nullptr) return std::nullopt;
  return shown->captions();
}

qt::PopupMenuWidget* QtDriver::openMenu() const {
  auto& menu = see<qt::PopupMenuWidget>(isDialogOpen() ? "mnuSyrConstants" : "mnuParam");
  return menu.isVisible() ? &menu : nullptr;
}

void QtDriver::chooseFromMenu(int place) {
  qt::PopupMenuWidget* const shown = openMenu();
  if (shown == nullptr) throw StepRefused("No pop-up menu is open.");
  if (place < 0 || static_cast<std::size_t>(place) >= shown->captions().size()) {
    throw StepRefused("The pop-up menu has no entry " + std::to_string(place) + ".");
  }
  if (const auto* const entry = qobject_cast<QWidgetAction*>(shown->actions().constFirst())) {
    auto* const list = qobject_cast<QListView*>(entry->defaultWidget());
    list->setCurrentIndex(list->model()->index(place, 0));
    return QTest::keyClick(list, Qt::Key_Return);
  }
  shown->setActiveAction(shown->actions().at(place));
  QTest::keyClick(shown, Qt::Key_Return);
}

void QtDriver::dismissMenu() {
  if (qt::PopupMenuWidget* const shown = openMenu()) QTest::keyClick(shown, Qt::Key_Escape);
}

void QtDriver::replaceText(std::string_view textBox, const std::string& text) {
  const auto& seen = see<QWidget>(textBox);
  if (qobject_cast<const QPlainTextEdit*>(&seen) == nullptr && qobject_cast<const QLineEdit*>(&seen) == nullptr) {
    throw StepRefused("There is no such control here: " + std::string(textBox));
  }
  pasteOverAll(use<QWidget>(textBox), text);
}

void QtDriver::selectItem(std::string_view list, int index) {
  auto& control = use<QListView>(list);
  const int count = control.model()->rowCount();
  checkIndex(index, list == "lstObject" ? 0 : -1, count, list);
  if (index >= 0) {
    QTest::mouseClick(control.viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(control, index));
    return;
  }
  control.setFocus();
  control.scrollToBottom();
  const int bottom = count == 0 ? 0 : control.visualRect(control.model()->index(count - 1, 0)).bottom() + 1;
  if (bottom < control.viewport()->height()) {
    QTest::mouseClick(control.viewport(), Qt::LeftButton, Qt::NoModifier, {1, bottom});
  } else if (control.selectionModel()->hasSelection()) {
    QTest::keyClick(&control, Qt::Key_Space, Qt::ControlModifier);  // a full list has no place without an item
  }
}

void QtDriver::doubleClickItem(std::string_view list, int index) {
  auto& control = use<QListView>(list);
  checkIndex(index, 0, control.model()->rowCount(), list);
  const QPoint place = placeOf(control, index);
  QTest::mouseClick(control.viewport(), Qt::LeftButton, Qt::NoModifier, place);
  QTest::mouseDClick(control.viewport(), Qt::LeftButton, Qt::NoModifier, place);
  letGo(*control.viewport());
}

void QtDriver::clickButton(std::string_view button) {
  QTest::mouseClick(&use<QAbstractButton>(button), Qt::LeftButton);
}

void QtDriver::setWhileDialogOpen(std::function<void()> whileDialogOpen) {
  dialogWatch_->setUser(std::move(whileDialogOpen));
}

bool QtDriver::isDialogOpen() const { return dialogWatch_->dialog() != nullptr; }

std::string QtDriver::dialogCaption() const {
  return isDialogOpen() ? dialogWatch_->dialog()->windowTitle().toStdString() : "";
}

void QtDriver::closeDialog() {
  if (!isDialogOpen()) throw StepRefused("No dialog is open.");
  dialogWatch_->dialog()->close();
}

ListView QtDriver::list(std::string_view name) const {
  const auto& control = see<QListView>(name);
  const QModelIndexList selected = control.selectionModel()->selectedIndexes();
  return {itemsOf(*control.model()), selected.isEmpty() ? -1 : selected.first().row()};
}

SelectionListView QtDriver::selectionList(std::string_view name) const {
  const QAbstractItemModel& model = *see<QListView>(name).model();
  SelectionListView view{itemsOf(model), {}};
  for (int row = 0; row < model.rowCount(); ++row) {
    if (model.index(row, 0).data(Qt::CheckStateRole) == Qt::Checked) view.selected.push_back(row);
  }
  return view;
}

ComboView QtDriver::combo(std::string_view name) const {
  const auto& control = see<QComboBox>(name);
  ComboView view{itemsOf(*control.model()), {}, control.currentIndex()};
  const bool ofItem =
      view.index >= 0 && (!control.isEditable() || control.currentText() == control.itemText(view.index));
  if (ofItem) {
    view.text = view.items[static_cast<std::size_t>(view.index)];
    return view;
  }
  view.text = (control.isEditable() ? control.currentText() : control.placeholderText()).toStdString();
  const auto item = std::ranges::find(view.items, view.text);
  view.index = item == view.items.end() ? -1 : static_cast<int>(item - view.items.begin());
  return view;
}

TextBoxView QtDriver::textBox(std::string_view name) const {
  auto& widget = see<QWidget>(name);
  std::string text;
  if (const auto* const lines = qobject_cast<QPlainTextEdit*>(&widget)) {
    text = text::typedToCrLf(lines->document()->toRawText().toStdString());
  }
  if (const auto* const line = qobject_cast<QLineEdit*>(&widget)) text = line->text().toStdString();
  return {text, widget.isEnabled()};
}

FrameView QtDriver::frame(std::string_view name) const {
  const auto& box = see<QGroupBox>(name);
  return {withoutMarks(box.title()), box.isEnabled(), !box.isHidden()};
}

bool QtDriver::option(std::string_view name) const { return see<QRadioButton>(name).isChecked(); }

GridView QtDriver::grid(std::string_view name) const {
  auto& view = see<QTableView>(name);
  const QAbstractItemModel& model = *view.model();
  GridView shown;
  for (const int column : {ValueListModel::keyColumn, ValueListModel::valueColumn}) {
    shown.titles.push_back(model.headerData(column, Qt::Horizontal).toString().toStdString());
  }
  for (int row = 0; row < model.rowCount(); ++row) {
    const QModelIndex key = model.index(row, ValueListModel::keyColumn);
    const QModelIndex value = model.index(row, ValueListModel::valueColumn);
    GridRowView entry{
        exactText(key, ValueListModel::ExactTextRole), exactText(value, ValueListModel::ExactTextRole), {}};
    for (const QString& item : value.data(ValueListModel::PickListRole).toStringList()) {
      entry.items.push_back(item.toStdString());
    }
    shown.rows.push_back(std::move(entry));
  }
  shown.row = GridHands(view).row();
  return shown;
}

std::vector<std::string> QtDriver::menu(std::string_view name) const {
  if (name == "mnuSubParam") return see<qt::PopupMenuWidget>("mnuParam").captions();
  if (name == "mnuSyrConstant") return see<qt::PopupMenuWidget>("mnuSyrConstants").captions();
  throw StepRefused("There is no such control here: " + std::string(name));
}

std::string QtDriver::toolTip() const {
  const QString tip = see<QTableView>("GrdAtom").toolTip();
  return (Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip).toStdString();
}

TimerView QtDriver::timer(std::string_view name) const {
  if (name != "tmrUpdateGrid") throw StepRefused("There is no such control here: " + std::string(name));
  return {gridTimer_->isEnabled(), gridTimer_->interval()};
}

}  // namespace mavCycEd::play
