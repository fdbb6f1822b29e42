#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/XmlDocument.h"

namespace mavCycEd::test {

/// An implementation that is held to the contract.
struct XmlImplementation {
  std::string name;
  std::unique_ptr<platform::XmlDocumentFactory> (*makeFactory)();
};

inline std::ostream& operator<<(std::ostream& stream, const XmlImplementation& implementation) {
  return stream << implementation.name;
}

/// What every implementation of platform::XmlDocument does. Each test begins with a new, empty document.
class XmlDocumentContract : public testing::TestWithParam<XmlImplementation> {
 protected:
  XmlDocumentContract();

  platform::XmlDocumentFactory& factory() { return *factory_; }
  platform::XmlDocument& document() { return *document_; }
  std::unique_ptr<platform::XmlDocument> otherDocument() { return factory_->createDocument(); }

  /// Loads a text that must be accepted and answers its root element.
  platform::XmlNode load(std::string_view text);
  /// xml() of a text that must be accepted.
  std::string rewritten(std::string_view text);
  /// Expects that a text gives an empty document, also where there was another before.
  void expectRefused(std::string_view text);
  /// Expects that xml() loads again into the same tree and the same text.
  void expectWritesWhatItHolds();

 private:
  std::unique_ptr<platform::XmlDocumentFactory> factory_;
  std::unique_ptr<platform::XmlDocument> document_;
};

/// The names of elements, in order.
std::vector<std::string> names(const platform::XmlNodeList& nodes);

/// The texts of elements, in order.
std::vector<std::string> texts(const platform::XmlNodeList& nodes);

/// The value of an attribute; "(none)" when there is no such attribute.
std::string attribute(const platform::XmlNode& element, std::string_view name);

/// Puts an attribute into an element by way of the document.
void setAttribute(platform::XmlDocument& document, const platform::XmlNode& element, std::string_view name,
                  std::string_view value);

/// Everything that a reader of the tree can see: names, texts, and the attributes "a", "b", "p:a", "xmlns", "xmlns:p".
std::string outline(const platform::XmlNode& node);

/// A text many times over.
std::string repeated(std::string_view text, std::size_t times);

}  // namespace mavCycEd::test
