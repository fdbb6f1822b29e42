#include "qt/QtValueList.h"

#include <QVBoxLayout>

#include "qt/Fonts.h"
#include "qt/Notify.h"
#include "qt/Text.h"

namespace mavCycEd::qt {

QtValueList::QtValueList(const char* name, QWidget* parent)
    : pane_(new QWidget(parent)),
      label_(new QLabel(pane_)),
      model_(new ValueListModel),
      view_(new ValueListView(model_, pane_)) {
  view_->setObjectName(QLatin1String(name));
  label_->setBuddy(view_);
  label_->hide();
  auto* const layout = new QVBoxLayout(pane_);
  layout->setContentsMargins({});
  layout->addWidget(label_);
  layout->addWidget(view_);
  connectView();
}

void QtValueList::connectView() {
  connect(view_, &ValueListView::rowChosen, this, [this] { tell(events_.SelectionChange); });
  connect(view_, &ValueListView::mousePressed, this,
          [this](platform::MouseButton button, int x, int y) { tell(events_.MouseDown, button, x, y); });
  connect(view_, &ValueListView::mouseMoved, this, [this](int x, int y) { tell(events_.MouseMove, x, y); });
  connect(view_, &ValueListView::menuAskedFor, this, [this](int x, int y) { tell(events_.ContextPopup, x, y); });
  const CellEdit* const edit = &view_->cellEdit();
  connect(edit, &CellEdit::typed, this, &QtValueList::raiseSetEditText);
  connect(edit, &CellEdit::picked, this, &QtValueList::raiseEndOfEdit);
  connect(edit, &CellEdit::ended, this, &QtValueList::raiseEndOfEdit);
}

void QtValueList::setCaption(std::string_view caption) {
  caption_ = caption;
  label_->setText(withoutAccessKey(caption));
  label_->setVisible(!caption.empty());
}

void QtValueList::setRow(int row) {
  const ValueListView::CodeChange change(*view_);
  model_->setCurrentRow(row);
}

void QtValueList::focusValue(int row) {
  if (!model_->rows().isParameterRow(row)) return;
  view_->cellEdit().drop();
  setRow(row);
  view_->openEditor();
}

void QtValueList::InsertRow(std::string_view key, std::string_view value, bool append) {
  const ValueListView::CodeChange change(*view_);
  model_->insert(key, value, append);
}

void QtValueList::DeleteRow(int row) {
  if (!model_->rows().isParameterRow(row)) return;
  const ValueListView::CodeChange change(*view_);
  if (row == view_->cellEdit().row()) view_->cellEdit().drop();
  model_->remove(row);
}

void QtValueList::setValue(int column, int row, std::string_view text) {
  if (!model_->setCell(column, row, text)) return;
  if (column != ValueListModel::valueColumn || row != view_->cellEdit().row()) return;
  view_->cellEdit().replaceText(text);
  raiseSetEditText(row);
}

std::string QtValueList::cellText(int column, int row) const {
  if (row != 0) return model_->rows().cell(column, row);
  return column == 0 || column == 1 ? model_->title(column) : std::string();
}

void QtValueList::setToolTipText(std::string_view text) {
  toolTipText_ = text;
  const QString plain = toQt(text);
  // Only a text that would be taken for HTML is written as such.
  view_->setToolTip(Qt::mightBeRichText(plain) ? QStringLiteral("<qt>%1</qt>").arg(plain.toHtmlEscaped()) : plain);
}

platform::Font QtValueList::font() const { return fontOf(*view_); }

void QtValueList::setCellFont(const platform::Font& font) { setFontOf(*view_, font); }

void QtValueList::raiseSetEditText(int row) { tell(events_.SetEditText, ValueListModel::valueColumn, row, value(row)); }

void QtValueList::raiseEndOfEdit(int row) {
  tell(events_.EndOfEdit, ValueListModel::valueColumn, row, cellText(0, row), value(row));
}

}  // namespace mavCycEd::qt
