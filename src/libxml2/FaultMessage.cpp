#include "libxml2/FaultMessage.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace mavCycEd::libxml2 {
namespace {

/// "%1" stands for the first name of an error, "%2" for the second one, "%n" for its number.
struct Sentence {
  int code;
  std::string_view text;
};

constexpr std::string_view anyFault = "The rules of XML are broken here.";

constexpr std::array sentences{
    Sentence{XML_ERR_DOCUMENT_EMPTY, "The document has no element."},
    Sentence{XML_ERR_DOCUMENT_END, "Behind the outermost element only comments may follow."},
    Sentence{XML_ERR_TAG_NAME_MISMATCH, "The element %1, which starts in line %n, is ended as %2."},
    Sentence{XML_ERR_TAG_NOT_FINISHED, "The text ends before the element %1 does, which starts in line %n."},
    Sentence{XML_ERR_NAME_REQUIRED,
             "A name is missing. (\"&\" itself is written \"&amp;\", \"<\" is written \"&lt;\".)"},
    Sentence{XML_ERR_ENTITYREF_SEMICOL_MISSING,
             "A reference has to end with \";\". (\"&\" itself is written \"&amp;\".)"},
    Sentence{XML_ERR_UNDECLARED_ENTITY, "There is no reference \"&%1;\"."},
    Sentence{XML_WAR_UNDECLARED_ENTITY, "There is no reference \"&%1;\"."},
    Sentence{XML_ERR_INVALID_CHAR, "The reference stands for a character that is not allowed in XML."},
    Sentence{XML_ERR_INVALID_HEX_CHARREF, "The number of the reference is not complete."},
    Sentence{XML_ERR_INVALID_DEC_CHARREF, "The number of the reference is not complete."},
    Sentence{XML_ERR_INVALID_CHARREF, "The reference stands for a character that is not allowed in XML."},
    Sentence{XML_ERR_LT_IN_ATTRIBUTE, "The value of an attribute must not hold \"<\"; it is written \"&lt;\"."},
    Sentence{XML_ERR_ATTRIBUTE_NOT_STARTED, "The value of an attribute has to stand in quotes."},
    Sentence{XML_ERR_ATTRIBUTE_NOT_FINISHED, "The value of an attribute does not end."},
    Sentence{XML_ERR_ATTRIBUTE_WITHOUT_VALUE, "The attribute %1 has no value."},
    Sentence{XML_ERR_ATTRIBUTE_REDEFINED, "The attribute %1 stands in the element twice."},
    Sentence{XML_ERR_SPACE_REQUIRED, "There has to be a blank."},
    Sentence{XML_ERR_GT_REQUIRED, "The tag does not end; \">\" is missing."},
    Sentence{XML_ERR_LTSLASH_REQUIRED, "The end of an element is missing."},
    Sentence{XML_ERR_MISPLACED_CDATA_END, "The characters \"]]>\" must not stand in a text."},
    Sentence{XML_ERR_CDATA_NOT_FINISHED, "The CDATA section does not end."},
    Sentence{XML_ERR_COMMENT_NOT_FINISHED, "The comment does not end."},
    Sentence{XML_ERR_HYPHEN_IN_COMMENT, "A comment must not hold \"--\"."},
    Sentence{XML_ERR_PI_NOT_FINISHED, "The processing instruction does not end."},
    Sentence{XML_ERR_RESERVED_XML_NAME, "The XML declaration may stand at the very start only."},
    Sentence{XML_ERR_XMLDECL_NOT_FINISHED, "The XML declaration does not end as it should."},
    Sentence{XML_ERR_VERSION_MISSING, "The XML declaration has to name its version."},
    Sentence{XML_NS_ERR_UNDEFINED_NAMESPACE, "The prefix %1 is not declared."},
    Sentence{XML_NS_ERR_ATTRIBUTE_REDEFINED, "The attribute %1 stands in the element twice."},
};

// A name of the text, as long as one likes to read.
std::string shown(const char* name) {
  constexpr std::size_t longest = 60;
  if (name == nullptr) return "?";
  std::string_view text(name);
  if (text.size() <= longest) return std::string(text);
  std::size_t end = longest;
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) --end;
  return std::string(text.substr(0, end)).append("...");
}

}  // namespace

std::string messageOf(const xmlError& error) {
  const auto* const sentence = std::ranges::find(sentences, error.code, &Sentence::code);
  if (sentence == sentences.end()) return std::string(anyFault);
  std::string message;
  for (std::string_view rest = sentence->text; !rest.empty();) {
    const std::size_t mark = std::min(rest.find('%'), rest.size());
    message.append(rest.substr(0, mark));
    if (mark == rest.size()) break;
    const char what = rest[mark + 1];
    message.append(what == 'n' ? std::to_string(error.int1) : shown(what == '1' ? error.str1 : error.str2));
    rest.remove_prefix(mark + 2);
  }
  return message;
}

}  // namespace mavCycEd::libxml2
