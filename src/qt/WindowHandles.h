#pragma once

#include <QWidget>

#include "platform/ModalDialog.h"

namespace mavCycEd::qt {

/// A widget as the number by which the editor hands it to our own services.
platform::WindowHandle handleOf(const QWidget* widget);

/// The widget of a handle; nullptr when there is none (any more).
QWidget* widgetOf(platform::WindowHandle handle);

}  // namespace mavCycEd::qt
