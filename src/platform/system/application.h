#pragma once

#include <string>

namespace sys {

/// What the program knows of itself.
struct Application {
  static constexpr const char* Title = "RasterMill";
  /// Major, minor and revision, parted by dots.
  static constexpr const char* Version = MILL_VERSION;

  /// The directory of the program's own file, in drive form.
  std::string Path() const;
};

inline constexpr Application App;

/// Starts the desktop's own viewer on a file, whether or not the file exists, and doesn't wait for
/// it. False where the viewer can't be started.
[[nodiscard]] bool openWithViewer(const std::string& path);

}  // namespace sys
