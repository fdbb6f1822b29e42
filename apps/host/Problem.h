#pragma once

#include <QString>
#include <QStringList>

namespace mavCycEd::host {

/// What went wrong, in sentences for the operator.
struct Problem {
  QString what;    ///< what could not be done
  QString why;     ///< the reason
  QString advice;  ///< what to do about it, and what has not been lost
};

/// The problem on one line.
inline QString asLine(const Problem& problem) {
  return QStringList{problem.what, problem.why, problem.advice}.join(QLatin1Char(' ')).simplified();
}

}  // namespace mavCycEd::host
