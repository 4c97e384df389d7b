#include "writes.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

#include "harness.h"
#include "platform/system/file_io.h"
#include "platform/system/paths.h"

namespace mill::bench {

namespace {

namespace fs = std::filesystem;

constexpr int kFiles = 2000;
constexpr int kRuns = 5;

using Bytes = std::vector<std::uint8_t>;

void writeInPlace(const fs::path& path, const Bytes& bytes) {
  const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0666);
  require(file >= 0 && ::write(file, bytes.data(), bytes.size()) == std::ssize(bytes) &&
              ::close(file) == 0,
          "writing " + path.string());
}

void writeAndRename(const fs::path& path, const Bytes& bytes) {
  sys::OutputFile file(sys::drivePath(path.string()), sys::Tail::Keep);
  require(file.isOpen() && file.write(bytes) && file.commit(), "writing " + path.string());
}

using Write = void (*)(const fs::path&, const Bytes&);

/// The processor time per file, in microseconds.
double costOf(Write write, const fs::path& folder, bool overOlder) {
  const Bytes bytes(5174, 0x5A);
  std::vector<double> costs;
  for (int run = 0; run < kRuns; ++run) {
    empty(folder);
    const auto writeAll = [&] {
      for (int i = 0; i < kFiles; ++i) write(folder / (std::to_string(i) + ".bmp"), bytes);
    };
    if (overOlder) writeAll();
    costs.push_back(measure(writeAll).processor / kFiles * 1e6);
  }
  empty(folder);
  return median(costs);
}

}  // namespace

void runWrites(const fs::path& folder) {
  for (const bool overOlder : {false, true}) {
    const double inPlace = costOf(writeInPlace, folder, overOlder);
    const double renamed = costOf(writeAndRename, folder, overOlder);
    std::printf("%-34s in place %6.2f us, renamed %6.2f us, %5.2f times\n",
                overOlder ? "2000 files of 5 KB over older ones" : "2000 new files of 5 KB",
                inPlace, renamed, renamed / inPlace);
  }
}

}  // namespace mill::bench
