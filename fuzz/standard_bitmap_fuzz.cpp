// Any bytes as a standard bitmap: what the check lets through is written back as it was.

#include "formats/standard_bitmap.h"
#include "fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mill;
  if (size < kBitmapHeadSize) return 0;
  model::Bytes bytes(data, data + size);
  bytes[0] = 'B';
  bytes[1] = 'M';
  const fuzz::File<kBitmapHeadSize> file(bytes);
  BitmapHeader header;
  const Fault fault = checkStandardHead(file.head(), file.size(), header);
  fuzz::require(message(fault) == model::refusal(bytes));
  if (fault != Fault::None) return 0;

  PictureRecord record;
  fuzz::Sum reading;
  fuzz::require(readStandardBitmap(header, file.reader(), record, reading) == Fault::None);
  fuzz::require(record.PaletteIndex == 0);

  model::Bytes output;
  fuzz::Sum writing;
  fuzz::require(writeStandardBitmap(record, RowOrder::AsStored, fuzz::writer(output), writing));
  bytes.resize(1078 + static_cast<std::size_t>(header.biSizeImage));
  fuzz::require(output == bytes);
  fuzz::require(reading.bytes == writing.bytes && writing.bytes == std::ssize(output));
  return 0;
}
