#include <algorithm>
#include <sstream>
#include <sys/stat.h>

#include "picture/find_palette.h"
#include "picture/hooks.h"
#include "picture/open_picture.h"
#include "picture/program_state.h"
#include "picture/write_bitmap.h"
#include "support/windows.h"

namespace mill::test {
namespace {

namespace fs = std::filesystem;

using model::changed;
using model::convertedBitmap;
using model::kestrelBitmap;
using model::someColours;

/// Opens and writes pictures as a conversion does. At the start, "open.bmp" is open.
class BitmapsTest : public WindowTest {
 protected:
  BitmapsTest() {
    hooks.isConverting = [] { return true; };
    hooks.startProgress = [this](std::int32_t size) { total = size; };
    hooks.incOpenProgress = [this](std::int64_t num, std::int32_t times) { read += num * times; };
    hooks.incProgress = [this](std::int64_t num, std::int32_t times) { written += num * times; };
    state.PaletteTable = someColours(3);
    state.ResizeFit = true;
    hooks.fitPreview = [](int, int) { ADD_FAILURE() << "The preview was resized."; };
    open("open.bmp", kestrel);
  }

  void open(const std::string& name, const Bytes& bytes, bool sayYes = false) {
    folder.write(name, bytes);
    if (sayYes) messages.answers = {QMessageBox::Yes};
    read = written = 0;
    OpenPicture(folder.drive(name));
  }
  /// The open picture is `name`, and it is written as `bitmap`. A longer file keeps its tail.
  void expectOpen(const std::string& name, Bytes bitmap) {
    EXPECT_EQ(state.PictureFileName, name);
    EXPECT_EQ(state.PictureSourceFile, folder.drive(name));
    bitmap.resize(bitmap.size() + 9, 0xEE);
    folder.write("out.bmp", Bytes(bitmap.size(), 0xEE));
    EXPECT_TRUE(WriteBitmap(folder.drive("out.bmp")));
    EXPECT_TRUE(readFile(folder.path("out.bmp")) == bitmap);
  }
  std::int64_t total = 0, read = 0, written = 0;
  const Bytes kestrel = kestrelBitmap({.width = 4, .height = 3, .dataSize = 12});
  const Bytes large = kestrelBitmap({.width = 1500, .height = 900, .dataSize = 1350000});
  const Bytes converted = convertedBitmap(kestrel, someColours(3));
  const Bytes standard = convertedBitmap(kestrel, someColours(1));
};

/// The bytes of an example in the document of the formats.
Bytes example(const std::string& name) {
  const Bytes file = readFile(MILL_DOCS "/formats.md");
  const std::string document(file.begin(), file.end()), mark = "```hex " + name + "\n";
  const std::size_t begin = document.find(mark) + mark.size();
  std::istringstream digits(document.substr(begin, document.find("```", begin) - begin));
  Bytes bytes;
  for (unsigned byte; digits >> std::hex >> byte;) bytes.push_back(std::uint8_t(byte));
  return bytes;
}
Bytes operator+(Bytes a, const Bytes& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

TEST_F(BitmapsTest, TheDocumentedExamplesAreWhatTheProgramDoes) {
  state.PaletteTable.fill({9, 9, 9, 9});
  open("documented.bmp", example("kestrel"));
  expectOpen("documented.bmp", example("headers") + Bytes(1024, 9) + example("rows"));
  EXPECT_EQ(state.PictureRecord.PaletteIndex, 7);
  state.PaletteTable[0] = {0x10, 0x20, 0x30, 255};
  state.PaletteTable[1] = {0x10, 0x20, 0x30, 0};
  EXPECT_EQ(example("list") + Bytes(1016, 9) + example("record-end"),
            model::paletteList({{state.PaletteTable, 7}}));
}

TEST_F(BitmapsTest, RowsOfEveryShapeAreConverted) {
  const std::pair<const char*, model::Kestrel> shapes[] = {
      {"the most rows, padded by 4", {.width = 1, .height = 32768, .dataSize = 163840}},
      {"the widest rows, in several pieces", {.width = 32767, .height = 40, .dataSize = 1310680}},
      {"a difference of 10.5 is padding", {.width = 5, .height = 2, .dataSize = 31}},
      {"a difference of 10.6 is surplus", {.width = 5, .height = 5, .dataSize = 78}},
      {"rows too short", {.width = 10, .height = 4, .dataSize = 28}},
      {"small letters, and bytes behind the end",
       {.width = 3, .height = 2, .dataSize = 8, .magic = "ks", .behind = Bytes(99, 0xEE)}},
      {"empty", {.width = 0, .height = 0, .dataSize = 0}},
  };
  for (const auto& [name, picture] : shapes) {
    SCOPED_TRACE(name);
    const Bytes file = kestrelBitmap(picture);
    open("in.bmp", file);
    EXPECT_EQ(state.PictureRecord.PaletteIndex, 25);
    EXPECT_EQ(total, picture.dataSize + 44);
    EXPECT_EQ(read, picture.dataSize + 92);
    const Bytes bitmap = convertedBitmap(file, someColours(3));
    expectOpen("in.bmp", bitmap);
    EXPECT_EQ(total, state.PictureRecord.bfSize);
    EXPECT_EQ(written, static_cast<std::int64_t>(bitmap.size()));
  }
}

TEST_F(BitmapsTest, AStandardBitmapIsOpenedAfterYesAndWrittenAsItWas) {
  const std::pair<const char*, Bytes> files[] = {
      {"small letters, reserved numbers",
       changed(standard, 0, {'b', 'm', 0x42, 4, 0, 0, 1, 2, 3, 4})},
      {"top-down", changed(standard, 22, {0xFD, 0xFF, 0xFF, 0xFF})},
      {"in several pieces", convertedBitmap(large, someColours(1))},
      {"compressed, smaller than its area",
       changed(standard, 18, {99, 0, 0, 0, 3, 0, 0, 0, 1, 0, 8, 0, 1})},
  };
  state.AutoPal = true;
  state.PaletteHeader = "24 bytes of some header.";
  for (const auto& [name, file] : files) {
    SCOPED_TRACE(name);
    open("in.bmp", file, true);
    EXPECT_TRUE(state.IsStandardBitmap);
    EXPECT_EQ(read, static_cast<std::int64_t>(file.size()));

    open("declined.bmp", standard);
    messages.expectLast(2,
                        "This file is a standard bitmap file.\nAre you sure you want to open it.",
                        "RasterMill", QMessageBox::Information);
    EXPECT_FALSE(state.IsStandardBitmap);
    expectOpen("in.bmp", file);
  }
  // Colours that can't be stored are used all the same, and not those in an older "bmp.pal".
  folder.write("in.bmp", convertedBitmap(kestrel, someColours(9)));
  messages.answers = {QMessageBox::Yes};
  ::setenv("temp", folder.drive("gone").c_str(), 1);
  OpenPicture(folder.drive("in.bmp"));
  messages.expectLast(2, "The palette file can't be written.\n" + state.CurrentPaletteFile,
                      "Warning!", QMessageBox::Critical);
  EXPECT_EQ(state.PaletteTable, someColours(9));
  state.PictureRecord.PaletteIndex = 0;
  FindPalette();  // finds those stored before
  EXPECT_EQ(state.PaletteTable, someColours(1));
}

TEST_F(BitmapsTest, ARefusedFileGetsOneMessageAndChangesNothing) {
  for (const auto& [name, bytes] : model::brokenPictures()) {
    SCOPED_TRACE(name);
    const std::string text = model::refusal(bytes);
    const bool asks = bytes[0] == 'B';
    state.IsStandardBitmap = true;
    open(name, bytes, asks);
    messages.expectLast(asks ? 2 : 1, text, "Warning!", QMessageBox::Critical);
    expectOpen("open.bmp", converted);
    EXPECT_EQ(state.IsStandardBitmap, text != "This file is not a valid bitmap file.");
  }
  OpenPicture(folder.drive("gone.bmp"));
  EXPECT_EQ(messages.texts(), Texts{"The file you seleted to be opened does not exist."});
}

TEST_F(BitmapsTest, AFileIsReplacedUnderItsNameAloneOrNamedInAMessage) {
  folder.write("other.bmp", Bytes(9, 0xEE));
  folder.write("new.bmp", Bytes(9, 0xEE));
  fs::permissions(folder.path("new.bmp"), fs::perms(0604));
  fs::create_hard_link(folder.path("other.bmp"), folder.path("hard.bmp"));
  fs::create_symlink("other.bmp", folder.path("link.bmp"));
  const sys::DirectoryHold hold(folder.drive());
  sys::OutputFile busy(folder.drive("busy.bmp"), sys::Tail::Keep);
  const sys::DirectoryHold another(folder.drive());  // doesn't clear what is in use
  EXPECT_TRUE(busy.commit());
  for (const char* name : {"new.bmp", "hard.bmp", "link.bmp", "busy.bmp"}) {
    EXPECT_TRUE(WriteBitmap(folder.drive(name)));
    EXPECT_EQ(readFile(folder.path(name)), converted);
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder.path(name))));
  }
  EXPECT_EQ(readFile(folder.path("other.bmp")), Bytes(9, 0xEE));
  EXPECT_EQ(fs::status(folder.path("new.bmp")).permissions(), fs::perms(0604));

  ::mkfifo(folder.path("pipe").c_str(), 0600);
  folder.makeFolder("folder");
  for (const char* name : {"gone/new.bmp", "pipe", "folder"}) {
    EXPECT_FALSE(WriteBitmap(folder.drive(name)));
    messages.expectLast(1, "The file can't be written.\n" + folder.drive(name), "Warning!",
                        QMessageBox::Critical);
  }
  fs::create_symlink("open.bmp", folder.path("source"));
  for (const char* name : {"open.bmp", "source"}) {
    EXPECT_FALSE(WriteBitmap(folder.drive(name)));
    messages.expectLast(1, "The source and destination directories must be different.", "Warning!",
                        QMessageBox::Information);
  }
  EXPECT_EQ(readFile(folder.path("open.bmp")), kestrel);
}

}  // namespace
}  // namespace mill::test
