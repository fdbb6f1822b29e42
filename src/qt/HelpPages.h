#pragma once

#include <QUrl>

namespace mavCycEd::qt {

/// The pages of the help that places of the editor lead to.
enum class HelpPage { Contents, Screen, Values, Variables };

/// Where a page is: the pages are resources of the library.
QUrl urlOf(HelpPage page);

}  // namespace mavCycEd::qt
