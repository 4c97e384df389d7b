#include "picture/open_picture.h"

#include <sys/stat.h>

#include "picture/program_state.h"
#include "support/format_model.h"
#include "support/windows.h"

namespace mill {
namespace {

using forms::Answer;
using test::Bytes;

constexpr const char* kMissing = "The file you seleted to be opened does not exist.";
constexpr const char* kInvalid = "This file is not a valid bitmap file.";
constexpr const char* kDamaged = "This picture file is damaged.";
constexpr const char* kUnreadable = "This picture file can't be read.";
constexpr const char* kWrongShape =
    "Only complete bitmaps with a table of 256 colours can be converted.";
constexpr const char* kQuestion =
    "This file is a standard bitmap file.\nAre you sure you want to open it.";

/// All that a refused picture must leave alone; `IsStandardBitmap` has rules of its own.
struct Snapshot {
  BitmapHeader header = state.PictureRecord;
  ColourTable colours = state.PictureRecord.Colours;
  const std::uint8_t* pixels = state.PictureRecord.Pixels.bytes().data();
  std::int32_t index = state.PictureRecord.PaletteIndex;
  ColourTable table = state.PaletteTable;
  std::string names = state.PictureFileName + "|" + state.PictureSourceFile + "|" +
                      state.CurrentPaletteFile + "|" + state.TempPicturePath;

  bool operator==(const Snapshot&) const = default;
};

class OpenPictureTest : public test::WindowTest {
 protected:
  const Bytes kestrel = model::kestrelBitmap({.width = 4, .height = 2, .dataSize = 8});
  /// Of the shape that the program itself writes.
  const Bytes standard = model::convertedBitmap(kestrel, model::someColours(7));
};

TEST_F(OpenPictureTest, RefusesWithOneMessageAndLeavesTheStateAsItWas) {
  const Bytes huge = model::kestrelBitmap(
      {.width = 32767, .height = 32768, .dataSize = 2'000'000'000, .pixels = Bytes(100)});
  Bytes trueColour = standard;
  trueColour[28] = 24;
  struct Case {
    const char* name;
    const char* text;
    Bytes bytes;
    bool asks = false;
    bool staysStandard = true;
  };
  const Case cases[] = {
      {"missing", kMissing, {}},
      {"folder", kMissing, {}},
      {"pipe", kMissing, {}},
      {".hidden", kMissing, kestrel},
      {"one byte", kInvalid, {'K'}, false, false},
      {"ends in its head", kDamaged, {'K', 'S', 0, 0}},
      {"ends early", kDamaged, Bytes(kestrel.begin(), kestrel.end() - 1)},
      {"says to be huge", kDamaged, huge},
      {"4 bits", "Only pictures of 8 bits per pixel can be converted.",
       model::kestrelBitmap({.width = 4, .height = 2, .dataSize = 8, .depth = 4})},
      {"24 bits", kWrongShape, trueColour, true},
      {"standard head only", kWrongShape, {'B', 'M'}, true},
  };
  folder.makeFolder("folder");
  ::mkfifo(folder.path("pipe").c_str(), 0600);
  folder.write("open.bmp", kestrel);
  OpenPicture(folder.drive("open.bmp"));
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    if (!c.bytes.empty()) folder.write(c.name, c.bytes);
    state.IsStandardBitmap = true;
    const Snapshot before;
    if (c.asks) messages.answers = {Answer::Yes};
    OpenPicture(folder.drive(c.name));
    EXPECT_TRUE(Snapshot() == before);
    EXPECT_EQ(state.IsStandardBitmap, c.staysStandard);
    messages.expectLast(c.asks ? 2 : 1, c.text, "Warning!", forms::Icon::Critical);
  }
  EXPECT_FALSE(folder.exists("bmp.pal"));
}

TEST_F(OpenPictureTest, ReportsAFileThatCannotBeRead) {
  folder.write("kestrel.bmp", kestrel);
  folder.write("standard.bmp", standard);
  const Snapshot before;
  {
    const test::Limit noFiles(RLIMIT_NOFILE, 0);
    OpenPicture(folder.drive("kestrel.bmp"));
  }
  EXPECT_EQ(messages.texts(), std::vector<std::string>{kUnreadable});
  // Another program cuts the file while the question stands.
  messages.answers = {Answer::Yes};
  messages.meanwhile = [&] { std::filesystem::resize_file(folder.path("standard.bmp"), 1080); };
  OpenPicture(folder.drive("standard.bmp"));
  EXPECT_EQ(messages.texts(), (std::vector<std::string>{kQuestion, kUnreadable}));
  EXPECT_TRUE(Snapshot() == before);
}

TEST_F(OpenPictureTest, TakesColoursFromAStandardBitmapOnlyAfterYes) {
  const std::string head = "24 bytes of some header.";
  state.PaletteHeader = head;
  state.IsStandardBitmap = true;
  folder.write("sky.bmp", kestrel);
  OpenPicture(folder.drive("sky.bmp"));
  EXPECT_TRUE(messages.texts().empty());
  EXPECT_FALSE(state.IsStandardBitmap);

  folder.write("sea.bmp", standard);
  state.IsStandardBitmap = true;
  OpenPicture(folder.drive("sea.bmp"));
  messages.expectLast(1, kQuestion, "", forms::Icon::Information);
  EXPECT_FALSE(state.IsStandardBitmap);
  EXPECT_EQ(state.PictureFileName, "sky.bmp");
  EXPECT_EQ(state.PaletteTable, ColourTable{});
  EXPECT_EQ(state.CurrentPaletteFile, "");

  messages.answers = {Answer::Yes};
  OpenPicture(folder.drive("sea.bmp"));
  EXPECT_TRUE(state.IsStandardBitmap);
  EXPECT_EQ(state.PictureFileName, "sea.bmp");
  EXPECT_EQ(state.PaletteTable, test::tableOf(model::someColours(7)));
  EXPECT_EQ(state.CurrentPaletteFile, folder.path().string() + "\\bmp.pal");
  EXPECT_EQ(state.TempPicturePath, folder.path().string() + "\\temp.bmp");
  EXPECT_EQ(test::readFile(folder.path("bmp.pal")),
            model::paletteFile(head, model::someColours(7)));
}

}  // namespace
}  // namespace mill
