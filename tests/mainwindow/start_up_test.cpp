#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

#include "mainwindow/frm_main.h"
#include "picture/program_state.h"
#include "platform/application.h"
#include "platform/paths.h"
#include "platform/settings.h"
#include "support/windows.h"

namespace mill {
namespace {

using test::control;

constexpr const char* kApplication = forms::Application::Title;

class StartUpTest : public test::MainWindowTest {
 protected:
  static std::string text(const char* box) {
    return control<QComboBox>("frmMain", box)->currentText().toStdString();
  }
  static QCheckBox* box(const char* name) { return control<QCheckBox>("frmMain", name); }
};

TEST_F(StartUpTest, TakesTheDefaultsAtFirstAndStoresNothingTyped) {
  std::filesystem::remove(forms::nativePath(forms::settingsFile(kApplication)));
  start();
  const std::string app = forms::App.Path(), data = app + "\\data", palette = data + "\\base.pal";
  messages.expectLast(1, "The palette file does not exist.", "", forms::Icon::None);
  const std::pair<const char*, std::string> paths[] = {
      {"lstSource", app}, {"lstDest", data}, {"lstPalette", data}, {"lstDefault", palette}};
  for (const auto& [box, path] : paths) {
    EXPECT_EQ(text(box), path);
    control<QComboBox>("frmMain", box)->setEditText("Z:\\typed");
  }
  EXPECT_EQ(control<QLabel>("frmMain", "lblPalFile")->text().toStdString(), palette);
  for (const char* name : {"chkPrev", "chkPal", "chkAutoPal", "chkResize", "chkSearch"}) {
    EXPECT_TRUE(box(name)->isChecked() && box(name)->isEnabled()) << name;
  }
  EXPECT_TRUE(!box("chkAutoPrev")->isChecked() && box("chkAutoPrev")->isEnabled());
  for (const char* tool : {"frmPalToolbar", "frmPreviewToolbar"}) {
    EXPECT_TRUE(test::window(tool)->isVisible()) << tool;
  }
  EXPECT_EQ(forms::Screen.ActiveForm(), &*frmMain);
  box("chkSearch")->click();
  test::press("frmMain", "cmdExit");
  EXPECT_EQ(forms::Forms.Count(), 0);
  const std::pair<const char*, std::string> settings[] = {
      {"Source", app},       {"Dest", data},       {"PalDir", data},      {"Palette", palette},
      {"ShowPal", "True"},   {"ShowPrev", "True"}, {"AutoPrev", "False"}, {"AutoPal", "True"},
      {"ResizeFit", "True"}, {"Search", "False"}};
  for (const auto& [key, value] : settings) {
    EXPECT_EQ(forms::GetSetting(kApplication, "Settings", key, "nothing"), value) << key;
  }
}

TEST_F(StartUpTest, OffersTheOptionsOnceItIsOver) {
  set("ShowPal", "True");  // which shows the main window in the middle of it
  frmMain.Load();
  EXPECT_FALSE(test::menuItem("frmMain", "mnuOptions")->isEnabled());
  frmMain->Show();
  EXPECT_TRUE(test::menuItem("frmMain", "mnuOptions")->isEnabled());
}

TEST_F(StartUpTest, ABoxThatIsOffKeepsItsTick) {
  set("AutoPrev", "True");
  set("Search", "True");
  set("ResizeFit", "maybe");  // counts as missing, and True is the default
  start();
  for (const bool enabled : {false, true, false}) {
    for (const char* name : {"chkAutoPrev", "chkSearch", "chkResize"}) {
      EXPECT_TRUE(box(name)->isChecked() && box(name)->isEnabled() == enabled) << name;
    }
    EXPECT_EQ(control("frmMain", "cmdOpen")->isEnabled(), enabled);
    EXPECT_TRUE(state.AutoPrev && state.Search && state.ResizeFit);
    for (const char* name : {"chkPrev", "chkAutoPal"}) box(name)->click();
  }
}

TEST_F(StartUpTest, ReplacesASourceWithoutFiles) {
  folder.makeFolder("only/folders");
  folder.makeFolder("hidden");
  folder.write("hidden/.file", {});
  for (const char* source : {"only", "hidden", "gone", "in"}) {
    set("Source", folder.drive(source));
    start();
    EXPECT_EQ(text("lstSource"),
              source == std::string("in") ? folder.drive(source) : forms::App.Path());
    frmMain->Unload();
    test::settle();
  }
}

}  // namespace
}  // namespace mill
