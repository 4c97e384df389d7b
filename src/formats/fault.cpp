#include "formats/fault.h"

namespace mill {

std::string_view message(Fault fault) {
  switch (fault) {
    case Fault::None:
      return "";
    case Fault::PictureMissing:
      return "The file you seleted to be opened does not exist.";
    case Fault::NotABitmap:
      return "This file is not a valid bitmap file.";
    case Fault::PictureDamaged:
      return "This picture file is damaged.";
    case Fault::PictureUnreadable:
      return "This picture file can't be read.";
    case Fault::WrongDepth:
      return "Only pictures of 8 bits per pixel can be converted.";
    case Fault::WrongShape:
      return "Only complete bitmaps with a table of 256 colours can be converted.";
    case Fault::Unwritable:
      return "The file can't be written.";
    case Fault::SameDirectory:
      return "The source and destination directories must be different.";
    case Fault::PaletteMissing:
      return "The palette file does not exist.";
    case Fault::PaletteIncomplete:
      return "The palette file is incomplete.";
    case Fault::PaletteUnreadable:
      return "The palette file can't be read.";
    case Fault::PaletteUnwritable:
      return "The palette file can't be written.";
    case Fault::PaletteListMissing:
      return "The palette list file does not exist.";
    case Fault::NotAPaletteList:
      return "This file is not a valid palette list.";
  }
  return "";
}

}  // namespace mill
