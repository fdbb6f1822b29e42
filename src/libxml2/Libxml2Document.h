#pragma once

#include <libxml/tree.h>

#include <optional>
#include <string>
#include <string_view>

#include "libxml2/Ownership.h"
#include "platform/XmlDocument.h"

namespace mavCycEd::libxml2 {

/// An XML document on a tree of libxml2. A handle is the address of a node of that tree. No element is freed before
/// the whole tree is, so that handles stay good: an element that is in no document hangs below a hidden node.
///
/// Beyond what platform::XmlNode promises:
/// - Run-time error 5 meets whoever uses a name that XML does not allow or a prefix that is not declared there, gives
///   the document a second root, changes the document node as if it were an element, puts in an element that has a
///   parent already, or names a `reference` that is no child.
/// - The tree holds no text that reading would drop: such a text is not set, and blanks beside an element that is put
///   in are removed.
class Libxml2Document final : public platform::XmlDocument, private platform::XmlNodeAccess {
 public:
  Libxml2Document();

  bool loadXML(std::string_view text) override;
  std::string xml() const override;
  platform::XmlNode createNode(std::string_view name) override;
  platform::XmlNode documentNode() override;

 private:
  // The members die from the last to the first: the elements need their document.
  struct Tree {
    Owner<xmlDoc> document;
    Owner<xmlNode> parentless;  // holds the elements that are in no document

    explicit Tree(Owner<xmlDoc> content);
  };

  std::string_view name(Handle handle) const override;
  std::string text(Handle handle) const override;
  void setText(Handle handle, std::string_view text) override;
  Handle firstChild(Handle handle) const override;
  Handle nextSibling(Handle handle) const override;
  void insertBefore(Handle parentHandle, Handle newHandle, Handle referenceHandle) override;
  std::optional<std::string> attribute(Handle handle, std::string_view attributeName) const override;
  void setAttribute(Handle handle, std::string_view attributeName, std::string_view value) override;

  bool mayInsert(const xmlNode& parent, const xmlNode& element, const xmlNode* reference) const;
  void removeContent(xmlNode& element);

  Tree tree_;
};

}  // namespace mavCycEd::libxml2
