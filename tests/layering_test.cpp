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
      const std::size_t end = line.find_last_of("\">");
      found.push_back(line.substr(10, end - 10));
    }
  }
  return includes;
}

std::string stem(const std::string& path) {
  return path.substr(0, path.rfind('.'));
}

bool isFormat(const std::string& path) {
  static const std::vector<std::string> formats = {
      "picture/byte_stream",   "picture/fault",          "picture/kestrel_bitmap",
      "picture/little_endian", "picture/picture_record", "picture/standard_bitmap",
      "palette/palette_file",  "palette/palette_list"};
  return std::find(formats.begin(), formats.end(), stem(path)) != formats.end();
}

/// How high a file stands; every include must lead to a file that stands no higher.
int level(const std::string& path) {
  const std::string folder = path.substr(0, path.find('/'));
  if (isFormat(path)) return 0;
  if (folder == "platform") return 0;
  if (stem(path) == "picture/program_state" || stem(path) == "picture/conversion_progress")
    return 1;
  if (stem(path) == "picture/warn") return 1;
  if (stem(path) == "palette/load_palette" || stem(path) == "palette/find_palette") return 2;
  if (folder == "picture") return 3;
  if (folder == "conversion" || folder == "dialogs") return 4;
  if (folder == "palette") return 5;
  if (folder == "mainwindow") return 6;
  return 7;  // main
}

bool isQt(const std::string& include) {
  return include.starts_with('Q') || include.starts_with("qt");
}

/// True where `from` leads back to `to` by includes.
bool reaches(const Includes& includes, const std::string& from, const std::string& to, int depth) {
  if (from == to) return true;
  const auto found = includes.find(from);
  if (found == includes.end() || depth == 0) return false;
  return std::any_of(found->second.begin(), found->second.end(), [&](const std::string& next) {
    return reaches(includes, next, to, depth - 1);
  });
}

std::vector<std::string> faults(const Includes& includes) {
  std::vector<std::string> faults;
  for (const auto& [file, targets] : includes) {
    for (const std::string& target : targets) {
      const std::string arrow = file + " -> " + target;
      const bool ours = includes.contains(target);
      if (!file.starts_with("platform/") && isQt(target)) faults.push_back("Qt: " + arrow);
      if (!ours) continue;
      if (level(target) > level(file)) faults.push_back("up: " + arrow);
      if (isFormat(file) && !isFormat(target)) faults.push_back("impure: " + arrow);
      if (file.starts_with("platform/") && !target.starts_with("platform/")) {
        faults.push_back("platform: " + arrow);
      }
      if (reaches(includes, target, file, 12)) faults.push_back("round: " + arrow);
    }
  }
  return faults;
}

TEST(Layering, EveryIncludePointsDown) {
  const Includes includes = readIncludes(MILL_SOURCE_DIR);
  ASSERT_GT(includes.size(), 20u);
  EXPECT_EQ(faults(includes), std::vector<std::string>{});
}

TEST(Layering, NamesTheFilesOfAFault) {
  const Includes includes = {
      {"picture/open_picture.cpp", {"mainwindow/frm_main.h", "QString"}},
      {"mainwindow/frm_main.h", {}},
      {"picture/fault.cpp", {"platform/form.h"}},
      {"platform/form.h", {"picture/program_state.h"}},
      {"picture/program_state.h", {}},
      {"dialogs/a.h", {"conversion/b.h"}},
      {"conversion/b.h", {"dialogs/a.h"}},
  };
  EXPECT_EQ(faults(includes),
            (std::vector<std::string>{"round: conversion/b.h -> dialogs/a.h",
                                      "round: dialogs/a.h -> conversion/b.h",
                                      "impure: picture/fault.cpp -> platform/form.h",
                                      "up: picture/open_picture.cpp -> mainwindow/frm_main.h",
                                      "Qt: picture/open_picture.cpp -> QString",
                                      "up: platform/form.h -> picture/program_state.h",
                                      "platform: platform/form.h -> picture/program_state.h"}));
}

}  // namespace
