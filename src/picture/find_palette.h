#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "formats/fault.h"

namespace mill {

/// What the searched directories hold, read once for all pictures of a run. Without it, each of
/// thousands of pictures would ask every directory for its file.
class PaletteNames {
 public:
  /// The paths of the files with this name, the palette directory's own first.
  std::vector<std::string> find(const std::string& name);
  /// Files may have come while the user was asked something: reads the directories again.
  void forget() { directories_.clear(); }

 private:
  void read();

  std::vector<std::string> directories_;
  std::unordered_map<std::string, std::vector<std::string>> paths_;
};

/// Loads the palette for `PaletteIndex`: the file named after the index in the palette directory
/// or, with `Search`, one level below it. If there are several, the user chooses; if there is none,
/// the default palette is used silently. Index 0 means the colours of the standard bitmap opened
/// last. A run passes its `names`. The result is that of `LoadPalette`.
Fault FindPalette(PaletteNames* names = nullptr);

}  // namespace mill
