// How fast the picture formats are read and written in memory, compared with copying as many bytes:
// there is nothing to compute, so anything beyond the copy is overhead.

#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

#include "formats/kestrel_bitmap.h"
#include "formats/little_endian.h"
#include "formats/standard_bitmap.h"

namespace {

using namespace mill;

using Bytes = std::vector<std::uint8_t>;

Bytes kestrelBitmap(std::int32_t width, std::int32_t height) {
  const std::int32_t dataSize = width * height;
  Bytes file(static_cast<std::size_t>(dataSize) + kKestrelFrameSize, 0x5A);
  storeLittleEndian(file, 20, width);
  storeLittleEndian(file, 24, height);
  storeLittleEndian(file, 28, std::int16_t{8});
  storeLittleEndian(file, 40, dataSize);
  return file;
}

ReadBytes memoryReader(std::span<const std::uint8_t> from) {
  return [from](std::span<std::uint8_t> to) mutable {
    if (to.size() > from.size()) return false;
    std::memcpy(to.data(), from.data(), to.size());
    from = from.subspan(to.size());
    return true;
  };
}

WriteBytes memoryWriter(std::span<std::uint8_t> to) {
  return [to](std::span<const std::uint8_t> from) mutable {
    if (from.size() > to.size()) return false;
    std::memcpy(to.data(), from.data(), from.size());
    to = to.subspan(from.size());
    return true;
  };
}

bool readPicture(const Bytes& file, PictureRecord& record) {
  const std::span bytes(file);
  KestrelHead head;
  Progress progress;
  return checkKestrelHead(bytes.first<kKestrelHeadSize>(), static_cast<std::int64_t>(bytes.size()),
                          head) == Fault::None &&
         readKestrelBitmap(head, memoryReader(bytes.subspan(kKestrelHeadSize)), record, progress) ==
             Fault::None;
}

std::int32_t width(const benchmark::State& state) {
  return static_cast<std::int32_t>(state.range(0));
}
std::int32_t height(const benchmark::State& state) {
  return static_cast<std::int32_t>(state.range(1));
}

void countBytes(benchmark::State& state) {
  state.SetBytesProcessed(state.iterations() * state.range(0) * state.range(1));
}

void copy(benchmark::State& state) {
  const Bytes from = kestrelBitmap(width(state), height(state));
  Bytes to(from.size());
  while (state.KeepRunning()) {
    std::memcpy(to.data(), from.data(), from.size());
    benchmark::ClobberMemory();
  }
  countBytes(state);
}

void read(benchmark::State& state) {
  const Bytes file = kestrelBitmap(width(state), height(state));
  PictureRecord record;
  while (state.KeepRunning()) {
    if (!readPicture(file, record)) state.SkipWithError("The picture can't be read.");
    benchmark::ClobberMemory();
  }
  countBytes(state);
}

void write(benchmark::State& state, RowOrder rows) {
  PictureRecord record;
  if (!readPicture(kestrelBitmap(width(state), height(state)), record)) {
    return state.SkipWithError("The picture can't be read.");
  }
  fillOutputHeader(record);
  Bytes to(static_cast<std::size_t>(standardBitmapSize(record, rows)));
  Progress progress;
  while (state.KeepRunning()) {
    if (!writeStandardBitmap(record, rows, memoryWriter(to), progress)) {
      state.SkipWithError("The picture can't be written.");
    }
    benchmark::ClobberMemory();
  }
  countBytes(state);
}

void sizes(benchmark::internal::Benchmark* benchmark) {
  benchmark->ArgNames({"w", "h"})->Args({64, 64})->Args({640, 480})->Args({8192, 8192});
}

BENCHMARK(copy)->Apply(sizes);
BENCHMARK(read)->Apply(sizes);
BENCHMARK_CAPTURE(write, bottom_up, RowOrder::BottomUp)->Apply(sizes)->Args({1, 32768});
BENCHMARK_CAPTURE(write, as_stored, RowOrder::AsStored)->Apply(sizes);

}  // namespace
