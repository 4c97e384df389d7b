#include "picture/kestrel_bitmap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "picture/standard_bitmap.h"
#include "support/format_model.h"
#include "support/reports.h"

namespace mill {
namespace {

using model::Bytes;

constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();

Fault open(const Bytes& file, PictureRecord& record, Progress& progress, std::size_t end) {
  std::array<std::uint8_t, kKestrelHeadSize> bytes{};
  std::copy_n(file.begin(), std::min(file.size(), bytes.size()), bytes.begin());
  KestrelHead head;
  const Fault fault = checkKestrelHead(bytes, static_cast<std::int64_t>(file.size()), head);
  if (fault != Fault::None) return fault;
  return readKestrelBitmap(head, model::reader(file, kKestrelHeadSize, end), record, progress);
}

TEST(KestrelBitmap, ConvertsRowsOfEveryShape) {
  struct Shape {
    const char* name;
    model::Kestrel picture;
    std::int32_t sizeImage;
  };
  const Shape shapes[] = {
      {"exact", {.width = 16, .height = 16, .dataSize = 256}, 256},
      {"one pixel", {.width = 1, .height = 1, .dataSize = 1}, 1},
      {"padded by 4", {.width = 60, .height = 10, .dataSize = 640}, 640},
      {"surplus of 15", {.width = 30, .height = 10, .dataSize = 450}, 300},
      {"a difference of 10.5 is padding", {.width = 5, .height = 2, .dataSize = 31}, 31},
      {"a difference of 10.6 is surplus", {.width = 5, .height = 5, .dataSize = 78}, 25},
      {"9.5 goes up to 10", {.width = 5, .height = 2, .dataSize = 29}, 29},
      {"half a byte of padding goes to 0", {.width = 4, .height = 2, .dataSize = 9}, 9},
      {"rows too short", {.width = 10, .height = 4, .dataSize = 28}, 28},
      {"the widest surplus", {.width = 1, .height = 1, .dataSize = 32768}, 1},
      {"no data at all", {.width = 3, .height = 2, .dataSize = 0}, 0},
      {"empty", {.width = 0, .height = 0, .dataSize = 0}, 0},
      {"rows of padding only", {.width = 0, .height = 3, .dataSize = 12}, 12},
      {"small letters", {.width = 3, .height = 2, .dataSize = 8, .magic = "ks"}, 8},
      {"bytes behind the end",
       {.width = 4, .height = 4, .dataSize = 16, .behind = Bytes(99, 0xEE)},
       16},
      {"in several pieces", {.width = 1500, .height = 1000, .dataSize = 1504000}, 1504000},
      {"one wide row", {.width = 32767, .height = 1, .dataSize = 32767}, 32767},
      {"one tall column", {.width = 1, .height = 32768, .dataSize = 32768}, 32768},
  };
  for (const Shape& shape : shapes) {
    SCOPED_TRACE(shape.name);
    const Bytes file = model::kestrelBitmap(shape.picture);
    PictureRecord record;
    Reports reading;
    ASSERT_EQ(open(file, record, reading, kNoLimit), Fault::None);

    EXPECT_EQ(record.bfType, "KSTL");
    EXPECT_EQ(record.bfSize, shape.picture.dataSize + 44);
    EXPECT_EQ(record.biSizeImage, shape.sizeImage);
    EXPECT_EQ(record.PaletteIndex, 25);
    if (shape.sizeImage < shape.picture.dataSize) {
      EXPECT_EQ(rowPadding(record.biWidth, record.biHeight, shape.picture.dataSize), 0);
    }
    ASSERT_EQ(record.Pixels.size(), shape.picture.pixels.size() + 1);
    EXPECT_EQ(record.Pixels.bytes().back(), 0);
    EXPECT_EQ(reading.total, record.bfSize);
    EXPECT_EQ(reading.sum(), shape.picture.dataSize + 92);

    const model::Colours colours = model::someColours(3);
    std::transform(colours.begin(), colours.end(), record.Colours.begin(), [](model::Colour c) {
      return ColourEntry{c.red, c.green, c.blue, c.extra};
    });
    fillOutputHeader(record);
    Bytes written;
    Reports writing;
    ASSERT_TRUE(
        writeStandardBitmap(record, RowOrder::BottomUp, model::writer(written, kNoLimit), writing));
    EXPECT_TRUE(written == model::convertedBitmap(file, colours));
    EXPECT_EQ(writing.sum(), static_cast<std::int64_t>(written.size()));
    EXPECT_EQ(standardBitmapSize(record, RowOrder::BottomUp), writing.sum());
  }
}

TEST(KestrelBitmap, RefusesBadHeadsBeforeReadingOn) {
  constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kSmallest = std::numeric_limits<std::int32_t>::min();
  const std::string damaged = "This picture file is damaged.";
  const std::string depth = "Only pictures of 8 bits per pixel can be converted.";
  const Bytes none;
  struct Broken {
    const char* name;
    model::Kestrel picture;
    std::string_view text;
    std::size_t cut = 0;
  };
  const Broken files[] = {
      {"last byte missing", {.width = 2, .height = 2, .dataSize = 4}, damaged, 1},
      {"data missing", {.width = 9, .height = 9, .dataSize = 81, .pixels = none}, damaged},
      {"negative size", {.width = 2, .height = 2, .dataSize = -4, .pixels = none}, damaged},
      {"smallest size", {.width = 2, .height = 2, .dataSize = kSmallest, .pixels = none}, damaged},
      {"largest size", {.width = 2, .height = 2, .dataSize = kLargest, .pixels = none}, damaged},
      {"negative width", {.width = -2, .height = 2, .dataSize = 4}, damaged},
      {"negative height", {.width = 2, .height = -2, .dataSize = 4}, damaged},
      {"data without height", {.width = 2, .height = 0, .dataSize = 4}, damaged},
      {"too wide", {.width = 32768, .height = 1, .dataSize = 4}, damaged},
      {"too high", {.width = 1, .height = 32769, .dataSize = 4}, damaged},
      {"area beyond 32 bits", {.width = kLargest, .height = kLargest, .dataSize = 4}, damaged},
      {"row difference of 32768", {.width = 1, .height = 1, .dataSize = 32769}, damaged},
      {"1 bit", {.width = 2, .height = 2, .dataSize = 4, .depth = 1}, depth},
      {"24 bits", {.width = 2, .height = 2, .dataSize = 4, .depth = 24}, depth},
      {"negative depth", {.width = 2, .height = 2, .dataSize = 4, .depth = -8}, depth},
      {"damage comes first", {.width = 2, .height = -2, .dataSize = 4, .depth = 24}, damaged},
  };
  for (const Broken& broken : files) {
    SCOPED_TRACE(broken.name);
    Bytes file = model::kestrelBitmap(broken.picture);
    file.resize(file.size() - broken.cut);
    PictureRecord record;
    Reports progress;
    EXPECT_EQ(message(open(file, record, progress, kNoLimit)), broken.text);
    EXPECT_EQ(progress.total, 0);
  }
}

TEST(KestrelBitmap, LeavesTheRecordAloneWhenTheDeviceFails) {
  const Bytes file = model::kestrelBitmap({.width = 60, .height = 10, .dataSize = 640});
  for (const std::size_t end : {44, 683, 684, 704, 707}) {
    SCOPED_TRACE(end);
    PictureRecord record;
    record.bfType = "BM";
    record.PaletteIndex = 7;
    record.Pixels = PixelArray(3);
    const BitmapHeader before = record;
    Reports progress;
    EXPECT_EQ(message(open(file, record, progress, end)), "This picture file can't be read.");
    EXPECT_EQ(static_cast<BitmapHeader&>(record), before);
    EXPECT_EQ(record.PaletteIndex, 7);
    EXPECT_EQ(record.Pixels.size(), 3U);
  }
}

TEST(KestrelBitmap, TouchesOnlyWhatTheFileHas) {
  PictureRecord record;
  record.bfReserved1 = 1;
  record.bfOffBits = 2;
  record.biPlanes = 3;
  record.biClrUsed = 4;
  record.Colours[9].Green = 5;
  Reports progress;
  const Bytes file = model::kestrelBitmap({.width = 2, .height = 1, .dataSize = 2});
  ASSERT_EQ(open(file, record, progress, kNoLimit), Fault::None);
  const BitmapHeader expected{.bfType = "KSTL",
                              .bfSize = 46,
                              .bfReserved1 = 1,
                              .bfOffBits = 2,
                              .biWidth = 2,
                              .biHeight = 1,
                              .biPlanes = 3,
                              .biBitCount = 8,
                              .biSizeImage = 2,
                              .biClrUsed = 4};
  EXPECT_EQ(static_cast<BitmapHeader&>(record), expected);
  EXPECT_EQ(record.Colours[9].Green, 5);
  EXPECT_EQ(progress.sizes, (std::vector{68, 1, 1, 20, 4}));
}

TEST(KestrelBitmap, IsKnownByItsFirstTwoCharacters) {
  for (const std::string text : {"KS", "ks", "Ks", "kS", "BM", "KK"}) {
    const std::array<std::uint8_t, 2> magic{static_cast<std::uint8_t>(text[0]),
                                            static_cast<std::uint8_t>(text[1])};
    EXPECT_EQ(isKestrelBitmap(magic), text == "KS" || text == "ks") << text;
  }
}

}  // namespace
}  // namespace mill
