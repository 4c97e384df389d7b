#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "formats/picture_record.h"

class QImage;

namespace mill {

/// Everything that windows and routines share: one open picture, one palette, one set of flags.
/// Paths are in drive form, or as the user or the environment wrote them.
struct ProgramState {
  mill::PictureRecord PictureRecord;
  /// The current palette; all zeros until the first one has been loaded.
  ColourTable PaletteTable{};

  std::string SourceDir;  ///< default source directory, a setting
  std::string DestDir;    ///< destination directory, a setting
  std::string PalDir;     ///< palette directory, a setting

  /// Directory passed to and from the browse dialogs; empty on Cancel.
  std::string BrowseResult;
  /// File pattern for the next browse dialog with a file list.
  std::string FilePattern;
  /// File name without directory given back by the file dialogs; empty on Cancel.
  std::string FileResult;

  std::string CurrentPaletteFile;  ///< path of the palette in use
  std::string DefaultPalette;      ///< path, a setting
  /// Path of the palette file with the colours of the last standard bitmap; empty before the first.
  std::string SavedColours;
  /// The 24 bytes at the head of the palette file last read; empty before the first one.
  std::string PaletteHeader;

  /// Where the preview's bitmap has been written; empty where that failed.
  std::string TempPicturePath;
  /// Whether that bitmap is the open picture's. It isn't while the user chooses a palette for a
  /// picture that has just been opened.
  bool TempPictureIsCurrent = false;
  /// File name of the open picture, without directory; empty when none is open.
  std::string PictureFileName;
  /// Path of the file that `PictureRecord` was read from, which must never be overwritten. Unlike
  /// the name it is kept after a conversion.
  std::string PictureSourceFile;
  /// Whether the open picture is a standard bitmap. Also cleared when a file of an unknown kind is
  /// refused or the user declines a standard bitmap.
  bool IsStandardBitmap = false;
  /// Whether `PictureRecord` holds a standard bitmap, regardless of files refused since.
  bool RecordIsStandard = false;

  /// The bitmap that the preview shows; null before the first one and after a failed load.
  std::shared_ptr<const QImage> PreviewDC;

  /// The selected names in list order, without directory. Only the first `SelectedCount` are valid.
  std::vector<std::string> SelectedFiles;
  std::int32_t SelectedCount = 0;

  bool ShowPrev = false;   ///< the preview window is on
  bool AutoPrev = false;   ///< selecting one file previews it
  bool ShowPal = false;    ///< the swatch window is on
  bool AutoPal = false;    ///< opening a picture looks for its palette
  bool ResizeFit = false;  ///< the preview window takes the picture's size
  bool Search = false;     ///< the palette search also looks in sub-directories
};

inline ProgramState state;

}  // namespace mill
