#pragma once

namespace mill {

/// Reads and writes the ten settings, four paths and six flags, in a fixed order.

void readSettings();
/// Writes all ten, changed or not. Shows a message on failure.
void writeSettings();

}  // namespace mill
