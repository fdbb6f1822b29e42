#include "qt/QtMessageBox.h"

#include <QGridLayout>
#include <QMessageBox>

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
  // It goes with the control, too: nobody is left who waits for the answer.
  if (control_) QObject::connect(control_, &QObject::destroyed, box, &QDialog::reject);
  box->setWindowModality(over != nullptr ? Qt::WindowModal : Qt::ApplicationModal);
  box->exec();
  delete box;
  return platform::OkButton;
}

}  // namespace mavCycEd::qt
