#include "palette/load_palette.h"

#include <optional>

#include "picture/program_state.h"
#include "support/format_model.h"
#include "support/windows.h"

namespace mill {
namespace {

using model::paletteFile;
using model::someColours;
using test::Bytes;
using test::readFile;
using test::tableOf;

const std::string kHead("any \0 bytes \xFF, 24 of them", 24);

using LoadPaletteTest = test::WindowTest;

TEST_F(LoadPaletteTest, SaysWhatIsWrong) {
  Bytes headOnly = paletteFile(kHead, {});
  headOnly.resize(24);
  struct Case {
    const char* name;
    const char* text;
    bool changes;
  };
  const Case cases[] = {{"missing", "The palette file does not exist.", false},
                        {"folder", "The palette file does not exist.", false},
                        {"head cut", "The palette file is incomplete.", false},
                        {"head only", "The palette file is incomplete.", true},
                        {"unreadable", "The palette file can't be read.", false}};
  folder.makeFolder("folder");
  folder.write("head cut", Bytes(23));
  folder.write("head only", headOnly);
  folder.write("unreadable", paletteFile(kHead, someColours(2)));
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    state.PaletteTable = tableOf(someColours(1));
    state.PaletteHeader = "old";
    state.CurrentPaletteFile = folder.drive(c.name);
    std::optional<test::Limit> noFiles;
    if (c.name == std::string("unreadable")) noFiles.emplace(RLIMIT_NOFILE, 0);
    LoadPalette();
    noFiles.reset();
    if (c.name == std::string("unreadable")) {
      messages.expectLast(1, c.text + ("\n" + state.CurrentPaletteFile), "Warning!",
                          forms::Icon::Critical);
    } else {
      messages.expectLast(1, c.text, "", forms::Icon::None);
    }
    EXPECT_EQ(state.PaletteTable, c.changes ? ColourTable{} : tableOf(someColours(1)));
    EXPECT_EQ(state.PaletteHeader, c.changes ? kHead : "old");
  }
}

TEST_F(LoadPaletteTest, SavesWithTheHeadLastReadAndKeepsATail) {
  Bytes palette = paletteFile(kHead, someColours(4));
  folder.write("25.pal", palette);
  state.CurrentPaletteFile = folder.drive("25.pal");
  LoadPalette();
  folder.write("bmp.pal", Bytes(1068, 0xEE));
  state.CurrentPaletteFile = folder.drive("bmp.pal");
  SavePalette();
  palette.resize(1068, 0xEE);
  EXPECT_EQ(readFile(folder.path("bmp.pal")), palette);

  // Before any palette has been read there is no head, and the colours stand in its place.
  state.PaletteHeader.clear();
  state.CurrentPaletteFile = folder.drive("new.pal");
  SavePalette();
  EXPECT_EQ(readFile(folder.path("new.pal")), paletteFile("", someColours(4)));
  EXPECT_TRUE(messages.texts().empty());

  state.CurrentPaletteFile = folder.drive("missing/bmp.pal");
  SavePalette();
  messages.expectLast(1, "The palette file can't be written.\n" + state.CurrentPaletteFile,
                      "Warning!", forms::Icon::Critical);
}

}  // namespace
}  // namespace mill
