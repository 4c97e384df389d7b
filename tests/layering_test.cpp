#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

/// Path below src/ to the paths that it includes, quoted or in angle brackets.
using Includes = std::map<std::string, std::vector<std::string>>;

Includes readIncludes(const fs::path& root) {
  Includes includes;
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".h" && extension != ".cpp") continue;
    auto& found = includes[fs::relative(entry.path(), root).string()];
    std::ifstream in(entry.path());
    for (std::string line; std::getline(in, line);) {
      if (!line.starts_with("#include ")) continue;
      found.push_back(line.substr(10, line.find_last_of("\">") - 10));
    }
  }
  return includes;
}

/// How high a file stands: the place of the first start that its path has. The file formats stand
/// lowest, and every include leads to a file that stands no higher.
std::size_t level(const std::string& path) {
  static const std::vector<std::vector<const char*>> levels = {
      {"picture/byte_stream", "picture/fault", "picture/kestrel_bitmap", "picture/little_endian",
       "picture/picture_record", "picture/standard_bitmap", "palette/palette_"},
      {"platform/"},
      {"picture/program_state", "picture/conversion_progress", "picture/temporary_files",
       "picture/warn"},
      {"palette/load_palette", "palette/find_palette"},
      {"picture/"},
      {"dialogs/"},
      {"conversion/"},
      {"palette/"},
      {"mainwindow/"}};
  for (std::size_t i = 0; i < levels.size(); ++i) {
    for (const char* start : levels[i]) {
      if (path.starts_with(start)) return i;
    }
  }
  return levels.size();  // main
}

std::vector<std::string> faults(const Includes& includes) {
  std::vector<std::string> faults;
  for (const auto& [file, targets] : includes) {
    const bool inPlatform = file.starts_with("platform/");
    for (const std::string& target : targets) {
      const bool isQt = target.starts_with('Q') || target.starts_with("qt");
      const bool isOurs = includes.contains(target);
      if ((isQt && !inPlatform) || (isOurs && level(target) > level(file)) ||
          (isOurs && inPlatform && !target.starts_with("platform/"))) {
        faults.push_back(file + " -> " + target);
      }
    }
  }
  return faults;
}

TEST(Layering, EveryIncludePointsDown) {
  const Includes includes = readIncludes(MILL_SOURCE_DIR);
  ASSERT_FALSE(includes.at("mainwindow/frm_main.cpp").empty());
  EXPECT_EQ(faults(includes), std::vector<std::string>{});
}

}  // namespace
