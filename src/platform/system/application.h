#pragma once

#include <string>

namespace sys {

/// Facts about the program itself.
struct Application {
  static constexpr const char* Title = "RasterMill";
  /// "major.minor.revision".
  static constexpr const char* Version = MILL_VERSION;

  /// The directory of the program's own file, in drive form.
  std::string Path() const;
};

inline constexpr Application App;

/// Opens a file in the desktop's viewer without waiting for it. False if the viewer can't be
/// started; whether the file exists isn't checked.
[[nodiscard]] bool openWithViewer(const std::string& path);

}  // namespace sys
