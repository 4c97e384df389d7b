#include "picture/find_palette.h"

#include <algorithm>
#include <utility>

#include "picture/hooks.h"
#include "picture/load_palette.h"
#include "picture/program_state.h"
#include "picture/temporary_files.h"
#include "platform/system/files.h"
#include "platform/system/paths.h"

namespace mill {

namespace {

/// The palette directory first, then its sub-directories in the order of the file system.
std::vector<std::string> searchedDirectories() {
  std::vector<std::string> directories = {state.PalDir};
  if (!state.Search) return directories;
  for (const std::string& name : sys::directoriesIn(state.PalDir)) {
    directories.push_back(sys::join(state.PalDir, name));
  }
  return directories;
}

/// Checks each directory for this one file, without listing it.
std::vector<std::string> pathsOf(const std::string& name,
                                 const std::vector<std::string>& directories) {
  std::vector<std::string> paths;
  for (const std::string& directory : directories) {
    std::string path = sys::join(directory, name);
    if (sys::isNormalFile(path)) paths.push_back(std::move(path));
  }
  return paths;
}

void settlePalette(PaletteNames* names) {
  if (state.PictureRecord.PaletteIndex == 0) {
    state.CurrentPaletteFile = state.SavedColours.empty() ? tempPalettePath() : state.SavedColours;
    return;
  }
  const std::string name = std::to_string(state.PictureRecord.PaletteIndex) + ".pal";
  const std::vector<std::string> paths =
      names ? names->find(name) : pathsOf(name, searchedDirectories());
  if (paths.size() > 1) {
    hooks.choosePalette(paths);
    if (names) names->forget();
  } else {
    state.CurrentPaletteFile = paths.empty() ? state.DefaultPalette : paths.front();
  }
}

}  // namespace

std::vector<std::string> PaletteNames::find(const std::string& name) {
  if (directories_.empty()) read();
  const auto [found, isNew] = paths_.try_emplace(name);
  std::vector<std::string>& paths = found->second;
  // Files may have gone meanwhile, and some directories can be searched but not read.
  if (isNew || !std::all_of(paths.begin(), paths.end(), sys::isNormalFile)) {
    paths = pathsOf(name, directories_);
  }
  return paths;
}

void PaletteNames::read() {
  directories_ = searchedDirectories();
  paths_.clear();
  for (const std::string& directory : directories_) {
    for (const std::string& name : sys::filesIn(directory, "*.pal")) {
      paths_[name].push_back(sys::join(directory, name));
    }
  }
}

Fault FindPalette(PaletteNames* names) {
  settlePalette(names);
  hooks.showPaletteFile();
  return LoadPalette();
}

}  // namespace mill
