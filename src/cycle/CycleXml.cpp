#include "cycle/CycleXml.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "cycle/CycleText.h"
#include "text/LineEnds.h"
#include "text/Strings.h"
#include "text/XmlText.h"

namespace mavCycEd {
namespace {

using text::crLf;

/// The atom lines as the two kinds of elements that a cycle document holds of them.
struct AtomLineTexts {
  std::string summaries;  ///< the ATOMLINE elements
  std::string elements;   ///< the ATOM elements
};

void appendRawParameter(std::string& text, std::string_view name, std::string_view value) {
  text.append("<PARAMETER>").append(crLf);
  text.append("<PARAMNAME>").append(StripParamName(name)).append("</PARAMNAME>").append(crLf);
  text.append("<PARAMVALUE>").append(value).append("</PARAMVALUE>").append(crLf);
  text.append("</PARAMETER>");
}

void appendRawAtomLine(AtomLineTexts& texts, const AtomLine& line) {
  const std::string& name = line.name;
  texts.elements.append("<ATOM>").append(crLf);
  texts.elements.append("<ATOMNAME>").append(name).append("</ATOMNAME>").append(crLf);
  texts.elements.append("<PARAMETERS>").append(crLf);
  texts.summaries.append("<ATOMLINE>").append(name).append("(");
  for (const ParameterSegment& segment : line.parameters.segments()) {
    const auto fields = segment.fields();
    for (std::size_t k = 1; k < fields.size(); ++k) appendRawParameter(texts.elements, fields[0], fields[k]);
    if (fields.size() > 1) texts.summaries.append(fields.back()).append(",");
  }
  texts.summaries.append(")</ATOMLINE>").append(crLf);
  texts.elements.append(crLf).append("</PARAMETERS>").append(crLf);
  texts.elements.append("</ATOM>").append(crLf);
}

void appendRawVariables(std::string& text, const std::vector<VariableDefinition>& variables) {
  text.append("<VARIABLES>").append(crLf);
  for (const VariableDefinition& variable : variables) {
    if (!variable.isBlank()) text.append("<VALUE>").append(variable.text()).append("</VALUE>").append(crLf);
  }
  text.append("</VARIABLES>").append(crLf);
}

/// Writes a cycle document at once. It is of use only while every name and value is plain.
class PlainCycle {
 public:
  std::optional<std::string> write(const CycleContent& content) {
    bool plain = appendStart(content.facts);
    xml_.append("  <DESCRIPTION>");
    text::appendEscapedXml(xml_, text::toXmlText(content.description));
    xml_.append("</DESCRIPTION>\n");
    plain = plain && appendVariables(content.cycle.variables);
    for (const AtomLine& line : content.cycle.lines) plain = plain && appendAtomLine(line);
    plain = plain && appendEnd(content);
    if (!plain) return std::nullopt;
    return std::move(xml_);
  }

 private:
  bool appendStart(const CycleFacts& facts) {
    xml_.append("<CYCLE");
    const bool plain = appendTimestamp("Created", facts.created) && appendTimestamp("Modified", facts.modified);
    xml_.append(">\n");
    return plain;
  }

  bool appendTimestamp(std::string_view name, const std::optional<std::string>& value) {
    if (!value) return true;
    constexpr std::string_view plainCharacters = "0123456789-:.T";
    if (value->find_first_not_of(plainCharacters) != std::string::npos) return false;
    xml_.append(" ").append(name).append("=\"").append(*value).append("\"");
    return true;
  }

  bool appendVariables(const std::vector<VariableDefinition>& variables) {
    const std::size_t start = xml_.size();
    xml_.append("  <VARIABLES>\n");
    bool any = false;
    for (const VariableDefinition& variable : variables) {
      if (variable.isBlank()) continue;
      any = true;
      if (!appendElement(xml_, "    ", "VALUE", variable.text())) return false;
    }
    if (any) {
      xml_.append("  </VARIABLES>\n");
    } else {
      xml_.resize(start);
      xml_.append("  <VARIABLES/>\n");
    }
    return true;
  }

  bool appendAtomLine(const AtomLine& line) {
    std::string& elements = texts_.elements;
    std::string& summaries = texts_.summaries;
    elements.append("      <ATOM>\n");
    summaries.append("    <ATOMLINE>");
    const bool plain =
        appendElement(elements, "        ", "ATOMNAME", line.name) && text::appendPlainXml(summaries, line.name);
    summaries.append("(");
    const bool parametersPlain = plain && appendParameters(line.parameters);
    summaries.append(")</ATOMLINE>\n");
    elements.append("      </ATOM>\n");
    return parametersPlain;
  }

  bool appendParameters(const ParameterText& parameters) {
    std::string& elements = texts_.elements;
    const std::size_t start = elements.size();
    elements.append("        <PARAMETERS>\n");
    const std::size_t inside = elements.size();
    bool plain = true;
    parameters.forEachSegment([&](const ParameterSegment& segment) { plain = plain && appendSegment(segment); });
    if (!plain) return false;
    if (elements.size() == inside) {
      elements.resize(start);
      elements.append("        <PARAMETERS/>\n");
    } else {
      elements.append("        </PARAMETERS>\n");
    }
    return true;
  }

  bool appendSegment(const ParameterSegment& segment) {
    if (!segment.hasValue()) return true;
    stripped_ = StripParamName(segment.name());
    std::string_view value;
    const bool elementsPlain = segment.forEachValue([&](std::string_view each) {
      value = each;
      return appendParameter(each);
    });
    const bool plain = elementsPlain && text::appendPlainXml(texts_.summaries, value);
    texts_.summaries.append(",");
    return plain;
  }

  bool appendParameter(std::string_view value) {
    std::string& elements = texts_.elements;
    elements.append("          <PARAMETER>\n");
    if (!appendElement(elements, "            ", "PARAMNAME", stripped_)) return false;
    if (!appendElement(elements, "            ", "PARAMVALUE", value)) return false;
    elements.append("          </PARAMETER>\n");
    return true;
  }

  bool appendEnd(const CycleContent& content) {
    if (content.cycle.lines.empty()) {
      xml_.append("  <CYCLEATOMS/>\n  <ATOMSEQUENCE>\n    <ATOMS/>\n  </ATOMSEQUENCE>\n");
    } else {
      xml_.append("  <CYCLEATOMS>\n").append(texts_.summaries).append("  </CYCLEATOMS>\n");
      xml_.append("  <ATOMSEQUENCE>\n    <ATOMS>\n")
          .append(texts_.elements)
          .append("    </ATOMS>\n  </ATOMSEQUENCE>\n");
    }
    const bool plain = appendElement(xml_, "  ", "VERSION", content.facts.version.value_or(""));
    xml_.append("</CYCLE>\n");
    return plain;
  }

  static bool appendElement(std::string& xml, std::string_view indent, std::string_view name, std::string_view text) {
    xml.append(indent).append("<").append(name);
    if (text.empty()) {
      xml.append("/>\n");
      return true;
    }
    xml.append(">");
    const bool plain = text::appendPlainXml(xml, text);
    xml.append("</").append(name).append(">\n");
    return plain;
  }

  std::string xml_;
  AtomLineTexts texts_;
  std::string stripped_;
};

}  // namespace

std::string rawCycleText(const CycleContent& content) {
  AtomLineTexts atomLines;
  for (const AtomLine& line : content.cycle.lines) appendRawAtomLine(atomLines, line);

  std::string text;
  text.append("<CYCLE>").append(crLf);
  appendRawVariables(text, content.cycle.variables);
  text.append("<CYCLEATOMS>").append(crLf).append(atomLines.summaries).append("</CYCLEATOMS>").append(crLf);
  text.append("<ATOMSEQUENCE>").append(crLf).append("<ATOMS>").append(crLf);
  text.append(atomLines.elements).append(crLf);
  text.append("</ATOMS>").append(crLf).append("</ATOMSEQUENCE>").append(crLf);
  text.append("<VERSION>").append(content.facts.version.value_or("")).append("</VERSION>").append(crLf).append(crLf);
  text.append("</CYCLE>");
  return text;
}

std::optional<std::string> plainCycleXml(const CycleContent& content) { return PlainCycle().write(content); }

}  // namespace mavCycEd
