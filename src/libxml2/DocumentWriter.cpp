#include "libxml2/DocumentWriter.h"

#include <cstddef>
#include <exception>

#include "libxml2/Ownership.h"

namespace mavCycEd::libxml2 {
namespace {

// The calling thread's settings of libxml2 for layout, ours for as long as this lives: the host may have its own.
class LayoutSettings {
 public:
  LayoutSettings() {
    xmlIndentTreeOutput = 1;
    xmlTreeIndentString = "  ";
  }
  ~LayoutSettings() {
    xmlIndentTreeOutput = indents_;
    xmlTreeIndentString = indent_;
  }
  LayoutSettings(const LayoutSettings&) = delete;
  LayoutSettings& operator=(const LayoutSettings&) = delete;

 private:
  const int indents_ = xmlIndentTreeOutput;
  const char* const indent_ = xmlTreeIndentString;
};

// libxml2 calls this with each piece of the text; no exception may pass through it.
int appendPiece(void* text, const char* piece, int size) noexcept {
  try {
    static_cast<std::string*>(text)->append(piece, static_cast<std::size_t>(size));
    return size;
  } catch (const std::exception&) {
    return -1;
  }
}

}  // namespace

std::string writeDocument(xmlDoc& document) {
  std::string text;
  xmlNode* const root = xmlDocGetRootElement(&document);
  if (root == nullptr) return text;

  constexpr int rootLevel = 0;
  constexpr int withLayout = 1;
  const LayoutSettings settings;
  Owner<xmlOutputBuffer> output(made(xmlOutputBufferCreateIO(appendPiece, nullptr, &text, nullptr)));
  xmlNodeDumpOutput(output.get(), &document, root, rootLevel, withLayout, "UTF-8");
  if (xmlOutputBufferClose(output.release()) < 0) throw std::bad_alloc();
  text.push_back('\n');
  return text;
}

}  // namespace mavCycEd::libxml2
