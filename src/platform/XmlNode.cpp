#include "platform/XmlNode.h"

#include "platform/RunTimeError.h"

namespace mavCycEd::platform {
namespace {

// Calls visit(element) for each element that `path` leads to, in document order, until visit returns false.
template <typename Visit>
bool walkPath(const XmlNode& from, std::string_view path, const Visit& visit) {
  if (!path.empty() && path.front() == '/') path.remove_prefix(1);
  const std::size_t slash = path.find('/');
  const std::string_view name = path.substr(0, slash);
  for (XmlNode child = from.firstChild(); child; child = child.nextSibling()) {
    if (child.nodeName() != name) continue;
    const bool goOn = slash == std::string_view::npos ? visit(child) : walkPath(child, path.substr(slash + 1), visit);
    if (!goOn) return false;
  }
  return true;
}

}  // namespace

XmlNodeAccess& XmlNode::access() const {
  if (handle_ == nullptr) throw RunTimeError(ErrorNumber::ObjectNotSet);
  return *access_;
}

std::string_view XmlNode::nodeName() const { return access().name(handle_); }
std::string XmlNode::text() const { return access().text(handle_); }
void XmlNode::setText(std::string_view text) { access().setText(handle_, text); }

XmlNode XmlNode::firstChild() const {
  XmlNodeAccess& nodes = access();
  return {nodes, nodes.firstChild(handle_)};
}

XmlNode XmlNode::nextSibling() const {
  XmlNodeAccess& nodes = access();
  return {nodes, nodes.nextSibling(handle_)};
}

XmlNodeList XmlNode::childNodes() const {
  std::vector<XmlNode> children;
  for (XmlNode child = firstChild(); child; child = child.nextSibling()) children.push_back(child);
  return XmlNodeList(std::move(children));
}

XmlNode XmlNode::selectSingleNode(std::string_view path) const {
  XmlNode found;
  walkPath(*this, path, [&](const XmlNode& element) {
    found = element;
    return false;
  });
  return found;
}

XmlNodeList XmlNode::selectNodes(std::string_view path) const {
  std::vector<XmlNode> found;
  walkPath(*this, path, [&](const XmlNode& element) {
    found.push_back(element);
    return true;
  });
  return XmlNodeList(std::move(found));
}

void XmlNode::insertBefore(const XmlNode& newElement, const XmlNode& reference) {
  if (!newElement) throw RunTimeError(ErrorNumber::ObjectNotSet);
  access().insertBefore(handle_, newElement.handle_, reference.handle_);
}

XmlNamedNodeMap XmlNode::attributes() const { return XmlNamedNodeMap(*this); }

std::optional<XmlAttribute> XmlNode::getAttributeNode(std::string_view name) const {
  std::optional<std::string> value = access().attribute(handle_, name);
  if (!value) return std::nullopt;
  return XmlAttribute{std::string(name), *std::move(value)};
}

XmlNode XmlNodeList::item(int index) const {
  return index >= 0 && index < length() ? nodes_[static_cast<std::size_t>(index)] : XmlNode();
}

void XmlNamedNodeMap::setNamedItem(const XmlAttribute& attribute) {
  element_.access().setAttribute(element_.handle_, attribute.name, attribute.value);
}

}  // namespace mavCycEd::platform
