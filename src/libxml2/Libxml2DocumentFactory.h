#pragma once

#include <memory>
#include <optional>
#include <string_view>

#include "platform/XmlDocument.h"

namespace mavCycEd::libxml2 {

/// Makes XML documents on libxml2. Documents share nothing: each may live in a thread of its own.
class Libxml2DocumentFactory final : public platform::XmlDocumentFactory {
 public:
  std::unique_ptr<platform::XmlDocument> createDocument() override;
  bool readDocument(std::string_view text, platform::XmlContent& content) override;
  std::optional<platform::XmlFault> faultIn(std::string_view text) override;
};

}  // namespace mavCycEd::libxml2
