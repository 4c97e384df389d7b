#include "mainwindow/program_settings.h"

#include <string>
#include <vector>

#include "picture/program_state.h"
#include "picture/warn.h"
#include "platform/forms/application.h"
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
  const std::string data = forms::join(forms::App.Path(), "data");
  return {{"Source", &ProgramState::SourceDir, "C:\\Brightforge\\Ironveil"},
          {"Dest", &ProgramState::DestDir, data},
          {"PalDir", &ProgramState::PalDir, data},
          {"Palette", &ProgramState::DefaultPalette, forms::join(data, "base.pal")}};
}

constexpr FlagSetting kFlags[] = {
    {"ShowPal", &ProgramState::ShowPal, true},     {"ShowPrev", &ProgramState::ShowPrev, true},
    {"AutoPrev", &ProgramState::AutoPrev, false},  {"AutoPal", &ProgramState::AutoPal, true},
    {"ResizeFit", &ProgramState::ResizeFit, true}, {"Search", &ProgramState::Search, true}};

}  // namespace

void readSettings() {
  const char* app = forms::App.Title;
  for (const PathSetting& path : pathSettings()) {
    state.*path.value = forms::GetSetting(app, kSection, path.key, path.fallback);
  }
  for (const FlagSetting& flag : kFlags) {
    state.*flag.value = forms::GetFlag(app, kSection, flag.key, flag.fallback);
  }
}

void writeSettings() {
  const char* app = forms::App.Title;
  bool saved = true;
  for (const PathSetting& path : pathSettings()) {
    saved &= forms::SaveSetting(app, kSection, path.key, state.*path.value);
  }
  for (const FlagSetting& flag : kFlags) {
    saved &= forms::SaveFlag(app, kSection, flag.key, state.*flag.value);
  }
  if (!saved) warn("The settings can't be saved.\n" + forms::settingsFile(app));
}

}  // namespace mill
