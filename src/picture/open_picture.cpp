#include "picture/open_picture.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "formats/kestrel_bitmap.h"
#include "formats/standard_bitmap.h"
#include "picture/hooks.h"
#include "picture/load_palette.h"
#include "picture/program_state.h"
#include "picture/temporary_files.h"
#include "picture/warn.h"
#include "platform/forms/hourglass.h"
#include "platform/system/file_io.h"
#include "platform/system/files.h"
#include "platform/system/paths.h"

namespace mill {

namespace {

using Magic = std::array<std::uint8_t, 2>;

/// A picture file, positioned after the two-byte magic once that has been read.
class PictureFile {
 public:
  explicit PictureFile(const std::string& path) : file_(path) {}

  /// A file shorter than two bytes has no magic; `magic` then stays 0.
  Fault readMagic(Magic& magic) {
    if (file_.size() < 2) return Fault::None;
    return file_.read(magic) ? Fault::None : Fault::PictureUnreadable;
  }

  /// The head, beginning with `magic`; returns `missing` if the file is shorter.
  template <std::size_t size>
  Fault readHead(const Magic& magic, std::array<std::uint8_t, size>& head, Fault missing) {
    if (file_.size() < static_cast<std::int64_t>(size)) return missing;
    std::copy(magic.begin(), magic.end(), head.begin());
    return file_.read(std::span(head).template subspan<2>()) ? Fault::None
                                                             : Fault::PictureUnreadable;
  }

  bool isOpen() const { return file_.isOpen(); }
  std::int64_t size() const { return file_.size(); }
  ReadBytes rest() {
    return [this](std::span<std::uint8_t> bytes) { return file_.read(bytes); };
  }

 private:
  sys::InputFile file_;
};

bool wantsStandardBitmap() {
  return hooks.tell({.text = "This file is a standard bitmap file.\n"
                             "Are you sure you want to open it.",
                     .buttons = forms::Buttons::YesNo,
                     .icon = forms::Icon::Information}) == forms::Answer::Yes;
}

Fault readKestrel(PictureFile& file, const Magic& magic) {
  std::array<std::uint8_t, kKestrelHeadSize> bytes{};
  KestrelHead head;
  Fault fault = file.readHead(magic, bytes, Fault::PictureDamaged);
  if (fault == Fault::None) fault = checkKestrelHead(bytes, file.size(), head);
  if (fault != Fault::None) return fault;
  Reports reports(hooks.incOpenProgress);
  return readKestrelBitmap(head, file.rest(), state.PictureRecord, reports);
}

/// Makes the picture's own colours the current palette and saves them in a palette file. False if
/// they couldn't be saved.
bool takeColours() {
  state.PaletteTable = state.PictureRecord.Colours;
  state.CurrentPaletteFile = tempPalettePath();
  if (SavePalette()) {
    state.SavedColours = state.CurrentPaletteFile;
    return true;
  }
  if (state.ShowPal) hooks.updateSwatches();
  return false;
}

Fault readStandard(PictureFile& file, const Magic& magic) {
  std::array<std::uint8_t, kBitmapHeadSize> bytes{};
  BitmapHeader header;
  Fault fault = file.readHead(magic, bytes, Fault::WrongShape);
  if (fault == Fault::None) fault = checkStandardHead(bytes, file.size(), header);
  if (fault != Fault::None) return fault;
  Reports reports(hooks.incOpenProgress);
  return readStandardBitmap(header, file.rest(), state.PictureRecord, reports);
}

}  // namespace

void OpenPicture(const std::string& path, PaletteNames* names) {
  std::optional<PictureFile> file(path);
  if (!file->isOpen()) {
    return warn(sys::isNormalFile(path) ? Fault::PictureUnreadable : Fault::PictureMissing);
  }
  Magic magic{};
  Fault fault = Fault::None;
  {
    const forms::Hourglass hourglass;
    fault = file->readMagic(magic);
  }
  if (fault != Fault::None) return warn(fault);

  const bool standard = isStandardBitmap(magic);
  if (!standard && !isKestrelBitmap(magic)) {
    state.IsStandardBitmap = false;
    return warn(Fault::NotABitmap);
  }
  if (standard && !wantsStandardBitmap()) {
    state.IsStandardBitmap = false;
    return;
  }

  // No picture is open while this one is being read.
  std::string before = std::exchange(state.PictureFileName, {});
  {
    const forms::Hourglass hourglass;
    fault = standard ? readStandard(*file, magic) : readKestrel(*file, magic);
  }
  if (fault != Fault::None) {
    state.PictureFileName = std::move(before);
    return warn(fault);
  }
  file.reset();
  state.PictureSourceFile = path;
  state.TempPictureIsCurrent = false;
  state.IsStandardBitmap = state.RecordIsStandard = standard;
  // If the colours couldn't be saved, bmp.pal still holds older ones: don't reload it.
  const bool loadable = !standard || takeColours();

  if (!hooks.isConverting() && state.ResizeFit) {
    hooks.fitPreview(state.PictureRecord.biWidth, state.PictureRecord.biHeight);
  }
  state.PictureFileName = sys::fileNameOf(path);
  if (!hooks.isConverting()) state.TempPicturePath = tempPicturePath();
  if (!state.AutoPal) return;
  if (!loadable) return hooks.showPaletteFile();
  const Fault palette = FindPalette(names);
  const bool isBroken = palette != Fault::None && palette != Fault::PaletteMissing;
  // A run must not write the picture in the colours of another one.
  if (isBroken && hooks.isConverting()) state.PictureFileName.clear();
}

}  // namespace mill
