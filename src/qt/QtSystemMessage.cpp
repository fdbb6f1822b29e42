#include "qt/QtSystemMessage.h"

#include <QtGlobal>
#include <cerrno>

#include "qt/Text.h"

namespace mavCycEd::qt {

std::string QtSystemMessage::formatMessage(std::int32_t code) const {
  if (code <= 0) return {};
  const QString text = qt_error_string(code);
  // For a code that it does not know the system gives a text that ends with the code itself.
  return text.endsWith(QString::number(code)) ? std::string() : fromQt(text);
}

std::int32_t QtSystemMessage::lastErrorCode() const { return errno; }

}  // namespace mavCycEd::qt
