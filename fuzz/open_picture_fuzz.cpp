// Any bytes as a picture file, from the file to the state and on to the output file. A picture
// that is refused must leave the one that was open before as it was.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "fuzz.h"
#include "picture/hooks.h"
#include "picture/open_picture.h"
#include "picture/program_state.h"
#include "picture/write_bitmap.h"
#include "platform/system/paths.h"

namespace {

namespace fs = std::filesystem;
using namespace mill;

/// A folder in memory.
const fs::path& folder() {
  static const fs::path made = [] {
    std::string pattern = "/dev/shm/mill-fuzz-XXXXXX";
    fuzz::require(::mkdtemp(pattern.data()));
    for (const char* name : {"in", "out", "temp"}) fs::create_directory(fs::path(pattern) / name);
    ::setenv("temp", (pattern + "/temp").c_str(), 1);
    std::atexit([] { fs::remove_all(folder()); });
    return fs::path(pattern);
  }();
  return made;
}

std::string in(const char* name) {
  return sys::drivePath((folder() / name).string());
}

void save(const char* name, const model::Bytes& bytes) {
  std::ofstream(folder() / name, std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes.data()), static_cast<long>(bytes.size()));
}

model::Bytes written() {
  fuzz::require(WriteBitmap(in("out/a.bmp"), sys::Tail::Drop));
  std::ifstream file(folder() / "out/a.bmp", std::ios::binary);
  return model::Bytes(std::istreambuf_iterator<char>(file), {});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const model::Bytes first =
      model::kestrelBitmap({.width = 3, .height = 3, .dataSize = 12, .paletteIndex = -3});
  state = {};
  hooks = {};
  std::string text;
  hooks.tell = [&](const forms::Message& message) {
    if (message.buttons == forms::Buttons::OK) text += message.text;
    return forms::Answer::Yes;
  };
  save("in/first.bmp", first);
  OpenPicture(in("in/first.bmp"));
  state.PaletteTable = model::someColours(5);

  const model::Bytes bytes(data, data + size);
  save("in/second.bmp", bytes);
  OpenPicture(in("in/second.bmp"));
  fuzz::require(text == model::refusal(bytes));
  fuzz::require(state.PictureFileName == (text.empty() ? "second.bmp" : "first.bmp"));
  if (!text.empty()) {
    fuzz::require(written() == model::convertedBitmap(first, model::someColours(5)));
    return 0;
  }
  fuzz::require(state.IsStandardBitmap == (bytes[0] != 'K' && bytes[0] != 'k'));
  const auto output = std::int64_t{state.PictureRecord.biWidth} * state.PictureRecord.biHeight;
  if (output > fuzz::kEnough) return 0;
  model::Bytes expected = bytes;
  if (state.IsStandardBitmap) {
    expected.resize(1078 + static_cast<std::size_t>(state.PictureRecord.biSizeImage));
  } else {
    expected = model::convertedBitmap(bytes, model::someColours(5));
  }
  fuzz::require(written() == expected);
  return 0;
}
