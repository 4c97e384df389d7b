#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

#include <map>

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
  static void expectStored(const std::map<std::string, std::string>& settings) {
    for (const auto& [key, value] : settings) {
      EXPECT_EQ(forms::GetSetting(kApplication, "Settings", key, "nothing"), value) << key;
    }
  }
};

TEST_F(StartUpTest, FirstRunTakesTheDefaultsAndStoresThemAtTheEnd) {
  std::filesystem::remove(forms::nativePath(forms::settingsFile(kApplication)));
  start();
  const std::string app = forms::App.Path(), data = app + "\\data", palette = data + "\\base.pal";
  messages.expectLast(1, "The palette file does not exist.", "", forms::Icon::None);
  EXPECT_EQ(text("lstSource"), app);
  EXPECT_EQ(text("lstDest"), data);
  EXPECT_EQ(text("lstPalette"), data);
  EXPECT_EQ(text("lstDefault"), palette);
  EXPECT_EQ(control<QLabel>("frmMain", "lblPalFile")->text().toStdString(), palette);
  for (const char* name : {"chkPrev", "chkPal", "chkAutoPal", "chkResize", "chkSearch"}) {
    EXPECT_TRUE(box(name)->isChecked() && box(name)->isEnabled()) << name;
  }
  EXPECT_FALSE(box("chkAutoPrev")->isChecked());
  EXPECT_TRUE(box("chkAutoPrev")->isEnabled() && control("frmMain", "cmdOpen")->isEnabled());
  for (const char* tool : {"frmPalToolbar", "frmPreviewToolbar"}) {
    EXPECT_TRUE(test::window(tool)->isVisible()) << tool;
  }
  EXPECT_EQ(forms::Screen.ActiveForm(), &*frmMain);
  test::press("frmMain", "cmdExit");
  expectStored({{"Source", app}, {"Dest", data}, {"PalDir", data}, {"Palette", palette}});
  expectStored({{"ShowPal", "True"}, {"ShowPrev", "True"}, {"AutoPrev", "False"}});
  expectStored({{"AutoPal", "True"}, {"ResizeFit", "True"}, {"Search", "True"}});
}

TEST_F(StartUpTest, ABoxThatIsOffKeepsItsTick) {
  set("AutoPrev", "True");
  set("Search", "True");
  set("ResizeFit", "maybe");  // counts as missing, and True is the default
  start();
  const auto expectThree = [](bool enabled) {
    for (const char* name : {"chkAutoPrev", "chkSearch", "chkResize"}) {
      EXPECT_TRUE(box(name)->isChecked() && box(name)->isEnabled() == enabled) << name;
    }
    EXPECT_EQ(control("frmMain", "cmdOpen")->isEnabled(), enabled);
    EXPECT_TRUE(state.AutoPrev && state.Search && state.ResizeFit);
  };
  for (const bool enabled : {false, true, false}) {
    expectThree(enabled);
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

TEST_F(StartUpTest, TheProgramEndsWithItsMainWindowAndSavesNothingTyped) {
  test::whenShown([] {
    EXPECT_EQ(forms::Forms.Count(), 4);  // the convert dialog and the tool windows wait hidden
    for (const char* name : {"lstSource", "lstDest"}) {
      control<QComboBox>("frmMain", name)->setEditText("Z:\\typed");
    }
    box("chkSearch")->setChecked(true);
    test::window("frmMain")->close();
    EXPECT_EQ(forms::Forms.Count(), 0);
  });
  EXPECT_EQ(forms::App.run(frmMain), 0);
  expectStored({{"Source", folder.drive("in")}, {"Dest", folder.drive("out")}});
  expectStored({{"Search", "True"}, {"ShowPal", "False"}});
}

}  // namespace
}  // namespace mill
