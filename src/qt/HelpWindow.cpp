#include "qt/HelpWindow.h"

#include <QAction>
#include <QCoreApplication>
#include <QEvent>
#include <QKeySequence>
#include <QToolButton>
#include <QVBoxLayout>

#include "qt/HelpBrowser.h"

namespace mavCycEd::qt {
namespace {

QString inWords(const char* text) { return QCoreApplication::translate("mavCycEd::Help", text); }

QAction* command(HelpWindow* window, const QString& text, const QKeySequence& keys) {
  auto* const action = new QAction(text, window);
  action->setShortcut(keys);
  action->setToolTip(QStringLiteral("%1 (%2)").arg(text, keys.toString(QKeySequence::NativeText)));
  window->addAction(action);
  return action;
}

}  // namespace

HelpWindow::HelpWindow(QWidget* over)
    : QDialog(over, Qt::Window),
      pages_(new HelpBrowser(this)),
      back_(command(this, inWords("Back"), QKeySequence(Qt::ALT | Qt::Key_Left))),
      forward_(command(this, inWords("Forward"), QKeySequence(Qt::ALT | Qt::Key_Right))),
      contents_(command(this, inWords("Contents"), QKeySequence(Qt::ALT | Qt::Key_Home))) {
  setObjectName(QStringLiteral("helpWindow"));
  pages_->setObjectName(QStringLiteral("helpPages"));
  pages_->setAccessibleName(inWords("Help page"));
  layOut();
  connectCommands();
  resize(720, 640);
}

void HelpWindow::layOut() {
  auto* const buttons = new QHBoxLayout;
  QWidget* before = pages_;
  for (QAction* const action : {back_, forward_, contents_}) {
    auto* const button = new QToolButton(this);
    button->setDefaultAction(action);
    button->setAccessibleName(action->text());
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    buttons->addWidget(button);
    setTabOrder(before, button);
    before = button;
  }
  buttons->addStretch();
  auto* const whole = new QVBoxLayout(this);
  whole->addLayout(buttons);
  whole->addWidget(pages_);
}

void HelpWindow::connectCommands() {
  back_->setEnabled(false);
  forward_->setEnabled(false);
  connect(pages_, &QTextBrowser::backwardAvailable, back_, &QAction::setEnabled);
  connect(pages_, &QTextBrowser::forwardAvailable, forward_, &QAction::setEnabled);
  connect(back_, &QAction::triggered, pages_, &QTextBrowser::backward);
  connect(forward_, &QAction::triggered, pages_, &QTextBrowser::forward);
  connect(contents_, &QAction::triggered, this, [this] { pages_->setSource(urlOf(HelpPage::Contents)); });
  connect(pages_, &QTextBrowser::sourceChanged, this, [this] { setWindowTitle(pages_->documentTitle()); });
}

void HelpWindow::showPage(HelpPage page) {
  pages_->setSource(urlOf(page));
  setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
  pages_->setFocus();
}

// A window that is disabled takes its own windows along; the help can be read all the same.
void HelpWindow::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::EnabledChange && !isEnabled()) setEnabled(true);
}

void HelpWindow::moveOver(QWidget* window) {
  const bool shown = isVisible();
  const QRect place = geometry();
  setParent(window, windowFlags());
  setGeometry(place);
  if (!shown) return;
  setAttribute(Qt::WA_ShowWithoutActivating, true);
  show();
  setAttribute(Qt::WA_ShowWithoutActivating, false);
}

}  // namespace mavCycEd::qt
