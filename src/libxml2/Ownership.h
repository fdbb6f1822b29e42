#pragma once

#include <libxml/globals.h>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlIO.h>

#include <memory>
#include <new>

/// Owners of libxml2's objects, and its characters as ours.
namespace mavCycEd::libxml2 {

struct Release {
  void operator()(xmlDoc* document) const noexcept { xmlFreeDoc(document); }
  void operator()(xmlNode* node) const noexcept { xmlFreeNode(node); }
  void operator()(xmlParserCtxt* parser) const noexcept { xmlFreeParserCtxt(parser); }
  void operator()(xmlOutputBuffer* output) const noexcept { xmlOutputBufferClose(output); }
  void operator()(xmlNs** list) const noexcept { xmlFree(list); }
};

template <typename T>
using Owner = std::unique_ptr<T, Release>;

/// What a function of libxml2 made. They answer nullptr when there is no memory.
template <typename T>
T* made(T* object) {
  if (object == nullptr) throw std::bad_alloc();
  return object;
}

inline const char* fromXml(const xmlChar* text) { return reinterpret_cast<const char*>(text); }
inline const xmlChar* toXml(const char* text) { return reinterpret_cast<const xmlChar*>(text); }

}  // namespace mavCycEd::libxml2
