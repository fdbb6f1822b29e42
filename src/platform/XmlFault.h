#pragma once

#include <cstddef>
#include <string>

namespace mavCycEd::platform {

/// Why a text holds no XML document, and where.
struct XmlFault {
  enum class Kind {
    Empty,               ///< nothing but white space
    NotWellFormed,       ///< it breaks a rule of XML
    ForbiddenCharacter,  ///< a character that XML does not allow, or bytes that are no UTF-8
    DocumentType,        ///< a document type declaration
  };

  Kind kind = Kind::NotWellFormed;
  std::size_t line = 1;    ///< from 1
  std::size_t column = 1;  ///< from 1, in characters
  std::string message;     ///< a sentence for people, without the place
};

}  // namespace mavCycEd::platform
