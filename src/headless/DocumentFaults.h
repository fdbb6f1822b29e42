#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "mavCycEd/TextFault.h"
#include "platform/XmlDocument.h"

/// What is wrong with a text that should be a catalogue, a configuration or a cycle.
namespace mavCycEd::headless {

enum class DocumentKind { Catalogue, Configuration, Cycle };

/// Why a text holds no XML document.
TextFault xmlFault(std::string_view text, platform::XmlDocumentFactory& xmlDocuments);

/// What is wrong with a document whose outermost element is `root`; nothing where it is the right one.
std::optional<TextFault> rootFault(std::string_view text, std::string_view root, DocumentKind kind);

/// Loads such a document; why it cannot be, or nothing.
std::optional<TextFault> load(platform::XmlDocument& document, std::string_view text, DocumentKind kind,
                              platform::XmlDocumentFactory& xmlDocuments);

/// A fault of the element that is the `number`th one, from 1, to start in a text that holds a document.
TextFault faultAtElement(std::string_view text, std::size_t number, std::string message);

}  // namespace mavCycEd::headless
