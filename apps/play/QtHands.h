#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QInputMethodEvent>
#include <QTest>
#include <string>

#include "ControlDriver.h"
#include "qt/Text.h"

/// What a user's hands do with widgets.
namespace mavCycEd::play {

/// Replaces the whole text of the widget with the focus in one change.
inline void pasteOverAll(QWidget& widget, const std::string& text) {
  widget.setFocus();
  QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
  if (text.empty()) {
    QTest::keyClick(&widget, Qt::Key_Delete);
  } else {
    QGuiApplication::clipboard()->setText(qt::toQt(text));
    QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
  }
}

/// Types one character: what a key gives as a key, all others as an input method enters them.
inline void typeCharacter(QWidget& widget, const QString& character) {
  if (character.size() == 1 && character[0].unicode() >= 0x20 && character[0].unicode() < 0x7F) {
    QTest::sendKeyEvent(QTest::Click, &widget, Qt::Key_unknown, character, Qt::NoModifier);
    return;
  }
  QInputMethodEvent event;
  event.setCommitString(character);
  QCoreApplication::sendEvent(&widget, &event);
}

/// The UTF-16 text, cut into characters.
inline QStringList charactersOf(const QString& text) {
  QStringList characters;
  for (const char32_t character : text.toStdU32String()) characters.append(QString::fromUcs4(&character, 1));
  return characters;
}

/// Makes a window the one that the keyboard belongs to.
inline void activate(QWidget& window) {
  if (QApplication::activeWindow() == &window) return;
  window.activateWindow();
  if (QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; })) return;
  throw StepRefused("The window of " + window.objectName().toStdString() + " does not become active.");
}

/// Lets the mouse's button go that a double click holds down.
inline void letGo(QWidget& underPointer) {
  if (QGuiApplication::mouseButtons() != Qt::NoButton) QTest::mouseRelease(&underPointer, Qt::LeftButton);
}

/// Closes the list of a combo box that is open.
inline void closeList() {
  QWidget* const popup = QApplication::activePopupWidget();
  if (popup == nullptr) return;
  if (auto* const list = popup->findChild<QAbstractItemView*>()) QTest::keyClick(list, Qt::Key_Escape);
}

/// Picks an item in a combo box's open list.
inline void pickInList(QComboBox& combo, int index) {
  combo.showPopup();
  combo.view()->setCurrentIndex(combo.model()->index(index, 0));
  QTest::keyClick(combo.view(), Qt::Key_Return);
}

}  // namespace mavCycEd::play
