#pragma once

#include <string>
#include <utility>

#include "text/Variant.h"

namespace mavCycEd {

/// One atom line of a cycle: an elementary operation with its parameter values.
class cAtom {
 public:
  const std::string& AtomName() const { return atomName_; }
  void setAtomName(std::string name) { atomName_ = std::move(name); }

  /// The duration, kept as the text it was given as.
  const std::string& Duration() const { return duration_; }
  void setDuration(std::string duration) { duration_ = std::move(duration); }

  /// The group index, kept as the text it was given as.
  const std::string& GroupIndex() const { return groupIndex_; }
  void setGroupIndex(std::string groupIndex) { groupIndex_ = std::move(groupIndex); }

  /// The parameters, as they were stored: a plain value or an object reference. The editor keeps a text here: one
  /// segment per parameter, name, ";" and value, segments joined by a carriage return.
  const Variant& AtomParameters() const { return atomParameters_; }
  /// Stores a plain value.
  void setAtomParameters(Variant value) { atomParameters_ = std::move(value); }
  /// Stores an object reference.
  void setAtomParametersObject(ObjectReference object) { atomParameters_ = std::move(object); }

 private:
  std::string atomName_;
  std::string duration_;
  std::string groupIndex_;
  Variant atomParameters_;
};

}  // namespace mavCycEd
