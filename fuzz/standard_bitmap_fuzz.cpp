// Any bytes as a standard bitmap: what the check lets through is written back as it was.

#include "formats/standard_bitmap.h"
#include "fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mill;
  // All that matters stands in the first bytes. The zeros behind them make short inputs complete
  // files, which the fuzzer would hardly ever build by itself.
  constexpr std::size_t kLeast = 8192;
  std::vector<std::uint8_t> bytes(data, data + size);
  bytes.resize(std::max(size, kLeast));
  const fuzz::File<kBitmapHeadSize> file(bytes);
  BitmapHeader header;
  if (checkStandardHead(file.head(), file.size(), header) != Fault::None) return 0;

  PictureRecord record;
  fuzz::Sum reading;
  fuzz::require(readStandardBitmap(header, file.reader(), record, reading) == Fault::None);

  std::vector<std::uint8_t> output;
  fuzz::Sum writing;
  fuzz::require(writeStandardBitmap(record, RowOrder::AsStored, fuzz::writer(output), writing));
  fuzz::require(static_cast<std::int64_t>(output.size()) ==
                standardBitmapSize(record, RowOrder::AsStored));
  fuzz::require(std::equal(output.begin(), output.end(), bytes.begin()));
  fuzz::require(reading.bytes == writing.bytes);
  fuzz::require(writing.bytes == static_cast<std::int64_t>(output.size()));

  // The same record as if it had come from a Kestrel Bitmap, with sizes that no such file has.
  constexpr std::int64_t kEnough = 1 << 21;
  fillOutputHeader(record);
  const std::int64_t turnedSize = standardBitmapSize(record, RowOrder::BottomUp);
  fuzz::require(turnedSize >= kBitmapDataOffset);
  if (turnedSize > kEnough || record.biHeight > kEnough) return 0;
  output.clear();
  fuzz::require(writeStandardBitmap(record, RowOrder::BottomUp, fuzz::writer(output), writing));
  fuzz::require(static_cast<std::int64_t>(output.size()) == turnedSize);
  return 0;
}
