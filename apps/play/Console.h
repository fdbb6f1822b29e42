#pragma once

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>

#include <cstdio>
#endif

namespace mavCycEd::play {

/// Lets the standard output carry bytes as they are written, on every system.
inline void writeBytesAsTheyAre() {
#ifdef _WIN32
  _setmode(_fileno(stdout), _O_BINARY);
#endif
}

}  // namespace mavCycEd::play
