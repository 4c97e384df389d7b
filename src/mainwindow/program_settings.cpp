#include "mainwindow/program_settings.h"

#include <string>
#include <vector>

#include "picture/program_state.h"
#include "picture/warn.h"
#include "platform/system/application.h"
#include "platform/system/paths.h"
#include "platform/system/settings.h"

namespace mill {

namespace {

constexpr const char* kSection = "Settings";

struct PathSetting {
  const char* key;
  std::string ProgramState::*value;
  std::string fallback;
};

struct FlagSetting {
  const char* key;
  bool ProgramState::*value;
  bool fallback;
};

std::vector<PathSetting> pathSettings() {
  const std::string data = sys::join(sys::App.Path(), "data");
  return {{"Source", &ProgramState::SourceDir, "C:\\Brightforge\\Ironveil"},
          {"Dest", &ProgramState::DestDir, data},
          {"PalDir", &ProgramState::PalDir, data},
          {"Palette", &ProgramState::DefaultPalette, sys::join(data, "base.pal")}};
}

constexpr FlagSetting kFlags[] = {
    {"ShowPal", &ProgramState::ShowPal, true},     {"ShowPrev", &ProgramState::ShowPrev, true},
    {"AutoPrev", &ProgramState::AutoPrev, false},  {"AutoPal", &ProgramState::AutoPal, true},
    {"ResizeFit", &ProgramState::ResizeFit, true}, {"Search", &ProgramState::Search, true}};

/// Paths of the program's own are stored relative to it, beginning with a dot, so that a moved
/// installation finds its data. Any other text is stored as it is.
struct OwnPath {
  std::string path;
  const char* stored;
};

std::vector<OwnPath> ownPaths() {
  const std::string own = sys::App.Path();
  return {{own, "."}, {own + "\\data", ".\\data"}, {own + "\\data\\base.pal", ".\\data\\base.pal"}};
}

std::string storedForm(const std::string& path) {
  for (const OwnPath& own : ownPaths()) {
    if (path == own.path) return own.stored;
  }
  return path;
}

std::string fromStoredForm(const std::string& text) {
  for (const OwnPath& own : ownPaths()) {
    if (text == own.stored) return own.path;
  }
  return text;
}

}  // namespace

void readSettings() {
  const sys::Settings store(sys::App.Title, kSection);
  for (const PathSetting& path : pathSettings()) {
    state.*path.value = fromStoredForm(store.text(path.key, path.fallback));
  }
  for (const FlagSetting& flag : kFlags) {
    state.*flag.value = store.flag(flag.key, flag.fallback);
  }
}

void writeSettings() {
  sys::Settings store(sys::App.Title, kSection);
  for (const PathSetting& path : pathSettings())
    store.setText(path.key, storedForm(state.*path.value));
  for (const FlagSetting& flag : kFlags) store.setFlag(flag.key, state.*flag.value);
  if (!store.save()) warn("The settings can't be saved.\n" + store.file());
}

}  // namespace mill
