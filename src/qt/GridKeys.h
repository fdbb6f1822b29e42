#pragma once

#include <QKeyEvent>

#include "kit/GridKeys.h"

namespace mavCycEd::qt {

/// Whether a key is pressed alone; the keypad's keys count as all others.
inline bool isPlain(const QKeyEvent& key) { return (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier; }

/// Whether a key asks for the help.
inline bool isHelpKey(const QKeyEvent& key) { return isPlain(key) && key.key() == Qt::Key_F1; }

/// What a key is to a grid of values.
kit::KeyPress keyPressOf(const QKeyEvent& key);

}  // namespace mavCycEd::qt
