#pragma once

#include <string_view>

namespace mill {

/// What can go wrong with pictures, palettes and where they go. One fault, one message.
enum class Fault {
  None,
  PictureMissing,
  NotABitmap,
  PictureDamaged,
  PictureUnreadable,
  WrongDepth,
  WrongShape,
  Unwritable,
  SameDirectory,
  PaletteMissing,
  PaletteIncomplete,
  PaletteUnreadable,
  PaletteUnwritable,
  PaletteListMissing,
  NotAPaletteList,
};

/// The text that tells the user of `fault`; empty for `Fault::None`.
std::string_view message(Fault fault);

}  // namespace mill
