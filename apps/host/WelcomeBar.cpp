#include "WelcomeBar.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace mavCycEd::host {

WelcomeBar::WelcomeBar(QWidget* parent) : QFrame(parent), last_(new QPushButton(this)) {
  setObjectName(QStringLiteral("welcomeBar"));
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);

  auto* const hint = new QLabel(QStringLiteral("No instrument yet. Open the instrument's catalogue to edit cycles; "
                                               "a configuration may be added before or after it."),
                                this);
  hint->setForegroundRole(QPalette::ToolTipText);
  hint->setWordWrap(true);
  auto* const open = new QPushButton(QStringLiteral("Open &catalogue..."), this);
  last_->setObjectName(QStringLiteral("lastInstrument"));
  last_->hide();

  auto* const layout = new QHBoxLayout(this);
  layout->addWidget(hint, 1);
  layout->addWidget(last_);
  layout->addWidget(open);
  connect(open, &QPushButton::clicked, this, &WelcomeBar::openCatalogueWanted);
  connect(last_, &QPushButton::clicked, this, &WelcomeBar::lastInstrumentWanted);
}

void WelcomeBar::offerLast(const QString& catalogueName) {
  last_->setText(QStringLiteral("&Use last: ") + catalogueName);
  last_->setVisible(!catalogueName.isEmpty());
}

}  // namespace mavCycEd::host
