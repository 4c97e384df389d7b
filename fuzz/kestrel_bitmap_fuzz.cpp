// Any bytes as a Kestrel Bitmap: what the check lets through is read whole, and converted as the
// model of the format has it.

#include "formats/kestrel_bitmap.h"
#include "formats/standard_bitmap.h"
#include "fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mill;
  if (size < kKestrelHeadSize) return 0;
  model::Bytes bytes(data, data + size);
  bytes[0] = 'K';
  bytes[1] = 'S';
  const fuzz::File<kKestrelHeadSize> file(bytes);
  KestrelHead head;
  const Fault fault = checkKestrelHead(file.head(), file.size(), head);
  fuzz::require(message(fault) == model::refusal(bytes));
  if (fault != Fault::None) return 0;

  PictureRecord record;
  fuzz::Sum reading;
  fuzz::require(readKestrelBitmap(head, file.reader(), record, reading) == Fault::None);
  fuzz::require(reading.bytes == std::int64_t{head.dataSize} + 92);
  fillOutputHeader(record);
  const std::int64_t outputSize = standardBitmapSize(record, RowOrder::BottomUp);
  if (outputSize > fuzz::kEnough) return 0;

  record.Colours = model::someColours(1);
  model::Bytes output;
  fuzz::Sum writing;
  fuzz::require(writeStandardBitmap(record, RowOrder::BottomUp, fuzz::writer(output), writing));
  fuzz::require(output == model::convertedBitmap(bytes, record.Colours));
  fuzz::require(outputSize == std::ssize(output) && writing.bytes == outputSize);
  return 0;
}
