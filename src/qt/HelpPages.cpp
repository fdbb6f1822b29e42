#include "qt/HelpPages.h"

#include <QtGlobal>

// The resources of a static library reach a program only where something names them. Outside of all namespaces, as Qt
// wants it.
static void addPages() { Q_INIT_RESOURCE(mavCycEd_help); }

namespace mavCycEd::qt {
namespace {

QString fileOf(HelpPage page) {
  switch (page) {
    case HelpPage::Screen: return QStringLiteral("screen.html");
    case HelpPage::Values: return QStringLiteral("values.html");
    case HelpPage::Variables: return QStringLiteral("variables.html");
    default: return QStringLiteral("index.html");
  }
}

}  // namespace

QUrl urlOf(HelpPage page) {
  addPages();
  return {QStringLiteral("qrc:/mavCycEd/help/") + fileOf(page)};
}

}  // namespace mavCycEd::qt
