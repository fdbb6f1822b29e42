#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace mavCycEd::platform {

/// What an XML library implements for XmlNode: the operations on its own nodes, each known by a handle.
class XmlNodeAccess {
 public:
  using Handle = void*;

  virtual ~XmlNodeAccess() = default;

  /// The qualified name of an element; empty for the document.
  virtual std::string_view name(Handle node) const = 0;
  /// The text of a node and of everything in it, comments aside.
  virtual std::string text(Handle node) const = 0;
  /// Replaces the content of an element by a text; see XmlNode::setText.
  virtual void setText(Handle element, std::string_view text) = 0;
  /// The first child element, nullptr when there is none.
  virtual Handle firstChild(Handle node) const = 0;
  /// The next element with the same parent, nullptr when there is none.
  virtual Handle nextSibling(Handle element) const = 0;
  /// Puts `newElement`, which has no parent, into `parent` before `reference` (nullptr: at the end).
  virtual void insertBefore(Handle parent, Handle newElement, Handle reference) = 0;
  virtual std::optional<std::string> attribute(Handle element, std::string_view name) const = 0;
  virtual void setAttribute(Handle element, std::string_view name, std::string_view value) = 0;
};

class XmlNodeList;
class XmlNamedNodeMap;

/// An attribute: made by XmlDocument::createAttribute, put into an element by XmlNamedNodeMap::setNamedItem.
struct XmlAttribute {
  std::string name;
  std::string value;
};

/// A node of an XML document: the document itself or one of its elements. A light handle, copied freely; it is good
/// as long as its document lives and is not loaded anew. A default-made node is "nothing": it is false, and using it
/// is run-time error 91.
class XmlNode {
 public:
  XmlNode() = default;
  XmlNode(XmlNodeAccess& access, XmlNodeAccess::Handle handle) : access_(&access), handle_(handle) {}

  explicit operator bool() const { return handle_ != nullptr; }
  friend bool operator==(const XmlNode& a, const XmlNode& b) { return a.handle_ == b.handle_; }

  std::string_view nodeName() const;
  /// The text of this node and of everything in it.
  std::string text() const;
  /// The text as a value; the documents here carry no types, so it is the text.
  std::string nodeTypedValue() const { return text(); }
  /// Replaces the content by a text. Line ends become single line feeds, as they do when a document is parsed, and
  /// characters that XML cannot hold are left out.
  void setText(std::string_view text);

  /// The child elements in document order (text and comments are no children here).
  XmlNodeList childNodes() const;
  XmlNode firstChild() const;
  XmlNode nextSibling() const;

  /// The first element that a path leads to; nothing when there is none. A path is element names with "/" between
  /// them, from this node downwards ("CYCLE/VARIABLES"); a "/" in front makes no difference. Names are compared
  /// exactly.
  XmlNode selectSingleNode(std::string_view path) const;
  /// All elements that a path leads to, in document order.
  XmlNodeList selectNodes(std::string_view path) const;

  /// Puts a new element into this one, before `reference`, which is a child of this one, or at the end when
  /// `reference` is nothing.
  void insertBefore(const XmlNode& newElement, const XmlNode& reference);

  XmlNamedNodeMap attributes() const;
  /// The attribute of this name; nothing when the element has none.
  std::optional<XmlAttribute> getAttributeNode(std::string_view name) const;

 private:
  friend class XmlNamedNodeMap;
  XmlNodeAccess& access() const;

  XmlNodeAccess* access_ = nullptr;
  XmlNodeAccess::Handle handle_ = nullptr;
};

/// Nodes in document order.
class XmlNodeList {
 public:
  XmlNodeList() = default;
  explicit XmlNodeList(std::vector<XmlNode> nodes) : nodes_(std::move(nodes)) {}

  int length() const { return static_cast<int>(nodes_.size()); }
  /// The node at a 0-based index; nothing beyond the list.
  XmlNode item(int index) const;

  auto begin() const { return nodes_.begin(); }
  auto end() const { return nodes_.end(); }

 private:
  std::vector<XmlNode> nodes_;
};

/// The attributes of one element.
class XmlNamedNodeMap {
 public:
  explicit XmlNamedNodeMap(const XmlNode& element) : element_(element) {}

  /// Puts an attribute into the element; one of the same name is replaced.
  void setNamedItem(const XmlAttribute& attribute);

 private:
  XmlNode element_;
};

}  // namespace mavCycEd::platform
