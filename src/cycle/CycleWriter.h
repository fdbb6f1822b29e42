#pragma once

#include <string>
#include <string_view>

#include "cycle/ReferenceCycle.h"
#include "mavCycEd/Cycle.h"
#include "platform/Clock.h"
#include "platform/ErrorSink.h"
#include "platform/XmlDocument.h"

namespace mavCycEd {

/// Writes a cycle as a cycle document: root CYCLE with DESCRIPTION, VARIABLES, CYCLEATOMS (a summary that
/// is never read back), ATOMSEQUENCE and VERSION. Names and values go into the text as they stand; a name or value
/// that breaks the XML gives an empty document. Every writer gives an empty text when the sequence is empty.
class CycleWriter {
 public:
  CycleWriter(const Cycle& cycle, const ReferenceCycle& reference, platform::XmlDocumentFactory& xmlDocuments,
              const platform::Clock& clock, ErrorSink& errors)
      : cycle_(cycle), reference_(reference), xmlDocuments_(xmlDocuments), clock_(clock), errors_(errors) {}

  /// Version 02: no timestamps, the description escaped once more than XML asks for.
  std::string RetrieveCycleVersion02();
  /// Version 03 with both timestamps of the reference document, so that an unchanged document comes out as it was.
  std::string RetrieveCycleVersion03();
  /// Version 03 as the host gets it: `Created` of the reference document, `Modified` now.
  std::string RetrieveNewCycle();

  /// What the document that was written last says of itself; nothing where it is empty.
  const CycleFacts& writtenFacts() const { return writtenFacts_; }

 private:
  enum class ModifiedStamp { Kept, Renewed };

  std::string version02();
  std::string version03(ModifiedStamp modified);
  template <typename Complete>
  std::string written(std::string_view description, CycleFacts facts, const Complete& complete);
  CycleFacts newFormatFacts(ModifiedStamp modified) const;
  std::string description() const;

  void AppendDescriptionNode(platform::XmlDocument& document, std::string_view description);
  void AppendDescriptionNode03(platform::XmlDocument& document, std::string_view description);
  void AddAttribute(platform::XmlDocument& document, std::string_view name, std::string_view value);

  const Cycle& cycle_;
  const ReferenceCycle& reference_;
  platform::XmlDocumentFactory& xmlDocuments_;
  const platform::Clock& clock_;
  ErrorSink& errors_;
  CycleFacts writtenFacts_;
};

}  // namespace mavCycEd
