#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "cycle/CycleWriter.h"
#include "panels/CycleState.h"
#include "platform/CodePage.h"
#include "platform/ErrorSink.h"
#include "platform/XmlDocument.h"

namespace mavCycEd {

/// Hands the cycle back to the host, and tells whether it changed. The version of the reference document decides which
/// writer runs; a version that is no number decides for none, and the result is empty. A cycle whose text is spoiled by
/// one of its names, values or variables comes out empty as well; the host is told which one it is, once for each
/// state of the cycle.
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
  bool differs(std::string_view procedure);
  std::optional<bool> compared(std::string_view procedure);
  void tellIfSpoiled(const std::string& written, std::string_view procedure);

  CycleState& cycle_;
  CycleWriter& writer_;
  platform::XmlDocumentFactory& xmlDocuments_;
  const platform::CodePage& codePage_;
  ErrorSink& errors_;
  std::set<CycleDocument::Revision> told_;  // of which states it has been told that they are spoiled
};

}  // namespace mavCycEd
