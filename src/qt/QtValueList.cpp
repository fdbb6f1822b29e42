#include "qt/QtValueList.h"

#include <QVBoxLayout>

#include "qt/Fonts.h"
#include "qt/Text.h"

namespace mavCycEd::qt {

QtValueList::QtValueList(const char* name, QWidget* parent)
    : pane_(new QWidget(parent)), label_(new QLabel(pane_)), view_(new ValueListView(sharedList(), pane_)) {
  view_->setObjectName(QLatin1String(name));
  label_->setBuddy(view_);
  label_->hide();
  auto* const layout = new QVBoxLayout(pane_);
  layout->setContentsMargins({});
  layout->addWidget(label_);
  layout->addWidget(view_);
}

void QtValueList::setCaption(std::string_view caption) {
  ValueListPort::setCaption(caption);
  label_->setText(withoutAccessKey(caption));
  label_->setVisible(!caption.empty());
}

void QtValueList::setToolTipText(std::string_view text) {
  ValueListPort::setToolTipText(text);
  const QString plain = toQt(text);
  // Only a text that would be taken for HTML is written as such.
  view_->setToolTip(Qt::mightBeRichText(plain) ? QStringLiteral("<qt>%1</qt>").arg(plain.toHtmlEscaped()) : plain);
}

platform::Font QtValueList::font() const { return fontOf(*view_); }

void QtValueList::setCellFont(const platform::Font& font) { setFontOf(*view_, font); }

}  // namespace mavCycEd::qt
