#pragma once

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "formats/fault.h"

namespace mill {

/// The names of all palette files that the search considers, read once for all pictures of a run.
/// They are read again after the user was asked something, since files may have been added by then.
class PaletteNames {
 public:
  /// The paths of the files with this name, the palette directory's own first.
  std::vector<std::string> find(const std::string& name);
  void forget() { paths_.reset(); }

 private:
  std::optional<std::unordered_map<std::string, std::vector<std::string>>> paths_;
};

/// Loads the palette for `PaletteIndex`: the file named after the index in the palette directory
/// or, with `Search`, one level below it. If there are several, the user chooses; if there is none,
/// the default palette is used silently. Index 0 means the colours of the standard bitmap opened
/// last. A run passes its `names`. The result is that of `LoadPalette`.
Fault FindPalette(PaletteNames* names = nullptr);

}  // namespace mill
