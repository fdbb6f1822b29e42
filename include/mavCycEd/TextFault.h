#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace mavCycEd {

/// What is wrong with a catalogue, a configuration or a cycle as a text, and where.
struct TextFault {
  enum class Kind {
    // The text holds no XML document.
    Empty,               ///< nothing but white space
    NotWellFormed,       ///< it breaks a rule of XML
    ForbiddenCharacter,  ///< a character that XML does not allow, or bytes that are no UTF-8
    DocumentType,        ///< a document type declaration
    // The document is not what it should be.
    OtherRoot,       ///< another outermost element
    MissingElement,  ///< an element lacks one that it needs
    // A macro text holds more than can be taken over.
    NoMacroText,     ///< its first line is not "[PMA]", with a line break behind it
    UnknownAtom,     ///< the catalogue does not offer the atom of a line: its values have no names, and are dropped
    DroppedValues,   ///< a line has more values than its atom has parameters
    RefusedValue,    ///< a value that may not stand in its place: the line is left out
    AtomDefinition,  ///< the catalogue's definition of an atom in use cannot be read as a whole
  };

  Kind kind = Kind::NotWellFormed;
  std::size_t line = 1;    ///< from 1; a line ends with CR LF, CR or LF
  std::size_t column = 1;  ///< from 1, in characters; a byte order mark is none
  std::string message;     ///< a sentence or more for people, without the place
};

/// What came of reading a text.
template <typename Thing>
struct Reading {
  std::optional<Thing> value;     ///< what was read; nothing where the text is of no use
  std::vector<TextFault> faults;  ///< what is wrong with the text; none where all of it was read

  /// Whether all of the text was read.
  bool complete() const { return value.has_value() && faults.empty(); }
};

}  // namespace mavCycEd
