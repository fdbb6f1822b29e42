#include "headless/DocumentFaults.h"

#include <algorithm>
#include <array>
#include <utility>

#include "text/TextPosition.h"

namespace mavCycEd::headless {
namespace {

struct KindOfDocument {
  DocumentKind kind;
  std::string_view name;
  std::string_view root;
};

constexpr std::array kinds{KindOfDocument{DocumentKind::Catalogue, "catalogue", "LATESTKAM"},
                           KindOfDocument{DocumentKind::Configuration, "configuration", "Config"},
                           KindOfDocument{DocumentKind::Cycle, "cycle", "CYCLE"}};

const KindOfDocument& factsOf(DocumentKind kind) { return *std::ranges::find(kinds, kind, &KindOfDocument::kind); }

TextFault::Kind kindOf(platform::XmlFault::Kind kind) {
  switch (kind) {
    case platform::XmlFault::Kind::Empty: return TextFault::Kind::Empty;
    case platform::XmlFault::Kind::ForbiddenCharacter: return TextFault::Kind::ForbiddenCharacter;
    case platform::XmlFault::Kind::DocumentType: return TextFault::Kind::DocumentType;
    case platform::XmlFault::Kind::NotWellFormed: break;
  }
  return TextFault::Kind::NotWellFormed;
}

// Where the markup that begins at `at` ends: an offset behind it.
std::size_t endOfMarkup(std::string_view text, std::size_t at) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 3> sections{
      {{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}}};
  for (const auto& [begin, end] : sections) {
    if (text.substr(at).starts_with(begin)) return text.find(end, at + begin.size()) + end.size();
  }
  // A tag; its attributes may hold ">".
  char quote = 0;
  for (; at < text.size(); ++at) {
    if (quote == 0 && text[at] == '>') break;
    if (text[at] == quote) {
      quote = 0;
    } else if (quote == 0 && (text[at] == '"' || text[at] == '\'')) {
      quote = text[at];
    }
  }
  return at + 1;
}

std::size_t offsetOfElement(std::string_view text, std::size_t number) {
  constexpr std::string_view noElement = "!?/";
  for (std::size_t at = text.find('<'); at < text.size(); at = text.find('<', endOfMarkup(text, at))) {
    const bool isElement = at + 1 < text.size() && noElement.find(text[at + 1]) == std::string_view::npos;
    if (isElement && --number == 0) return at;
  }
  return text.size();
}

}  // namespace

TextFault xmlFault(std::string_view text, platform::XmlDocumentFactory& xmlDocuments) {
  const platform::XmlFault fault = xmlDocuments.faultIn(text).value_or(platform::XmlFault());
  return {kindOf(fault.kind), fault.line, fault.column, fault.message};
}

std::optional<TextFault> rootFault(std::string_view text, std::string_view root, DocumentKind kind) {
  const KindOfDocument& wanted = factsOf(kind);
  if (root == wanted.root) return std::nullopt;
  std::string message("The outermost element of a ");
  message.append(wanted.name).append(" is ").append(wanted.root).append(", but here it is ").append(root).append(".");
  const auto* const other = std::ranges::find(kinds, root, &KindOfDocument::root);
  if (other != kinds.end()) message.append(" This looks like a ").append(other->name).append(".");
  TextFault fault = faultAtElement(text, 1, std::move(message));
  fault.kind = TextFault::Kind::OtherRoot;
  return fault;
}

std::optional<TextFault> load(platform::XmlDocument& document, std::string_view text, DocumentKind kind,
                              platform::XmlDocumentFactory& xmlDocuments) {
  if (!document.loadXML(text)) return xmlFault(text, xmlDocuments);
  return rootFault(text, document.documentNode().firstChild().nodeName(), kind);
}

TextFault faultAtElement(std::string_view text, std::size_t number, std::string message) {
  const text::TextPosition position = text::positionAt(text, offsetOfElement(text, number));
  return {TextFault::Kind::MissingElement, position.line, position.column, std::move(message)};
}

}  // namespace mavCycEd::headless
