#include "picture/find_palette.h"

#include <optional>
#include <unordered_map>
#include <utility>

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
  for (const std::string& name : forms::directoriesIn(state.PalDir)) {
    directories.push_back(forms::join(state.PalDir, name));
  }
  return directories;
}

/// The paths of all palette files by their names.
using PaletteNames = std::unordered_map<std::string, std::vector<std::string>>;

bool inRun = false;
std::optional<PaletteNames> namesOfRun;

PaletteNames readNames() {
  PaletteNames names;
  for (const std::string& directory : searchedDirectories()) {
    for (const std::string& name : forms::filesIn(directory, "*.pal")) {
      names[name].push_back(forms::join(directory, name));
    }
  }
  return names;
}

std::vector<std::string> matchingPalettes() {
  const std::string name = std::to_string(state.PictureRecord.PaletteIndex) + ".pal";
  if (inRun) {
    if (!namesOfRun) namesOfRun = readNames();
    const auto found = namesOfRun->find(name);
    return found == namesOfRun->end() ? std::vector<std::string>() : found->second;
  }
  std::vector<std::string> matches;
  for (const std::string& directory : searchedDirectories()) {
    std::string path = forms::join(directory, name);
    if (forms::isNormalFile(path)) matches.push_back(std::move(path));
  }
  return matches;
}

void settlePalette() {
  if (state.PictureRecord.PaletteIndex == 0) {
    state.CurrentPaletteFile = tempPalettePath();
    namesOfRun.reset();
    return;
  }
  const std::vector<std::string> matches = matchingPalettes();
  if (matches.empty()) {
    state.CurrentPaletteFile = state.DefaultPalette;
  } else if (matches.size() == 1) {
    state.CurrentPaletteFile = matches.front();
  } else {
    choosePalette(matches);
    namesOfRun.reset();
  }
}

}  // namespace

PaletteSearchRun::PaletteSearchRun() {
  inRun = true;
  namesOfRun.reset();
}

PaletteSearchRun::~PaletteSearchRun() {
  inRun = false;
  namesOfRun.reset();
}

void FindPalette() {
  settlePalette();
  if (showPaletteFile) showPaletteFile();
  LoadPalette();
}

}  // namespace mill
