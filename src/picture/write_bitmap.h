#pragma once

#include <string>

#include "platform/system/file_io.h"

namespace mill {

/// Writes the shared record to `path` as a standard bitmap with the colours of `PaletteTable`. The
/// bytes replace those of an existing file from its start. On failure, or if the picture came from
/// this very file, the user gets a message, the file stays as it is and the result is false.
[[nodiscard]] bool WriteBitmap(const std::string& path, sys::Tail tail = sys::Tail::Keep);

}  // namespace mill
