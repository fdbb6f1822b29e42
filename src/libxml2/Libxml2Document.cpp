#include "libxml2/Libxml2Document.h"

#include <libxml/valid.h>

#include <utility>

#include "libxml2/DocumentReader.h"
#include "libxml2/DocumentWriter.h"
#include "libxml2/Layout.h"
#include "libxml2/Tree.h"
#include "platform/RunTimeError.h"
#include "text/XmlText.h"

namespace mavCycEd::libxml2 {

using platform::XmlNode;

namespace {

constexpr std::string_view namespaceAttribute = "xmlns";

Owner<xmlDoc> makeEmptyDocument() { return Owner<xmlDoc>(made(xmlNewDoc(toXml("1.0")))); }

void require(bool allowed) {
  if (!allowed) throw RunTimeError(ErrorNumber::InvalidProcedureCall);
}

// The document is a node too: it begins with the same members.
xmlNode& nodeOf(void* handle) { return *static_cast<xmlNode*>(handle); }

xmlNode& elementOf(void* handle) {
  xmlNode& node = nodeOf(handle);
  require(node.type == XML_ELEMENT_NODE);
  return node;
}

xmlNode* firstElement(xmlNode* node) {
  while (node != nullptr && node->type != XML_ELEMENT_NODE) node = node->next;
  return node;
}

struct QualifiedName {
  std::string prefix;
  std::string local;
};

QualifiedName qualifiedName(std::string_view name) {
  const std::size_t colon = name.find(':');
  if (colon == std::string_view::npos) return {{}, std::string(name)};
  return {std::string(name.substr(0, colon)), std::string(name.substr(colon + 1))};
}

// Whether this is a name without a colon.
bool isPlainName(const std::string& name) {
  return name.find('\0') == std::string::npos && text::isXmlText(name) &&
         xmlValidateNCName(toXml(name.c_str()), 0) == 0;
}

std::string_view prefixOf(const xmlNs* space) {
  return space == nullptr || space->prefix == nullptr ? std::string_view() : fromXml(space->prefix);
}

xmlAttr* findAttribute(const xmlNode& element, const QualifiedName& name) {
  xmlAttr* attribute = element.properties;
  while (attribute != nullptr && (fromXml(attribute->name) != name.local || prefixOf(attribute->ns) != name.prefix)) {
    attribute = attribute->next;
  }
  return attribute;
}

// The name of the namespace that the element itself declares for a prefix; the default namespace has an empty prefix.
std::optional<std::string> declaredNamespace(const xmlNode& element, std::string_view prefix) {
  for (const xmlNs* space = element.nsDef; space != nullptr; space = space->next) {
    if (prefixOf(space) == prefix) return namespaceName(*space);
  }
  return std::nullopt;
}

// Repeats in an element, which left its place, the declarations that were in force there.
void declareNamespaces(xmlNode& element, xmlNs* const* spaces) {
  if (spaces == nullptr) return;
  for (; *spaces != nullptr; ++spaces) xmlNewNs(&element, (*spaces)->href, (*spaces)->prefix);
}

// Whether `node` is the element or lies in it.
bool isWithin(const xmlNode* node, const xmlNode& element) {
  if (element.children == nullptr) return node == &element;
  while (node != nullptr && node != &element) node = node->parent;
  return node != nullptr;
}

void dropLayoutBesideMarkup(xmlNode* node) {
  if (node == nullptr || node->type != XML_TEXT_NODE || !isLayout(fromXml(node->content), true)) return;
  xmlUnlinkNode(node);
  const Owner<xmlNode> dropped(node);
}

}  // namespace

Libxml2Document::Tree::Tree(Owner<xmlDoc> content)
    : document(std::move(content)), parentless(made(xmlNewDocFragment(document.get()))) {
  // Without this, characters of attributes that are not ASCII would be written as character references.
  if (document->encoding == nullptr) document->encoding = made(xmlStrdup(toXml("UTF-8")));
}

Libxml2Document::Libxml2Document() : tree_(makeEmptyDocument()) {}

bool Libxml2Document::loadXML(std::string_view text) {
  Owner<xmlDoc> document = readDocument(text);
  const bool loaded = document != nullptr;
  Tree old(loaded ? std::move(document) : makeEmptyDocument());
  std::swap(old, tree_);
  return loaded;
}

std::string Libxml2Document::xml() const { return writeDocument(*tree_.document); }

XmlNode Libxml2Document::createNode(std::string_view name) {
  const std::string elementName(name);
  require(isPlainName(elementName));
  xmlNode* const element = made(xmlNewDocNode(tree_.document.get(), nullptr, toXml(elementName.c_str()), nullptr));
  xmlAddChild(tree_.parentless.get(), element);
  return {*this, element};
}

XmlNode Libxml2Document::documentNode() { return {*this, tree_.document.get()}; }

std::string_view Libxml2Document::name(Handle handle) const {
  const xmlNode& node = nodeOf(handle);
  if (node.type != XML_ELEMENT_NODE) return {};
  if (prefixOf(node.ns).empty()) return fromXml(node.name);
  // The dictionary of the document keeps the joined name.
  return fromXml(made(xmlDictQLookup(tree_.document->dict, node.ns->prefix, node.name)));
}

std::string Libxml2Document::text(Handle handle) const {
  const xmlNode& root = nodeOf(handle);
  std::string result;
  for (const xmlNode* node = &root; node != nullptr; node = nextInTree(node, &root)) {
    if (node->type == XML_TEXT_NODE) result += fromXml(node->content);
  }
  return result;
}

void Libxml2Document::setText(Handle handle, std::string_view text) {
  xmlNode& element = elementOf(handle);
  const std::string content = text::toXmlText(text);
  Owner<xmlNode> node;
  if (!isLayout(content.c_str(), false) && !content.empty()) node = makeText(*tree_.document, content);
  removeContent(element);
  if (node != nullptr) xmlAddChild(&element, node.release());
}

// Elements get off with their lives: somebody may hold their handles.
void Libxml2Document::removeContent(xmlNode& element) {
  Owner<xmlNs*> spaces;
  while (xmlNode* const node = element.children) {
    const bool isElement = node->type == XML_ELEMENT_NODE;
    if (isElement && spaces == nullptr) spaces.reset(xmlGetNsList(tree_.document.get(), &element));
    xmlUnlinkNode(node);
    Owner<xmlNode> removed(node);
    if (!isElement) continue;
    declareNamespaces(*node, spaces.get());
    xmlAddChild(tree_.parentless.get(), removed.release());
  }
}

Libxml2Document::Handle Libxml2Document::firstChild(Handle handle) const {
  return firstElement(nodeOf(handle).children);
}

Libxml2Document::Handle Libxml2Document::nextSibling(Handle handle) const {
  const xmlNode& node = nodeOf(handle);
  return node.parent == tree_.parentless.get() ? nullptr : firstElement(node.next);
}

bool Libxml2Document::mayInsert(const xmlNode& parent, const xmlNode& element, const xmlNode* reference) const {
  if (element.parent != tree_.parentless.get() || parent.doc != element.doc || isWithin(&parent, element)) return false;
  if (parent.type == XML_DOCUMENT_NODE && parent.children != nullptr) return false;
  return reference == nullptr || reference->parent == &parent;
}

void Libxml2Document::insertBefore(Handle parentHandle, Handle newHandle, Handle referenceHandle) {
  xmlNode& parent = nodeOf(parentHandle);
  xmlNode& element = elementOf(newHandle);
  auto* const reference = static_cast<xmlNode*>(referenceHandle);
  require(mayInsert(parent, element, reference));
  xmlUnlinkNode(&element);
  if (reference != nullptr) {
    xmlAddPrevSibling(reference, &element);
  } else {
    xmlAddChild(&parent, &element);
  }
  dropLayoutBesideMarkup(element.prev);
  dropLayoutBesideMarkup(element.next);
}

std::optional<std::string> Libxml2Document::attribute(Handle handle, std::string_view attributeName) const {
  const xmlNode& node = nodeOf(handle);
  if (node.type != XML_ELEMENT_NODE) return std::nullopt;
  const QualifiedName name = qualifiedName(attributeName);
  if (attributeName == namespaceAttribute) return declaredNamespace(node, {});
  if (name.prefix == namespaceAttribute) return declaredNamespace(node, name.local);
  const xmlAttr* const found = findAttribute(node, name);
  if (found == nullptr) return std::nullopt;
  return found->children == nullptr ? std::string() : fromXml(found->children->content);
}

void Libxml2Document::setAttribute(Handle handle, std::string_view attributeName, std::string_view value) {
  xmlNode& element = elementOf(handle);
  const QualifiedName name = qualifiedName(attributeName);
  const std::string content = text::toXmlText(value);
  xmlAttr* attribute = findAttribute(element, name);
  if (attribute == nullptr) {
    const bool hasPrefix = attributeName.find(':') != std::string_view::npos;
    require(isPlainName(name.local) && attributeName != namespaceAttribute);
    xmlNs* const space = hasPrefix ? xmlSearchNs(tree_.document.get(), &element, toXml(name.prefix.c_str())) : nullptr;
    require(!hasPrefix ||
            (space != nullptr && xmlHasNsProp(&element, toXml(name.local.c_str()), space->href) == nullptr));
    attribute = made(xmlNewNsProp(&element, space, toXml(name.local.c_str()), nullptr));
  }
  setValue(*attribute, content);
}

}  // namespace mavCycEd::libxml2
