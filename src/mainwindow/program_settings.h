#pragma once

namespace mill {

/// The ten settings, in the order in which they are read and written: four paths and six flags.

void readSettings();
/// All ten, whether they have changed or not. A failure brings a message.
void writeSettings();

}  // namespace mill
