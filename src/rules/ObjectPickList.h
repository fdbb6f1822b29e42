#pragma once

#include <string>
#include <string_view>

#include "catalogue/AtomListProvider.h"
#include "catalogue/modCycleHelper.h"
#include "platform/ErrorSink.h"

namespace mavCycEd {

/// Builds the pick list of an object parameter.
class ObjectPickList {
 public:
  ObjectPickList(modCycleHelper& catalogue, AtomListProvider& provider, ErrorSink& errors)
      : catalogue_(catalogue), provider_(provider), errors_(errors) {}

  /// The names that a parameter of these classes (separated by ";") may take, joined by ";": "SYR" first when the
  /// whole list is "SYRINGE", the catalogue's objects of the classes that the provider does not hide, and the
  /// configuration's arguments of "FREE TEXT" and of the classes, where the list does not hold them already. The
  /// default item is the first one.
  void FillObjectItems(std::string_view classList, std::string& items, std::string& defaultItem);

 private:
  modCycleHelper& catalogue_;
  AtomListProvider& provider_;
  ErrorSink& errors_;
};

}  // namespace mavCycEd
