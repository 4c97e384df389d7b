// Writes the inputs that the fuzzers begin with, a folder for each.
//   make-seeds SAMPLES CORPUS

#include <filesystem>
#include <fstream>
#include <string>

#include "support/format_model.h"

namespace fs = std::filesystem;

namespace {

/// Larger inputs would only slow the fuzzers down.
constexpr std::uintmax_t kLargest = 70'000;

void save(const fs::path& path, const model::Bytes& bytes) {
  fs::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes.data()), static_cast<long>(bytes.size()));
}

void copySamples(const fs::path& samples, const char* extension, const fs::path& to) {
  fs::create_directories(to);
  for (const auto& entry : fs::recursive_directory_iterator(samples)) {
    const bool isWanted = entry.is_regular_file() && entry.path().extension() == extension;
    if (!isWanted || entry.file_size() > kLargest) continue;
    fs::copy_file(entry.path(), to / entry.path().filename(), fs::copy_options::overwrite_existing);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  const fs::path samples = argv[1], corpus = argv[2];
  const model::Bytes kestrel = model::kestrelBitmap({.width = 5, .height = 5, .dataSize = 31});
  const model::Bytes standard = model::convertedBitmap(kestrel, model::someColours(1));
  for (const char* name : {"kestrel_bitmap_fuzz", "standard_bitmap_fuzz", "open_picture_fuzz"}) {
    copySamples(samples, ".bmp", corpus / name);
    save(corpus / name / "kestrel", kestrel);
    save(corpus / name / "standard", standard);
    // Around the difference of 10 up to which bytes are padding of the rows.
    for (const int dataSize : {75, 77, 78, 80}) {
      save(corpus / name / std::to_string(dataSize),
           model::kestrelBitmap({.width = 5, .height = 5, .dataSize = dataSize}));
    }
    for (const auto& [what, bytes] : model::brokenPictures()) save(corpus / name / what, bytes);
  }
  copySamples(samples, ".pal", corpus / "palette_file_fuzz");
  copySamples(samples, ".ksl", corpus / "palette_list_fuzz");
  const model::Colours colours = model::someColours(2);
  save(corpus / "palette_list_fuzz" / "two", model::paletteList({{colours, 12}, {colours, -7}}));
  const std::string zeros(400, '0');
  for (const std::string& text : {std::string("Z:\\home\\a b\\x.bmp"), std::string("/tmp/\xFC.bmp"),
                                  std::string("-12.5e3"), "0." + zeros + "1", "1" + zeros}) {
    save(corpus / "texts_fuzz" / std::to_string(text.size()), {text.begin(), text.end()});
  }
}
