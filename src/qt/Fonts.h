#pragma once

#include <QWidget>

#include "platform/Font.h"

namespace mavCycEd::qt {

/// The font that a widget's text is drawn in. Qt knows no character sets: it is always the default one.
platform::Font fontOf(const QWidget& widget);

/// Draws a widget's text in this font. The font that the widget has already changes nothing, so that it goes on
/// following the fonts of the application.
void setFontOf(QWidget& widget, const platform::Font& font);

}  // namespace mavCycEd::qt
