#include <algorithm>

#include "picture/find_palette.h"
#include "picture/hooks.h"
#include "picture/load_palette.h"
#include "picture/program_state.h"
#include "support/windows.h"

namespace mill::test {
namespace {

using model::paletteFile;
using model::someColours;

const std::string kHead("any \0 bytes \xFF, 24 of them", 24);

using Palettes = WindowTest;

TEST_F(Palettes, AFileWithAWholeHeadGivesItsEntries) {
  constexpr const char* kIncomplete = "The palette file is incomplete.";
  // A file, its size, the entries taken from it (-1 where nothing changes), and the messages.
  const std::tuple<const char*, std::size_t, int, Texts> cases[] = {
      {"gone/missing", 1048, -1, {"The palette file does not exist."}},
      {"head cut", 23, -1, {kIncomplete}},
      {"head only", 24, 0, {kIncomplete}},
      {"last entry cut", 1047, 255, {kIncomplete}},
      {"bytes behind the end", 1100, 256, {}}};
  bool isShown = false;
  hooks.updateSwatches = [&] { isShown = true; };
  state.ShowPal = true;
  for (const auto& [name, size, entries, texts] : cases) {
    SCOPED_TRACE(name);
    Bytes file = paletteFile(kHead, someColours(4));
    file.resize(size, 0xEE);
    folder.write(name, file);
    state.CurrentPaletteFile = folder.drive(name);
    state.PaletteTable = someColours(3);
    state.PaletteHeader = "old";
    isShown = false;
    LoadPalette();
    EXPECT_EQ(messages.texts(), texts);
    const bool isRead = entries >= 0;
    model::Colours expected = someColours(isRead ? 4 : 3);
    if (isRead) std::fill(expected.begin() + entries, expected.end(), ColourEntry{});
    EXPECT_EQ(state.PaletteTable, expected);
    EXPECT_EQ(state.PaletteHeader, isRead ? kHead : "old");
    EXPECT_EQ(isShown, isRead);
  }
}

TEST_F(Palettes, APictureFindsTheFilesNamedAfterItsIndex) {
  folder.makeFolder("pal/sub/deep");
  for (const char* name : {"base.pal", "pal/25.pal", "pal/0.pal", "pal/31.pal", "pal/33.PAL",
                           "pal/sub/26.pal", "pal/sub/31.pal", "pal/sub/deep/27.pal"}) {
    folder.write(name, paletteFile(kHead, someColours(3)));
  }
  folder.write("bmp.pal", paletteFile(kHead, someColours(4)));
  ::setenv("temp", folder.drive().c_str(), 1);
  state.PalDir = folder.drive("pal");
  state.DefaultPalette = folder.drive("base.pal");
  hooks.choosePalette = [&](const Texts& paths) {
    EXPECT_EQ(paths, (Texts{folder.drive("pal/31.pal"), folder.drive("pal/sub/31.pal")}));
    state.CurrentPaletteFile = paths.back();
    // Another palette appears while the user is choosing.
    folder.write("pal/40.pal", paletteFile(kHead, someColours(3)));
  };
  for (const auto& [search, isRun] :
       {std::pair(false, false), {false, true}, {true, true}, {true, false}}) {
    state.Search = search;
    PaletteNames names;
    const auto found = [run = isRun ? &names : nullptr](int index) {
      state.PictureRecord.PaletteIndex = index;
      FindPalette(run);
      return state.CurrentPaletteFile;
    };
    EXPECT_EQ(found(25), folder.drive("pal/25.pal"));
    EXPECT_EQ(found(26), folder.drive(search ? "pal/sub/26.pal" : "base.pal"));
    // Two levels down, and in capital letters.
    for (const int index : {27, 33}) EXPECT_EQ(found(index), folder.drive("base.pal")) << index;
    EXPECT_EQ(found(31), folder.drive(search ? "pal/sub/31.pal" : "pal/31.pal"));
    EXPECT_EQ(found(40), folder.drive(search ? "pal/40.pal" : "base.pal"));
    // Files come and go during a run.
    folder.write("pal/41.pal", paletteFile(kHead, someColours(3)));
    std::filesystem::remove(folder.path("pal/40.pal"));
    EXPECT_EQ(found(41) + found(40), folder.drive("pal/41.pal") + folder.drive("base.pal"));
    std::filesystem::remove(folder.path("pal/41.pal"));
    // The colours that a standard bitmap brought along.
    EXPECT_EQ(found(0), folder.drive("bmp.pal"));
    EXPECT_EQ(state.PaletteTable, someColours(4));
  }
}

}  // namespace
}  // namespace mill::test
