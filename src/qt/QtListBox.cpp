#include "qt/QtListBox.h"

#include <QPointer>

#include "kit/Notify.h"
#include "platform/RunTimeError.h"
#include "qt/Fonts.h"

namespace mavCycEd::qt {

QtListBox::QtListBox(const kit::CommandGate& gate, ListModel* model, const char* name, QWidget* parent)
    : gate_(gate), model_(model), view_(new TextListView(model, parent)) {
  view_->setObjectName(QLatin1String(name));
  connect(view_, &TextListView::chosen, this, &QtListBox::raiseClick);
  connect(view_, &TextListView::doubleClickedItem, this, &QtListBox::doubleClick);
}

void QtListBox::setIndex(int index) {
  if (index < -1 || index >= model_->count()) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
  view_->select(index);
  kit::tell(events_.Click);
}

platform::Font QtListBox::font() const { return fontOf(*view_); }

void QtListBox::setItemFont(const platform::Font& font) { setFontOf(*view_, font); }

void QtListBox::raiseClick() {
  const QPointer<QtListBox> self(this);
  gate_.pass();
  if (self) kit::tell(events_.Click);
}

void QtListBox::doubleClick() {
  const QPointer<QtListBox> self(this);
  gate_.pass();
  if (self && index() >= 0) kit::tell(events_.DblClick);
}

}  // namespace mavCycEd::qt
