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
/// installation finds its data.
std::string storedForm(const std::string& path) {
  const std::string own = sys::App.Path(), data = sys::join(own, "data");
  const bool isOwn = path == own || path == data || path == sys::join(data, "base.pal");
  return isOwn ? std::string(".").append(path, own.size()) : path;
}

std::string fromStoredForm(const std::string& text) {
  return text == "." || text.starts_with(".\\") ? sys::App.Path() + text.substr(1) : text;
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
