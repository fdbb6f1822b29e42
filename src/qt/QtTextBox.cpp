#include "qt/QtTextBox.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <algorithm>
#include <cstddef>

#include "kit/CaretPlace.h"
#include "kit/Notify.h"
#include "qt/FocusRules.h"
#include "qt/Text.h"
#include "text/LineEnds.h"

namespace mavCycEd::qt {
namespace {

// Breaking a word into lines takes Qt the square of its length.
bool hasEndlessWord(std::string_view text) {
  constexpr std::size_t longestWrapped = 10'000;
  std::size_t begin = 0;
  while (begin + longestWrapped < text.size()) {
    const std::size_t blank = text.find_first_of(" \t\r\n", begin);
    if (std::min(blank, text.size()) - begin > longestWrapped) return true;
    begin = blank + 1;
  }
  return false;
}

class WordWrappingEdit : public QPlainTextEdit {
 public:
  using QPlainTextEdit::QPlainTextEdit;

 protected:
  void insertFromMimeData(const QMimeData* source) override {
    if (source != nullptr && hasEndlessWord(fromQt(source->text()))) setLineWrapMode(NoWrap);
    QPlainTextEdit::insertFromMimeData(source);
  }

  // The keys of undo and redo are not the box's: they go on to whoever has a meaning for them.
  bool event(QEvent* event) override {
    const bool isKey = event->type() == QEvent::ShortcutOverride || event->type() == QEvent::KeyPress;
    if (isKey && isUndoKey(static_cast<const QKeyEvent&>(*event))) {
      event->ignore();
      return event->type() == QEvent::ShortcutOverride;
    }
    return QPlainTextEdit::event(event);
  }

 private:
  static bool isUndoKey(const QKeyEvent& key) {
    return key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
  }
};

}  // namespace

QtTextBox::QtTextBox(const char* name, QWidget* parent) : edit_(new WordWrappingEdit(parent)) {
  edit_->setObjectName(QLatin1String(name));
  edit_->setTabChangesFocus(true);
  edit_->setUndoRedoEnabled(false);
  edit_->installEventFilter(this);
  connect(edit_, &QPlainTextEdit::textChanged, this, &QtTextBox::onTextChanged);
}

std::string QtTextBox::text() const { return text_; }

void QtTextBox::setText(std::string_view text) {
  std::string next = text::toCrLf(text);
  if (next == text_) return;
  const std::size_t caret = kit::caretBehindChange(text_, next);
  text_ = std::move(next);
  const QScopedValueRollback setting(settingText_, true);
  edit_->clear();  // or the new mode would lay out the old text
  edit_->setLineWrapMode(hasEndlessWord(text_) ? QPlainTextEdit::NoWrap : QPlainTextEdit::WidgetWidth);
  edit_->setPlainText(toQt(text_));
  putCaretBehind(std::string_view(text_).substr(0, caret));
}

// In the widget a line end is one character.
void QtTextBox::putCaretBehind(std::string_view text) {
  QTextCursor cursor = edit_->textCursor();
  const qsizetype place = toQt(text).replace(QLatin1String("\r\n"), QLatin1String("\n")).size();
  cursor.setPosition(static_cast<int>(std::min<qsizetype>(place, edit_->document()->characterCount() - 1)));
  edit_->setTextCursor(cursor);
  edit_->ensureCursorVisible();
}

void QtTextBox::focusAndSelectAll() {
  edit_->setFocus();
  edit_->selectAll();
}

// The raw text keeps the characters that the plain text replaces by blanks.
std::string QtTextBox::typedText() const { return text::typedToCrLf(fromQt(edit_->document()->toRawText())); }

void QtTextBox::onTextChanged() {
  if (settingText_) return;
  std::string typed = typedText();
  if (composing_ && typed == text_) return;
  text_ = std::move(typed);
  kit::tell(events_.Change);
}

bool QtTextBox::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::InputMethod:
      composing_ = static_cast<const QInputMethodEvent*>(event)->commitString().isEmpty();
      break;
    case QEvent::KeyPress:
    case QEvent::MouseButtonPress: composing_ = false; break;
    case QEvent::FocusOut:
      if (leavesControl(*edit_, static_cast<const QFocusEvent&>(*event))) kit::tell(events_.LostFocus);
      break;
    default: break;
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace mavCycEd::qt
