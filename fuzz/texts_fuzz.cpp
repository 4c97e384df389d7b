// Any bytes as a path, a number, and a setting: each comes back as it was, or as it must.

#include <QSettings>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>

#include "fuzz.h"
#include "palette/number_text.h"
#include "platform/system/paths.h"
#include "platform/system/settings.h"
#include "platform/system/text.h"

namespace {

namespace fs = std::filesystem;

/// Settings go to a folder in memory.
void useFolder() {
  static const std::string made = [] {
    std::string pattern = "/dev/shm/mill-fuzz-XXXXXX";
    fuzz::require(::mkdtemp(pattern.data()));
    ::setenv("XDG_CONFIG_HOME", pattern.c_str(), 1);
    static const std::string folder = pattern;
    std::atexit([] { fs::remove_all(folder); });
    return pattern;
  }();
}

void checkPaths(const std::string& text) {
  fuzz::require(sys::bytesOf(sys::shown(text)) == text);
  const std::string native = sys::nativePath(text);
  if (native.empty()) return;
  fuzz::require(native[0] == '/' || native.find(":/") != std::string::npos);
  fuzz::require(native.find('\\') == std::string::npos && native.find("//") == std::string::npos);
  if (native[0] == '/') fuzz::require(sys::nativePath(sys::drivePath(native)) == native);
}

/// The longest beginning that reads like a decimal number, by the C library.
void checkNumber(const std::string& text) {
  const std::size_t start = std::min(text.find_first_not_of(' '), text.size());
  std::size_t end = start;
  if (end < text.size() && (text[end] == '-' || text[end] == '+')) ++end;
  const std::size_t digits = std::min(text.find_first_not_of("0123456789", end), text.size());
  std::size_t last = digits;
  if (last < text.size() && text[last] == '.') {
    last = std::min(text.find_first_not_of("0123456789", last + 1), text.size());
  }
  const double number =
      std::nearbyint(std::strtod(text.substr(start, last - start).c_str(), nullptr));
  fuzz::require(mill::numberOf(text, -1000, 1000) == std::clamp(number, -1000.0, 1000.0));
}

void checkSettings(const std::string& text) {
  {
    sys::Settings store("Fuzz", "Settings");
    store.setText("Source", text);
    fuzz::require(store.save());
  }
  const sys::Settings next("Fuzz", "Settings");
  fuzz::require(next.text("Source", "other") == text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  useFolder();
  const std::string text(data, data + size);
  checkPaths(text);
  if (text.find('\0') == std::string::npos) checkNumber(text);
  checkSettings(text);
  return 0;
}
