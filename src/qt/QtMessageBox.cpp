#include "qt/QtMessageBox.h"

#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <algorithm>

#include "qt/Text.h"
#include "qt/WindowHandles.h"
#include "text/LineEnds.h"

namespace mavCycEd::qt {
namespace {

QMessageBox::Icon iconOf(int flags) {
  constexpr int iconBits = 0x70;
  switch (flags & iconBits) {
    case platform::Critical: return QMessageBox::Critical;
    case platform::Exclamation: return QMessageBox::Warning;
    case platform::Information: return QMessageBox::Information;
    default: return QMessageBox::NoIcon;
  }
}

// A short message would make a window in which its title is cut off. Titles are written in bold letters, mostly.
void showWholeTitle(QMessageBox& box) {
  auto* const layout = qobject_cast<QGridLayout*>(box.layout());
  if (layout == nullptr) return;
  constexpr int windowButtons = 16;  // with the icon and all margins, in characters
  QFont bold = box.font();
  bold.setBold(true);
  const int title = QFontMetrics(bold).horizontalAdvance(box.windowTitle());
  const int width = title + windowButtons * box.fontMetrics().averageCharWidth();
  layout->addItem(new QSpacerItem(width, 0), layout->rowCount(), 0, 1, layout->columnCount());
}

// A list of uses may be longer than the screen is high: its text is scrolled, so that the button stays within reach.
void keepOnScreen(QMessageBox& box) {
  auto* const text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (text == nullptr || box.layout() == nullptr || box.layout()->indexOf(text) < 0) return;
  const QSize room = box.screen()->availableSize() * 3 / 4;
  const QSize wanted = text->sizeHint();
  if (wanted.height() <= room.height()) return;
  auto* const area = new QScrollArea(&box);
  delete box.layout()->replaceWidget(text, area);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidget(text);
  area->setWidgetResizable(true);
  const int width = wanted.width() + area->verticalScrollBar()->sizeHint().width();
  area->setMinimumSize(std::min(width, room.width()), room.height());
}

}  // namespace

int QtMessageBox::messageBox(platform::WindowHandle owner, std::string_view message, std::string_view caption,
                             int flags) {
  QWidget* over = widgetOf(owner);
  if (over == nullptr && control_) over = control_->window();
  // The box goes with the window that it stands over, also while it is shown.
  const QPointer<QMessageBox> box(
      new QMessageBox(iconOf(flags), toQt(caption), toQt(text::toLf(message)), QMessageBox::Ok, over));
  box->setTextFormat(Qt::PlainText);
  showWholeTitle(*box);
  keepOnScreen(*box);
  // It goes with the control, too: nobody is left who waits for the answer.
  if (control_) QObject::connect(control_, &QObject::destroyed, box, &QDialog::reject);
  box->setWindowModality(over != nullptr ? Qt::WindowModal : Qt::ApplicationModal);
  box->exec();
  delete box;
  return platform::OkButton;
}

}  // namespace mavCycEd::qt
