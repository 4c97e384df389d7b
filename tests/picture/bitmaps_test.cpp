#include <cstdint>
#include <sys/stat.h>

#include "picture/conversion_progress.h"
#include "picture/open_picture.h"
#include "picture/program_state.h"
#include "picture/write_bitmap.h"
#include "support/windows.h"

namespace mill {
namespace {

using forms::Answer;
using forms::Icon;
using model::kestrelBitmap;
using model::someColours;
using test::Bytes;
using test::readFile;

constexpr const char* kMissing = "The file you seleted to be opened does not exist.";
constexpr const char* kInvalid = "This file is not a valid bitmap file.";
constexpr const char* kDamaged = "This picture file is damaged.";
constexpr const char* kUnreadable = "This picture file can't be read.";
constexpr const char* kDepth = "Only pictures of 8 bits per pixel can be converted.";
constexpr const char* kShape =
    "Only complete bitmaps with a table of 256 colours can be converted.";
constexpr const char* kQuestion =
    "This file is a standard bitmap file.\nAre you sure you want to open it.";

struct Reports : Progress {
  void start(std::int32_t size) override {
    total = size;
    sum = 0;
    if (started) started();
  }
  void report(std::int16_t num, std::int32_t times) override { sum += std::int64_t{num} * times; }

  std::int64_t total = 0, sum = 0;
  std::function<void()> started;
};

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

/// Opens and writes as a conversion does. The picture "open.bmp" is open.
class BitmapsTest : public test::WindowTest, ConversionProgress {
 protected:
  BitmapsTest() {
    conversionProgress = this;
    state.PaletteTable = test::tableOf(someColours(3));
    folder.write("open.bmp", kestrel);
    OpenPicture(folder.drive("open.bmp"));
  }
  ~BitmapsTest() override { conversionProgress = nullptr; }

  bool isActive() const override { return true; }
  Reports& opening() override { return reading; }
  Reports& writing() override { return written; }

  void open(const std::string& name, const Bytes& bytes) {
    folder.write(name, bytes);
    messages.answers = {Answer::Yes};
    OpenPicture(folder.drive(name));
  }
  /// What is written over a file of one byte.
  Bytes writtenBitmap() {
    folder.write("out.bmp", {1});
    written.sum = 0;
    EXPECT_TRUE(WriteBitmap(folder.drive("out.bmp")));
    return readFile(folder.path("out.bmp"));
  }
  /// The standard bitmap with other bytes at one place.
  Bytes changed(std::size_t at, const Bytes& bytes, std::size_t size = 1090) const {
    Bytes file = standard;
    file.resize(std::max(size, at + bytes.size()));
    std::copy(bytes.begin(), bytes.end(), file.begin() + static_cast<std::ptrdiff_t>(at));
    return file;
  }
  void expectUnwritable(const std::string& path) {
    EXPECT_FALSE(WriteBitmap(path));
    messages.expectLast(1, "The file can't be written.\n" + path, "Warning!", Icon::Critical);
  }

  Reports reading, written;
  const Bytes kestrel = kestrelBitmap({.width = 4, .height = 3, .dataSize = 12});
  const Bytes standard = model::convertedBitmap(kestrel, someColours(1));
};

TEST_F(BitmapsTest, RowsOfEveryShapeAreConverted) {
  const std::pair<const char*, model::Kestrel> shapes[] = {
      {"exact", {.width = 16, .height = 16, .dataSize = 256}},
      {"one pixel", {.width = 1, .height = 1, .dataSize = 1}},
      {"padded by 4", {.width = 60, .height = 10, .dataSize = 640}},
      {"surplus of 15", {.width = 30, .height = 10, .dataSize = 450}},
      {"a difference of 10.5 is padding", {.width = 5, .height = 2, .dataSize = 31}},
      {"a difference of 10.6 is surplus", {.width = 5, .height = 5, .dataSize = 78}},
      {"9.5 goes up to 10", {.width = 5, .height = 2, .dataSize = 29}},
      {"half a byte of padding goes to 0", {.width = 4, .height = 2, .dataSize = 9}},
      {"rows too short", {.width = 10, .height = 4, .dataSize = 28}},
      {"the widest surplus", {.width = 1, .height = 1, .dataSize = 32768}},
      {"no data at all", {.width = 3, .height = 2, .dataSize = 0}},
      {"empty", {.width = 0, .height = 0, .dataSize = 0}},
      {"rows of padding only", {.width = 0, .height = 3, .dataSize = 12}},
      {"small letters", {.width = 3, .height = 2, .dataSize = 8, .magic = "ks"}},
      {"bytes behind the end",
       {.width = 4, .height = 4, .dataSize = 16, .behind = Bytes(99, 0xEE)}},
      {"in several pieces", {.width = 1500, .height = 1000, .dataSize = 1504000}},
      {"one wide row", {.width = 32767, .height = 1, .dataSize = 32767}},
      {"one tall column", {.width = 1, .height = 32768, .dataSize = 32768}},
  };
  for (const auto& [name, picture] : shapes) {
    SCOPED_TRACE(name);
    const Bytes file = kestrelBitmap(picture);
    open("in.bmp", file);
    EXPECT_EQ(state.PictureRecord.PaletteIndex, 25);
    EXPECT_EQ(reading.total, picture.dataSize + 44);
    EXPECT_EQ(reading.sum, picture.dataSize + 92);
    const Bytes bitmap = writtenBitmap();
    EXPECT_TRUE(bitmap == model::convertedBitmap(file, someColours(3)));
    EXPECT_EQ(written.total, state.PictureRecord.bfSize);
    EXPECT_EQ(written.sum, static_cast<std::int64_t>(bitmap.size()));
  }
  EXPECT_TRUE(messages.texts().empty());
}

TEST_F(BitmapsTest, AStandardBitmapIsOpenedAfterYesAndComesBackAsItWas) {
  Bytes numbers = standard;
  for (const std::size_t at : {6, 8, 26, 38, 42, 46, 50}) {
    numbers[at] = static_cast<std::uint8_t>(at);
    numbers[at + 1] = 0xFE;
  }
  const Bytes compressed = {0xFF, 0xFF, 0xFF, 0x7F, 3, 0, 0, 0, 1, 0, 8, 0, 1};
  const std::pair<const char*, Bytes> files[] = {
      {"a number in every field", numbers},
      {"small letters", changed(0, {'b', 'm'})},
      {"top-down", changed(22, {0xFD, 0xFF, 0xFF, 0xFF})},
      {"compressed, smaller than its area", changed(18, compressed)},
      {"bytes behind the pixels", changed(1090, {1, 2, 3})},
  };
  folder.write("in.bmp", standard);
  state.IsStandardBitmap = true;
  const Snapshot before;
  OpenPicture(folder.drive("in.bmp"));
  messages.expectLast(1, kQuestion, "", Icon::Information);
  EXPECT_FALSE(state.IsStandardBitmap);
  EXPECT_TRUE(Snapshot() == before);

  state.PaletteHeader = "24 bytes of some header.";
  for (const auto& [name, file] : files) {
    SCOPED_TRACE(name);
    open("in.bmp", file);
    messages.expectLast(1, kQuestion, "", Icon::Information);
    EXPECT_TRUE(state.IsStandardBitmap);
    EXPECT_EQ(state.PictureRecord.PaletteIndex, 0);
    EXPECT_EQ(state.CurrentPaletteFile, folder.path().string() + "\\bmp.pal");
    EXPECT_EQ(readFile(folder.path("bmp.pal")),
              model::paletteFile(state.PaletteHeader, someColours(1)));
    EXPECT_EQ(reading.total, 1090);
    EXPECT_EQ(reading.sum, 1090);
    EXPECT_EQ(writtenBitmap(), Bytes(file.begin(), file.begin() + 1090));
    EXPECT_EQ(written.sum, 1090);
  }
}

TEST_F(BitmapsTest, ColoursThatCannotBeStoredAreInUseAllTheSame) {
  folder.write("bmp.pal", model::paletteFile("24 bytes of some header.", someColours(9)));
  folder.write("in.bmp", standard);
  state.AutoPal = true;
  messages.answers = {Answer::Yes};
  const test::Limit fullDisk(RLIMIT_FSIZE, 100);
  OpenPicture(folder.drive("in.bmp"));
  const std::string text = "The palette file can't be written.\n" + state.CurrentPaletteFile;
  messages.expectLast(2, text, "Warning!", Icon::Critical);
  EXPECT_EQ(state.PictureFileName, "in.bmp");
  EXPECT_EQ(state.PaletteTable, test::tableOf(someColours(1)));
}

TEST_F(BitmapsTest, WhatIsRefusedGetsOneMessageAndLeavesTheStateAsItWas) {
  struct Case {
    const char* name;
    const char* text;
    Bytes bytes;
  };
  const auto& picture = kestrelBitmap;
  const Case cases[] = {
      {"missing", kMissing, {}},
      {"folder", kMissing, {}},
      {"pipe", kMissing, {}},
      {".hidden", kMissing, kestrel},

      {"one byte", kInvalid, {'K'}},
      {"large and small", kInvalid, picture({.width = 1, .height = 1, .magic = "Ks"})},
      {"small and large", kInvalid, picture({.width = 1, .height = 1, .magic = "kS"})},
      {"standard, large and small", kInvalid, changed(0, {'B', 'm'})},
      {"standard, small and large", kInvalid, changed(0, {'b', 'M'})},

      {"head cut", kDamaged, {'K', 'S', 0, 0}},
      {"last byte missing", kDamaged, Bytes(kestrel.begin(), kestrel.end() - 1)},
      {"data missing", kDamaged, picture({.width = 9, .height = 9, .dataSize = 81, .pixels = {}})},
      {"negative size", kDamaged, picture({.height = 2, .dataSize = -4, .pixels = {}})},
      {"largest size", kDamaged, picture({.height = 2, .dataSize = INT32_MAX, .pixels = {}})},
      {"negative width", kDamaged, picture({.width = -2, .height = 2, .dataSize = 4})},
      {"negative height", kDamaged, picture({.width = 2, .height = -2, .dataSize = 4})},
      {"data without height", kDamaged, picture({.width = 2, .height = 0, .dataSize = 4})},
      {"too wide", kDamaged, picture({.width = 32768, .height = 1, .dataSize = 4})},
      {"too high", kDamaged, picture({.width = 1, .height = 32769, .dataSize = 4})},
      {"area beyond 32 bits", kDamaged,
       picture({.width = INT32_MAX, .height = INT32_MAX, .dataSize = 4})},
      {"difference of 32768", kDamaged, picture({.width = 1, .height = 1, .dataSize = 32769})},
      {"damage comes first", kDamaged, picture({.height = -2, .dataSize = 4, .depth = 24})},

      {"24 bits", kDepth, picture({.width = 2, .height = 2, .dataSize = 4, .depth = 24})},
      {"negative depth", kDepth, picture({.width = 2, .height = 2, .dataSize = 4, .depth = -8})},

      {"standard, 24 bits", kShape, changed(28, {24})},
      {"longer header", kShape, changed(14, {124})},
      {"shorter table", kShape, changed(10, {118, 0})},
      {"standard, two bytes", kShape, {'B', 'M'}},
      {"standard, last pixel missing", kShape, changed(0, {}, 1089)},
      {"negative pixel size", kShape, changed(34, {0, 0, 0, 0x80})},
      {"pixel size not filled in", kShape, changed(34, {0})},
      {"pixel size beyond the file", kShape, changed(34, {0xFF, 0xFF, 0xFF, 0x7F})},
      {"more pixels than bytes", kShape, changed(18, {5})},
      {"more pixels than bytes, top-down", kShape, changed(22, {0xFC, 0xFF, 0xFF, 0xFF})},
      {"smallest width and height", kShape, changed(18, {0, 0, 0, 0x80, 0, 0, 0, 0x80})},
  };
  folder.makeFolder("folder");
  ::mkfifo(folder.path("pipe").c_str(), 0600);
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    if (!c.bytes.empty()) folder.write(c.name, c.bytes);
    state.IsStandardBitmap = true;
    const Snapshot before;
    messages.answers = {Answer::Yes};
    OpenPicture(folder.drive(c.name));
    EXPECT_TRUE(Snapshot() == before);
    // Only a file of no known kind counts as no standard bitmap.
    EXPECT_EQ(state.IsStandardBitmap, c.text != kInvalid);
    messages.expectLast(c.text == kShape ? 2 : 1, c.text, "Warning!", Icon::Critical);
  }
  EXPECT_FALSE(folder.exists("bmp.pal"));
}

TEST_F(BitmapsTest, AFileThatCannotBeReadToItsEndLeavesTheStateAsItWas) {
  folder.write("in.bmp", kestrel);
  const Snapshot before;
  {
    const test::Limit noFiles(RLIMIT_NOFILE, 0);
    OpenPicture(folder.drive("in.bmp"));
  }
  EXPECT_EQ(messages.texts(), std::vector<std::string>{kUnreadable});
  // Another program cuts the file while it is read.
  for (const auto& [file, ends] : {std::pair(kestrel, std::vector{44, 55, 56, 79}),
                                   std::pair(standard, std::vector{54, 1077, 1078, 1089})}) {
    for (const int end : ends) {
      reading.started = [&] {
        std::filesystem::resize_file(folder.path("in.bmp"), static_cast<std::uintmax_t>(end));
      };
      open("in.bmp", file);
      EXPECT_EQ(messages.texts().back(), kUnreadable) << end;
      EXPECT_TRUE(Snapshot() == before) << end;
    }
  }
}

TEST_F(BitmapsTest, WhatCannotBeWrittenIsNamedAndKept) {
  folder.makeFolder("folder");
  ::mkfifo(folder.path("pipe").c_str(), 0600);
  std::filesystem::create_symlink("/dev/null", folder.path("device"));
  std::filesystem::create_symlink("gone/file", folder.path("dangling"));
  for (const char* name : {"gone/new", "pipe", "folder", "device", "dangling"}) {
    expectUnwritable(folder.drive(name));
  }
  for (const char* path : {"Q:\\new.bmp", "\\new.bmp"}) expectUnwritable(path);

  const Bytes old(100, 0xEE);
  folder.write("old.bmp", old);
  {
    const test::Limit fullDisk(RLIMIT_FSIZE, 1080);
    for (const char* name : {"old.bmp", "new.bmp"}) expectUnwritable(folder.drive(name));
  }
  EXPECT_EQ(readFile(folder.path("old.bmp")), old);
  EXPECT_FALSE(folder.exists("new.bmp"));
}

TEST_F(BitmapsTest, TheFileThatThePictureCameFromIsNeverWrittenOver) {
  std::filesystem::create_symlink("open.bmp", folder.path("link.bmp"));
  std::filesystem::create_hard_link(folder.path("open.bmp"), folder.path("hard.bmp"));
  std::filesystem::create_directory_symlink(".", folder.path("again"));
  for (const char* name : {"open.bmp", "link.bmp", "hard.bmp", "again/open.bmp"}) {
    EXPECT_FALSE(WriteBitmap(folder.drive(name)));
    messages.expectLast(1, "The source and destination directories must be different.", "Warning!",
                        Icon::Information);
  }
  EXPECT_EQ(readFile(folder.path("open.bmp")), kestrel);
}

}  // namespace
}  // namespace mill
