#pragma once

#include <optional>
#include <string>

#include "cycle/CycleState.h"
#include "cycle/CycleWriter.h"
#include "platform/CodePage.h"
#include "platform/ErrorSink.h"
#include "platform/XmlDocument.h"

namespace mavCycEd {

/// Hands the cycle back to the host, and tells whether it changed. The version of the reference document decides which
/// writer runs; a version that is no number decides for none, and the result is empty.
class HandBack {
 public:
  HandBack(CycleState& cycle, CycleWriter& writer, platform::XmlDocumentFactory& xmlDocuments,
           const platform::CodePage& codePage, ErrorSink& errors)
      : cycle_(cycle), writer_(writer), xmlDocuments_(xmlDocuments), codePage_(codePage), errors_(errors) {}

  /// The cycle in the newest format; it becomes the reference document.
  std::string RetrieveCycle();
  /// Recomputes the changed flag: whether the cycle, written in the format of the reference document, differs from it.
  bool CycleChanged();

 private:
  enum class Format { Old, New, Unknown };
  Format referenceFormat() const;
  std::optional<bool> compared();

  CycleState& cycle_;
  CycleWriter& writer_;
  platform::XmlDocumentFactory& xmlDocuments_;
  const platform::CodePage& codePage_;
  ErrorSink& errors_;
};

}  // namespace mavCycEd
