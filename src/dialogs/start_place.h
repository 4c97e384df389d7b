#pragma once

#include <string>

#include "platform/forms/combo_box.h"
#include "platform/forms/dir_tree.h"
#include "platform/system/paths.h"

namespace mill {

/// Moves the lists of a browse dialog to a directory and its drive.
inline void startAt(forms::DriveBox& drives, forms::DirTree& directories, const std::string& path) {
  const std::string place = sys::drivePath(path);
  drives.setDrive(place.substr(0, 2));
  directories.setPath(place);
}

/// The same for the directory of a file: the part after the last backslash is dropped, so a path
/// without one leaves the directory unchanged.
inline void startAtFile(forms::DriveBox& drives, forms::DirTree& directories,
                        const std::string& path) {
  const std::string file = sys::drivePath(path);
  drives.setDrive(file.substr(0, 2));
  directories.setPath(file.substr(0, file.rfind('\\') + 1));
}

}  // namespace mill
