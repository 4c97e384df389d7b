#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

/// The folders of src/ from the lowest floor to the highest; main.cpp stands above them.
const Names kFloors = {"formats",    "platform/system", "platform/forms", "picture", "dialogs",
                       "conversion", "palette",         "mainwindow",     ""};

std::ptrdiff_t floorOf(const std::string& file) {
  return std::find(kFloors.begin(), kFloors.end(), fs::path(file).parent_path().string()) -
         kFloors.begin();
}

/// Path below src/ to the paths that it includes, quoted or in angle brackets.
std::map<std::string, Names> readIncludes() {
  std::map<std::string, Names> includes;
  for (const auto& entry : fs::recursive_directory_iterator(MILL_SOURCE_DIR)) {
    if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
    Names& found = includes[fs::relative(entry.path(), MILL_SOURCE_DIR).string()];
    std::ifstream in(entry.path());
    for (std::string line; std::getline(in, line);) {
      if (!line.starts_with("#include ")) continue;
      found.push_back(line.substr(10, line.find_last_of("\">") - 10));
    }
  }
  return includes;
}

TEST(Layering, EveryIncludePointsDownOrStaysInItsFolderWithoutARound) {
  const auto includes = readIncludes();
  ASSERT_GT(includes.size(), 50u);
  Names faults;
  for (const auto& [file, targets] : includes) {
    EXPECT_LT(floorOf(file), std::ssize(kFloors)) << file << " stands on no floor";
    for (const std::string& target : targets) {
      const bool isOurs = includes.contains(target);
      const bool isQt = target.starts_with('Q') || target.starts_with("qt");
      const bool isStandard = target.find_first_of("./") == std::string::npos && !isQt;
      if ((isOurs && floorOf(target) > floorOf(file)) ||
          (file.starts_with("formats/") && !isOurs && !isStandard) ||
          (file.starts_with("picture/") && isQt)) {
        faults.push_back(file + " -> " + target);
      }
    }
  }
  // A round is a way back to a file that is still being followed.
  std::map<std::string, int> seen;
  const std::function<void(const std::string&)> follow = [&](const std::string& file) {
    seen[file] = 1;
    for (const std::string& target : includes.at(file)) {
      if (!includes.contains(target) || seen[target] == 2) continue;
      seen[target] == 1 ? faults.push_back("round: " + file + " -> " + target) : follow(target);
    }
    seen[file] = 2;
  };
  for (const auto& [file, targets] : includes) {
    if (seen[file] == 0) follow(file);
  }
  EXPECT_EQ(faults, Names{});
}

}  // namespace
