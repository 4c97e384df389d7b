#include <gtest/gtest.h>

#include <algorithm>
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

/// The folders of src/ from the lowest floor to the highest.
const std::vector<std::string> kFloors = {"formats", "platform/system", "platform/forms",
                                          "picture", "dialogs",         "conversion",
                                          "palette", "mainwindow",      ""};

std::ptrdiff_t floorOf(const std::string& path) {
  const std::string folder = fs::path(path).parent_path().string();
  return std::find(kFloors.begin(), kFloors.end(), folder) - kFloors.begin();
}

std::vector<std::string> faults(const Includes& includes) {
  std::vector<std::string> faults;
  for (const auto& [file, targets] : includes) {
    const bool inPlatform = file.starts_with("platform/");
    for (const std::string& target : targets) {
      const bool isQt = target.starts_with('Q') || target.starts_with("qt");
      const bool isOurs = includes.contains(target);
      if ((isQt && !inPlatform) || (isOurs && floorOf(target) > floorOf(file))) {
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
