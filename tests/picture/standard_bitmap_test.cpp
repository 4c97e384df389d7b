#include "picture/standard_bitmap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "support/format_model.h"
#include "support/reports.h"

namespace mill {
namespace {

using model::Bytes;

constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();

/// A complete bitmap of 4 x 3 pixels with a number of its own in every field that may have one.
Bytes sample() {
  Bytes file = model::convertedBitmap(
      model::kestrelBitmap({.width = 4, .height = 3, .dataSize = 12}), model::someColours(1));
  for (const std::size_t at : {6, 8, 10, 14, 26, 38, 42, 46, 50}) {
    file[at] = static_cast<std::uint8_t>(at);
    file[at + 1] = 0xFE;
  }
  return file;
}

Fault open(const Bytes& file, PictureRecord& record, Progress& progress, std::size_t end) {
  BitmapHeader header;
  const Fault fault = checkStandardHead(std::span(file).first<kBitmapHeadSize>(),
                                        static_cast<std::int64_t>(file.size()), header);
  if (fault != Fault::None) return fault;
  return readStandardBitmap(header, model::reader(file, kBitmapHeadSize, end), record, progress);
}

TEST(StandardBitmap, ComesBackAsItWasUpToItsPixels) {
  struct Change {
    const char* name;
    std::size_t at;
    Bytes bytes;
  };
  const Change changes[] = {
      {"as it is", 0, {}},
      {"small letters", 0, {'b', 'm'}},
      {"top-down", 22, {0xFD, 0xFF, 0xFF, 0xFF}},
      {"compressed, smaller than its area",
       18,
       {0xFF, 0xFF, 0xFF, 0x7F, 3, 0, 0, 0, 1, 0, 8, 0, 1}},
      {"bytes behind the pixels", 1090, {1, 2, 3}},
  };
  for (const Change& change : changes) {
    SCOPED_TRACE(change.name);
    Bytes file = sample();
    file.resize(std::max(file.size(), change.at + change.bytes.size()));
    std::copy(change.bytes.begin(), change.bytes.end(),
              file.begin() + static_cast<std::ptrdiff_t>(change.at));
    PictureRecord record;
    record.PaletteIndex = 7;
    Reports reading;
    ASSERT_EQ(open(file, record, reading, kNoLimit), Fault::None);
    EXPECT_EQ(record.PaletteIndex, 0);
    EXPECT_EQ(record.Pixels.size(), 13U);
    EXPECT_EQ(record.Colours[2].Red, model::someColours(1)[2].red);

    Bytes written;
    Reports writing;
    ASSERT_TRUE(
        writeStandardBitmap(record, RowOrder::AsStored, model::writer(written, kNoLimit), writing));
    file.resize(1090);
    EXPECT_EQ(written, file);
    EXPECT_EQ(standardBitmapSize(record, RowOrder::AsStored), 1090);

    std::vector<int> tail{2, 2, 4, 4, 4, 4, 2, 2, 4, 4, 4, 4, 4, 4};
    tail.insert(tail.end(), 256, 4);
    tail.insert(tail.end(), 12, 1);
    std::vector<int> head{6};
    head.insert(head.end(), tail.begin(), tail.end());
    EXPECT_EQ(reading.total, 1090);
    EXPECT_EQ(reading.sizes, head);
    head = {2, 4};
    head.insert(head.end(), tail.begin(), tail.end());
    EXPECT_EQ(writing.sizes, head);
  }
}

TEST(StandardBitmap, RefusesOtherShapes) {
  struct Broken {
    const char* name;
    std::size_t at;
    Bytes bytes;
    std::size_t size = 1090;
  };
  const Broken files[] = {
      {"24 bits", 28, {24}},
      {"1 bit", 28, {1}},
      {"last pixel missing", 0, {}, 1089},
      {"headers only", 0, {}, 54},
      {"negative pixel size", 34, {0, 0, 0, 0x80}},
      {"pixel size not filled in", 34, {0}},
      {"pixel size beyond the file", 34, {0xFF, 0xFF, 0xFF, 0x7F}},
      {"more pixels than bytes", 18, {5}},
      {"more pixels than bytes, top-down", 22, {0xFC, 0xFF, 0xFF, 0xFF}},
      {"smallest width and height", 18, {0, 0, 0, 0x80, 0, 0, 0, 0x80}},
  };
  for (const Broken& broken : files) {
    SCOPED_TRACE(broken.name);
    Bytes file = sample();
    std::copy(broken.bytes.begin(), broken.bytes.end(),
              file.begin() + static_cast<std::ptrdiff_t>(broken.at));
    file.resize(broken.size);
    PictureRecord record;
    Reports progress;
    EXPECT_EQ(message(open(file, record, progress, kNoLimit)),
              "Only complete bitmaps with a table of 256 colours can be converted.");
    EXPECT_TRUE(record.bfType.empty());
  }
}

TEST(StandardBitmap, LeavesTheRecordAloneWhenTheDeviceFails) {
  for (const std::size_t end : {54, 1077, 1078, 1089}) {
    SCOPED_TRACE(end);
    PictureRecord record;
    record.PaletteIndex = 7;
    Reports progress;
    EXPECT_EQ(open(sample(), record, progress, end), Fault::PictureUnreadable);
    EXPECT_EQ(static_cast<BitmapHeader&>(record), BitmapHeader());
    EXPECT_EQ(record.Colours, ColourTable());
    EXPECT_EQ(record.PaletteIndex, 7);
  }
}

TEST(StandardBitmap, ReportsOnlyWhatIsWritten) {
  PictureRecord record;
  record.biWidth = 1000;
  record.biHeight = 2000;
  record.biSizeImage = 2000000;
  record.Pixels = PixelArray(2000001);
  std::ranges::fill(record.Pixels.bytes(), std::uint8_t{1});
  for (const RowOrder rows : {RowOrder::AsStored, RowOrder::BottomUp}) {
    for (const std::size_t limit : {0, 2000, 1500000, 2001077}) {
      SCOPED_TRACE(limit);
      Bytes written;
      Reports progress;
      EXPECT_FALSE(writeStandardBitmap(record, rows, model::writer(written, limit), progress));
      EXPECT_EQ(progress.sum(), static_cast<std::int64_t>(written.size()));
    }
  }
}

TEST(StandardBitmap, WritesASmallPictureAtOnce) {
  PictureRecord record;
  record.biWidth = record.biHeight = 64;
  record.biSizeImage = 4096;
  record.Pixels = PixelArray(4097);
  std::ranges::fill(record.Pixels.bytes(), std::uint8_t{1});
  std::vector<std::size_t> writes;
  Progress progress;
  const auto count = [&](std::span<const std::uint8_t> bytes) {
    writes.push_back(bytes.size());
    return true;
  };
  EXPECT_TRUE(writeStandardBitmap(record, RowOrder::BottomUp, count, progress));
  EXPECT_EQ(writes, std::vector<std::size_t>{5174});
}

TEST(StandardBitmap, IsKnownByItsFirstTwoCharacters) {
  for (const std::string text : {"BM", "bm", "Bm", "bM", "KS", "BB"}) {
    const std::array<std::uint8_t, 2> magic{static_cast<std::uint8_t>(text[0]),
                                            static_cast<std::uint8_t>(text[1])};
    EXPECT_EQ(isStandardBitmap(magic), text == "BM" || text == "bm") << text;
  }
}

}  // namespace
}  // namespace mill
