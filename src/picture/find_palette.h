#pragma once

#include <functional>
#include <string>
#include <vector>

namespace mill {

/// Lets the user choose one of several palette files, and leaves the choice in
/// `CurrentPaletteFile`. The main window puts the chooser here before a picture can be opened.
inline std::function<void(const std::vector<std::string>& paths)> choosePalette;

/// Shows the path of the current palette on the main window.
inline std::function<void()> showPaletteFile;

/// While one lives, as during the conversion of many pictures, the palette directories are read
/// once and not for every picture; and again after the chooser or the question about a standard
/// bitmap was open, since the user may have put a palette there meanwhile.
class PaletteSearchRun {
 public:
  PaletteSearchRun();
  ~PaletteSearchRun();
  PaletteSearchRun(const PaletteSearchRun&) = delete;
  PaletteSearchRun& operator=(const PaletteSearchRun&) = delete;
};

/// Makes the palette of `PaletteIndex` the current one: the file named after the index in the
/// palette directory or, with `Search`, one level below it. Several are for the user to choose
/// from; without any the default palette is taken, silently. Index 0 stands for the colours that a
/// standard bitmap brought along.
void FindPalette();

}  // namespace mill
