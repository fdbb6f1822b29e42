#include "qt/HelpBrowser.h"

#include <QEvent>
#include <QImage>
#include <QScrollBar>

namespace mavCycEd::qt {
namespace {

// Links as blue as most systems have them cannot be read on dark paper, also where the palette says so.
QColor linkColour(const QPalette& palette) {
  constexpr int middle = 128;
  const bool dark = palette.color(QPalette::Base).lightness() < middle;
  return dark ? QColor(0x8a, 0xb8, 0xff) : QColor(0x00, 0x50, 0xb0);
}

}  // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
  setOpenExternalLinks(false);
  takeColours();
}

// Pictures are made as small as the pages show them here: the text widget itself does so without smoothing.
QVariant HelpBrowser::loadResource(int type, const QUrl& name) {
  constexpr int widest = 620;
  QVariant resource = QTextBrowser::loadResource(type, name);
  if (type != QTextDocument::ImageResource) return resource;
  const QImage image = QImage::fromData(resource.toByteArray());
  if (image.width() <= widest) return resource;
  return image.scaledToWidth(widest, Qt::SmoothTransformation);
}

void HelpBrowser::changeEvent(QEvent* event) {
  QTextBrowser::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) takeColours();
}

void HelpBrowser::takeColours() {
  document()->setDefaultStyleSheet(QStringLiteral("a { color: %1; }").arg(linkColour(palette()).name()));
  if (source().isEmpty()) return;
  const int place = verticalScrollBar()->value();
  reload();
  verticalScrollBar()->setValue(place);
}

}  // namespace mavCycEd::qt
