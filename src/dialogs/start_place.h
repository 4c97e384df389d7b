#pragma once

#include <string>

#include "picture/warn.h"
#include "platform/forms/combo_box.h"
#include "platform/forms/dir_tree.h"
#include "platform/forms/plain_text.h"
#include "platform/system/files.h"
#include "platform/system/paths.h"
#include "platform/system/text.h"

namespace mill {

/// Moves the lists of a browse dialog to a directory and its drive. If it is gone, they show the
/// nearest one above it, and a tool tip says so. An empty path leaves them where they are.
inline void startAt(forms::DriveBox& drives, forms::DirTree& directories, const std::string& path) {
  const std::string place = sys::drivePath(path);
  drives.setDrive(place.substr(0, 2));
  directories.setToolTip({});
  if (place.empty()) return;
  directories.setPath(place);
  const bool isThere = sys::isDirectory(place);
  const std::string gone = place + " doesn't exist.";
  directories.setToolTip(isThere ? QString() : forms::plainToolTip(sys::shown(gone)));
}

/// The same for the directory of a file: the part after the last backslash is dropped, so a path
/// without one leaves the directory unchanged.
inline void startAtFile(forms::DriveBox& drives, forms::DirTree& directories,
                        const std::string& path) {
  const std::string file = sys::drivePath(path);
  drives.setDrive(file.substr(0, 2));
  startAt(drives, directories, file.substr(0, file.rfind('\\') + 1));
}

/// Whether the highlighted directory still exists. If it doesn't, the user is told, and the lists
/// move to the nearest one above it: a name chosen for one directory isn't meant for another.
inline bool isStillThere(forms::DriveBox& drives, forms::DirTree& directories) {
  const std::string place = directories.highlighted();
  if (sys::isDirectory(place)) return true;
  warn("The directory does not exist.\n" + place);
  startAt(drives, directories, place);
  return false;
}

}  // namespace mill
