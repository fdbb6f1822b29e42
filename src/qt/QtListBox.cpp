#include "qt/QtListBox.h"

#include <QPointer>

#include "platform/RunTimeError.h"
#include "qt/Fonts.h"
#include "qt/Notify.h"

namespace mavCycEd::qt {

QtListBox::QtListBox(const platform::CommandGate& gate, ListModel* model, const char* name, QWidget* parent)
    : gate_(gate), model_(model), view_(new TextListView(model, parent)) {
  view_->setObjectName(QLatin1String(name));
  connect(view_, &TextListView::chosen, this, &QtListBox::raiseClick);
  connect(view_, &TextListView::doubleClickedItem, this, &QtListBox::doubleClick);
}

void QtListBox::setIndex(int index) {
  if (index < -1 || index >= model_->count()) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
  view_->select(index);
  tell(events_.Click);
}

platform::Font QtListBox::font() const { return fontOf(*view_); }

void QtListBox::setItemFont(const platform::Font& font) { setFontOf(*view_, font); }

void QtListBox::raiseClick() {
  const QPointer<QtListBox> self(this);
  gate_.pass();
  if (self) tell(events_.Click);
}

void QtListBox::doubleClick() {
  const QPointer<QtListBox> self(this);
  gate_.pass();
  if (self && index() >= 0) tell(events_.DblClick);
}

}  // namespace mavCycEd::qt
