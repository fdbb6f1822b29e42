#pragma once

#include <optional>

#include "com/Pointers.h"
#include "platform/Font.h"

namespace mavCycEd::com {

/// The container's side of the control: where it stands, and what the container says of its surroundings.
class Site {
 public:
  void set(IOleClientSite* site) { client_ = ComPtr<IOleClientSite>(site); }
  const ComPtr<IOleClientSite>& client() const { return client_; }
  ComPtr<IOleControlSite> control() const { return client_.as<IOleControlSite>(); }

  /// The font of the surroundings; nothing where the container does not say.
  std::optional<platform::Font> font() const;
  /// A colour of the surroundings: DISPID_AMBIENT_BACKCOLOR, DISPID_AMBIENT_FORECOLOR.
  std::optional<COLORREF> colour(DISPID which) const;
  /// A setting of the surroundings: DISPID_AMBIENT_UIDEAD, DISPID_AMBIENT_USERMODE.
  bool flag(DISPID which, bool otherwise) const;

 private:
  ComPtr<IOleClientSite> client_;
};

}  // namespace mavCycEd::com
