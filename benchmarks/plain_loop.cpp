#include "plain_loop.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace mill::bench {

namespace {

constexpr std::size_t kSourceHead = 44;
constexpr std::size_t kTargetHead = 1078;
/// Bytes written at a time; larger pieces gain nothing.
constexpr std::size_t kPiece = 1 << 20;

void require(bool done, const std::string& what) {
  if (done) return;
  std::perror(what.c_str());
  std::exit(1);
}

/// A reusable buffer that only grows.
class Buffer {
 public:
  std::uint8_t* atLeast(std::size_t size) {
    if (size > size_) {
      bytes_ = std::make_unique_for_overwrite<std::uint8_t[]>(size);
      size_ = size;
    }
    return bytes_.get();
  }

 private:
  std::unique_ptr<std::uint8_t[]> bytes_;
  std::size_t size_ = 0;
};

std::size_t readWhole(const std::string& path, Buffer& buffer) {
  const int file = ::open(path.c_str(), O_RDONLY);
  require(file >= 0, path);
  struct stat status {};
  require(::fstat(file, &status) == 0, path);
  const auto size = static_cast<std::size_t>(status.st_size);
  std::uint8_t* bytes = buffer.atLeast(size);
  for (std::size_t done = 0; done < size;) {
    const ssize_t count = ::read(file, bytes + done, size - done);
    require(count > 0, path);
    done += static_cast<std::size_t>(count);
  }
  ::close(file);
  return size;
}

void writeAll(int file, const std::uint8_t* bytes, std::size_t size) {
  for (std::size_t done = 0; done < size;) {
    const ssize_t count = ::write(file, bytes + done, size - done);
    require(count > 0, "write");
    done += static_cast<std::size_t>(count);
  }
}

void putHead(std::uint8_t* target, int width, int height) {
  const auto put = [&](std::size_t at, std::int32_t value) { std::memcpy(target + at, &value, 4); };
  std::memset(target, 0, kTargetHead);
  std::memcpy(target, "BM", 2);
  put(2, width * height + static_cast<std::int32_t>(kTargetHead));
  put(10, static_cast<std::int32_t>(kTargetHead));
  put(14, 40);
  put(18, width);
  put(22, height);
  target[26] = 1;
  target[28] = 8;
  put(34, width * height);
  put(46, 256);
  put(50, 256);
  for (int i = 0; i < 256; ++i) std::memset(target + 54 + 4 * i, i, 3);
}

}  // namespace

void convertPlainly(const std::vector<std::string>& names, const std::string& from,
                    const std::string& to, int width, int height) {
  Buffer source;
  Buffer target;
  const auto row = static_cast<std::size_t>(width);
  const auto rows = static_cast<std::size_t>(height);
  for (const std::string& name : names) {
    readWhole(from + "/" + name, source);
    const std::uint8_t* pixels = source.atLeast(0) + kSourceHead;
    const int file = ::open((to + "/" + name).c_str(), O_WRONLY | O_CREAT, 0666);
    require(file >= 0, name);
    std::uint8_t* out = target.atLeast(kPiece + row);
    putHead(out, width, height);
    std::size_t used = kTargetHead;
    for (std::size_t y = rows; y-- > 0;) {
      std::memcpy(out + used, pixels + y * row, row);
      used += row;
      if (used < kPiece && y > 0) continue;
      writeAll(file, out, used);
      used = 0;
    }
    require(::close(file) == 0, name);
  }
}

}  // namespace mill::bench
