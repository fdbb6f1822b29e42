#pragma once

#include <libxml/tree.h>

#include <string>
#include <string_view>

#include "libxml2/Ownership.h"

namespace mavCycEd::libxml2 {

/// The node that follows `node` in document order, its own content first, as long as it lies in `root`; nullptr at the
/// end. Walking with it takes no stack, however deep the tree.
inline xmlNode* nextInTree(const xmlNode* node, const xmlNode* root) {
  if (node->children != nullptr) return node->children;
  while (node != root && node->next == nullptr) node = node->parent;
  return node == root ? nullptr : node->next;
}

/// A new text node without parent. The characters are those that a document may hold.
Owner<xmlNode> makeText(xmlDoc& document, std::string_view text);

/// Replaces the value of an attribute. The characters are those that a document may hold.
void setValue(xmlAttr& attribute, std::string_view value);

/// The name that a declaration gives a namespace.
std::string namespaceName(const xmlNs& declaration);

/// Whether a namespace's name, as libxml2 reads it, has to be readied for writing.
bool needsEscape(const xmlChar* readName);

/// Readies the name of a namespace for writing: libxml2 writes it as it stands, although it reads only "&" in a form
/// that allows this.
void escapeName(xmlNs& declaration);

}  // namespace mavCycEd::libxml2
