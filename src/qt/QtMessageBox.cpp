#include "qt/QtMessageBox.h"

#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStringList>
#include <algorithm>
#include <string>

#include "qt/Text.h"
#include "qt/WindowHandles.h"
#include "text/LineEnds.h"
#include "text/Strings.h"

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

// The message as far as lines on the screen go: breaking a word into lines takes Qt the square of its length.
QString inLines(std::string_view message) {
  QStringList lines;
  const std::string whole = text::toLf(message);
  for (const std::string_view line : text::split(whole, '\n')) lines.append(toQtLine(line));
  return lines.join(QLatin1Char('\n'));
}

// How high the message becomes when the box breaks its lines, at the least width that it does this for.
int brokenHeight(const QLabel& text, int width) {
  const QFontMetrics metrics = text.fontMetrics();
  int lines = 0;
  for (const QString& line : text.text().split(QLatin1Char('\n'))) {
    lines += 1 + metrics.horizontalAdvance(line) / width;
  }
  return lines * metrics.lineSpacing();
}

// A list of uses may be longer than the screen is high: its text is scrolled, so that the button stays within reach.
void keepOnScreen(QMessageBox& box) {
  auto* const text = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
  if (text == nullptr || box.layout() == nullptr || box.layout()->indexOf(text) < 0) return;
  constexpr int besideText = 100;  // the icon and the margins
  constexpr int brokenFrom = 500;
  const QSize screen = box.screen()->availableSize();
  const int height = screen.height() * 3 / 4;
  if (brokenHeight(*text, std::min(brokenFrom, screen.width() / 2) - besideText) <= height) return;
  auto* const area = new QScrollArea(&box);
  delete box.layout()->replaceWidget(text, area);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidget(text);
  area->setWidgetResizable(true);
  const int width = text->sizeHint().width() + area->verticalScrollBar()->sizeHint().width();
  area->setMinimumSize(std::min(width, (screen.width() - besideText) / 2), height);
}

}  // namespace

int QtMessageBox::messageBox(platform::WindowHandle owner, std::string_view message, std::string_view caption,
                             int flags) {
  QWidget* over = widgetOf(owner);
  if (over == nullptr && control_) over = control_->window();
  // The box goes with the window that it stands over, also while it is shown.
  const QPointer<QMessageBox> box(
      new QMessageBox(iconOf(flags), toQt(caption), inLines(message), QMessageBox::Ok, over));
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
