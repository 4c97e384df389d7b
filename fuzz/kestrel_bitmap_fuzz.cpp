// Any bytes as a Kestrel Bitmap: what the check lets through is read whole and written whole.

#include "formats/kestrel_bitmap.h"
#include "formats/standard_bitmap.h"
#include "fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mill;
  if (size < kKestrelHeadSize) return 0;
  const fuzz::File<kKestrelHeadSize> file({data, size});
  KestrelHead head;
  if (checkKestrelHead(file.head(), file.size(), head) != Fault::None) return 0;

  PictureRecord record;
  fuzz::Sum reading;
  fuzz::require(readKestrelBitmap(head, file.reader(), record, reading) == Fault::None);
  fuzz::require(record.Pixels.size() == static_cast<std::size_t>(head.dataSize) + 1);
  fuzz::require(record.Pixels.bytes().back() == 0);
  fuzz::require(record.biSizeImage <= head.dataSize);
  fuzz::require(reading.bytes == std::int64_t{head.dataSize} + 92);

  // A file of a few bytes may ask for a picture of a gigabyte; writing that finds nothing more.
  constexpr std::int64_t kEnough = 1 << 21;
  fillOutputHeader(record);
  const std::int64_t outputSize = standardBitmapSize(record, RowOrder::BottomUp);
  fuzz::require(outputSize >= kBitmapDataOffset);
  if (outputSize > kEnough) return 0;

  std::vector<std::uint8_t> output;
  fuzz::Sum writing;
  fuzz::require(writeStandardBitmap(record, RowOrder::BottomUp, fuzz::writer(output), writing));
  fuzz::require(static_cast<std::int64_t>(output.size()) == outputSize);
  fuzz::require(writing.bytes == outputSize);

  // The first pixel of the source is the first one of the last row.
  const int padding = rowPadding(record.biWidth, record.biHeight, record.biSizeImage);
  const auto rowSize = static_cast<std::size_t>(record.biWidth + std::max(padding, 0));
  if (record.biHeight > 0 && rowSize > 0) {
    fuzz::require(output[output.size() - rowSize] == record.Pixels.bytes()[0]);
  }
  return 0;
}
