#pragma once

#include <string>
#include <string_view>

#include "mavCycEd/CycleFacts.h"
#include "platform/XmlDocument.h"

namespace mavCycEd {

CycleFacts factsOf(platform::XmlDocument& document);

/// The cycle document that the editor's cycle is compared with: the one loaded or last handed back. It is kept as a
/// text; no document tree outlives its use.
class ReferenceCycle {
 public:
  /// Keeps a document that was read from a text; an empty text stands for an empty document.
  void setLoaded(std::string_view text, CycleFacts facts);
  /// Keeps a document that was written out: `xml` is its XmlDocument::xml.
  void setWritten(std::string xml, CycleFacts facts);

  const CycleFacts& facts() const { return facts_; }
  /// The facts of the last document that was not empty: a cycle that was handed back empty for a while keeps the
  /// time of its creation. Loading forgets them.
  const CycleFacts& timestamps() const { return timestamps_; }
  /// The document as the document service writes it out.
  const std::string& xml(platform::XmlDocumentFactory& xmlDocuments);
  /// Whether this is the text that xml() gives; `xml` comes from the document service, or reads as if it did.
  bool isWrittenAs(const std::string& xml, platform::XmlDocumentFactory& xmlDocuments);

 private:
  std::string text_;
  bool isXml_ = true;  // the text is as the document service writes it out
  CycleFacts facts_;
  CycleFacts timestamps_;
};

}  // namespace mavCycEd
