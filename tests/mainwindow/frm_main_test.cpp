#include "mainwindow/frm_main.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTest>

#include "picture/program_state.h"
#include "platform/forms/application.h"
#include "platform/system/paths.h"
#include "platform/system/settings.h"
#include "support/windows.h"

namespace mill {
namespace {

using forms::Answer;
using test::Bytes;
using test::control;
using test::press;
using test::pressAndThen;
using Names = std::vector<std::string>;

class MainWindow : public test::MainWindowTest {
 protected:
  MainWindow() {
    for (const char* name : {"a.bmp", "B.BMP", "c.bmp"}) addPicture(name);
    set("ShowPrev", "True");
  }

  static QCheckBox* tick(const char* name) { return control<QCheckBox>("frmMain", name); }
  static QAction* item(const std::string& name) {
    return control<QAction>("frmMain", name.c_str());
  }
  static QComboBox* box(const char* name) { return control<QComboBox>("frmMain", name); }
  static std::string text(const char* name) { return box(name)->currentText().toStdString(); }
  static void type(const char* name, const std::string& text) {
    box(name)->lineEdit()->selectAll();
    QTest::keyClicks(box(name)->lineEdit(), QString::fromStdString(text));
  }
  static QListView* list() { return control<QListView>("frmMain", "filSource"); }
  /// Clicks a name twice. True where that asks whether to convert it, which is answered by the key.
  bool doubleClick(const std::string& name, Qt::Key answer) {
    bool asked = false;
    test::whenShown([&] {
      asked = test::window("frmConvert")->isVisible();
      if (asked) QTest::keyClick(control("frmConvert", "cmdYes"), answer);
    });
    select({name});
    const QPoint at = list()->visualRect(list()->currentIndex()).center();
    QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseRelease(list()->viewport(), Qt::LeftButton, {}, at);
    test::settle();
    return asked;
  }

  /// Which of the four commands can be used; button and menu item of each must agree.
  static Names commands() {
    Names found;
    for (const std::string name : {"Open", "Convert", "Batch", "Info"}) {
      const bool enabled = control("frmMain", ("cmd" + name).c_str())->isEnabled();
      EXPECT_EQ(item("mnu" + name)->isEnabled(), enabled) << name;
      if (enabled) found.push_back(name);
    }
    return found;
  }
  Bytes temporary() const { return test::readFile(folder.path("temp.bmp")); }
};

TEST_F(MainWindow, TakesTheDefaultsAtFirstAndStoresTheTicksButNothingTyped) {
  constexpr const char* kTitle = forms::Application::Title;
  std::filesystem::remove(forms::nativePath(forms::settingsFile(kTitle)));
  start();
  const std::string app = forms::App.Path(), data = app + "\\data", palette = data + "\\base.pal";
  messages.expectLast(1, "The palette file does not exist.", "", forms::Icon::None);
  const std::pair<const char*, std::string> paths[] = {
      {"lstSource", app}, {"lstDest", data}, {"lstPalette", data}, {"lstDefault", palette}};
  for (const auto& [name, path] : paths) {
    EXPECT_EQ(text(name), path);
    type(name, "Z:\\typed");
  }
  EXPECT_EQ(control<QLabel>("frmMain", "lblPalFile")->text().toStdString(), palette);
  for (const char* name : {"chkPrev", "chkPal", "chkAutoPal", "chkResize", "chkSearch"}) {
    EXPECT_TRUE(tick(name)->isChecked() && tick(name)->isEnabled()) << name;
  }
  EXPECT_TRUE(!tick("chkAutoPrev")->isChecked() && tick("chkAutoPrev")->isEnabled());
  for (const char* tool : {"frmPalToolbar", "frmPreviewToolbar"}) {
    EXPECT_TRUE(test::window(tool)->isVisible()) << tool;
  }
  EXPECT_EQ(forms::Screen.ActiveForm(), &*frmMain);
  for (QCheckBox* tick : test::window("frmMain")->findChildren<QCheckBox*>()) tick->toggle();
  press("frmMain", "cmdExit");
  EXPECT_EQ(forms::Forms.Count(), 0);
  const std::pair<const char*, std::string> settings[] = {
      {"Source", app},        {"Dest", data},        {"PalDir", data},     {"Palette", palette},
      {"ShowPal", "False"},   {"ShowPrev", "False"}, {"AutoPrev", "True"}, {"AutoPal", "False"},
      {"ResizeFit", "False"}, {"Search", "False"}};
  for (const auto& [key, value] : settings) {
    EXPECT_EQ(forms::GetSetting(kTitle, "Settings", key, "nothing"), value) << key;
  }
}

TEST_F(MainWindow, OffersTheOptionsOnceTheStartIsOver) {
  set("ShowPal", "True");  // which shows the main window in the middle of it
  frmMain.Load();
  EXPECT_FALSE(item("mnuOptions")->isEnabled());
  frmMain->Show();
  EXPECT_TRUE(item("mnuOptions")->isEnabled());
}

TEST_F(MainWindow, ReplacesASourceWithoutFiles) {
  folder.makeFolder("only/folders");
  folder.makeFolder("hidden");
  folder.write("hidden/.file", {});
  for (const std::string source : {"only", "hidden", "gone", "in"}) {
    set("Source", folder.drive(source));
    start();
    EXPECT_EQ(text("lstSource"), source == "in" ? folder.drive(source) : forms::App.Path());
    frmMain->Unload();
    test::settle();
  }
}

TEST_F(MainWindow, ABoxThatIsOffKeepsItsTick) {
  set("ShowPrev", "False");
  set("AutoPrev", "True");
  set("Search", "True");
  set("ResizeFit", "maybe");  // counts as missing, and True is the default
  start();
  for (const bool enabled : {false, true, false}) {
    for (const char* name : {"chkAutoPrev", "chkSearch", "chkResize"}) {
      EXPECT_TRUE(tick(name)->isChecked() && tick(name)->isEnabled() == enabled) << name;
    }
    EXPECT_EQ(control("frmMain", "cmdOpen")->isEnabled(), enabled);
    EXPECT_TRUE(state.AutoPrev && state.Search && state.ResizeFit);
    for (const char* name : {"chkPrev", "chkAutoPal"}) tick(name)->click();
    EXPECT_EQ(forms::Screen.ActiveForm(), &*frmMain);
  }
}

TEST_F(MainWindow, TheSelectionDecidesWhichCommandsCanBeUsed) {
  struct Case {
    Names selected;
    const char* open;
    bool standard, showPrev;
    Names commands;
  };
  const Case cases[] = {{{"a.bmp"}, "", false, true, {"Open", "Convert"}},
                        {{"a.bmp"}, "", false, false, {"Convert"}},
                        {{"a.bmp"}, "A.bmp", false, true, {"Open", "Convert"}},
                        {{"a.bmp"}, "a.bmp", false, true, {"Convert", "Info"}},
                        {{"a.bmp"}, "a.bmp", true, true, {"Info"}},
                        {{"a.bmp", "c.bmp"}, "a.bmp", false, true, {"Batch"}},
                        {{"a.bmp", "a.bmp"}, "a.bmp", false, true, {}}};
  start();
  for (const Case& c : cases) {
    state.PictureFileName = c.open;
    state.IsStandardBitmap = c.standard;
    state.ShowPrev = c.showPrev;
    select(c.selected);
    EXPECT_EQ(commands(), c.commands);
  }
  // Another folder changes nothing before the next click.
  select({"c.bmp", "a.bmp", "B.BMP"});
  type("lstSource", folder.drive("out"));
  EXPECT_EQ(list()->model()->rowCount(), 0);
  EXPECT_EQ(state.SelectedFiles, (Names{"a.bmp", "B.BMP", "c.bmp"}));
  EXPECT_EQ(commands(), Names{"Batch"});
}

TEST_F(MainWindow, ThePreviewCommandOpensAndWritesThePicture) {
  const Bytes a = model::convertedBitmap(addPicture("a.bmp", 1), colours);
  const Bytes standard = model::convertedBitmap(addPicture("b.bmp", 2), model::someColours(8));
  folder.write("in/b.bmp", standard);
  folder.write("in/junk.bmp", {'j', 'u', 'n', 'k'});
  start();
  press("frmMain", "cmdOpen");  // with nothing selected, nothing open
  EXPECT_EQ(messages.texts(), Names{"The file you seleted to be opened does not exist."});
  EXPECT_EQ(commands(), Names{"Info"});
  EXPECT_FALSE(state.PreviewDC);

  select({"a.bmp"});
  item("mnuOpen")->trigger();
  EXPECT_EQ(commands(), (Names{"Convert", "Info"}));
  EXPECT_EQ(temporary(), a);
  // A refused file leaves the picture before it in the preview.
  folder.write("temp.bmp", {});
  preview("junk.bmp");
  EXPECT_EQ(messages.texts(), Names{"This file is not a valid bitmap file."});
  EXPECT_EQ(state.PictureFileName, "a.bmp");
  EXPECT_EQ(temporary(), a);

  messages.answers = {Answer::Yes};
  preview("b.bmp");
  EXPECT_EQ(commands(), Names{"Info"});
  EXPECT_EQ(temporary(), standard);
  // A refusal makes it count as no standard bitmap, but it is shown and written as it was.
  preview("junk.bmp");
  EXPECT_EQ(temporary(), standard);
  select({"b.bmp"});
  EXPECT_EQ(commands(), (Names{"Convert", "Info"}));
}

TEST_F(MainWindow, WithoutThePreviewWindowTheCommandDoesNothing) {
  start();
  select({"a.bmp"});
  tick("chkPrev")->click();
  EXPECT_FALSE(control("frmMain", "cmdOpen")->isEnabled());
  EXPECT_TRUE(item("mnuOpen")->isEnabled());  // keeps its state
  state.AutoPrev = true;
  item("mnuOpen")->trigger();
  EXPECT_FALSE(doubleClick("a.bmp", Qt::Key_Escape));
  EXPECT_EQ(state.PictureFileName, "");
  EXPECT_FALSE(folder.exists("temp.bmp"));
  EXPECT_EQ(frmMain->MousePointer(), forms::vbDefault);
}

TEST_F(MainWindow, ADoubleClickPreviewsThenOffersToConvert) {
  const Bytes a = model::convertedBitmap(addPicture("a.bmp", 1), colours);
  start();
  EXPECT_FALSE(doubleClick("a.bmp", Qt::Key_Escape));
  EXPECT_EQ(state.PictureFileName, "a.bmp");
  state.IsStandardBitmap = true;
  EXPECT_FALSE(doubleClick("a.bmp", Qt::Key_Escape));
  state.IsStandardBitmap = false;
  EXPECT_TRUE(doubleClick("a.bmp", Qt::Key_Escape));
  EXPECT_EQ(commands(), Names{"Info"});
  EXPECT_FALSE(folder.exists("out/a.bmp"));
  EXPECT_TRUE(doubleClick("a.bmp", Qt::Key_Space));
  EXPECT_EQ(test::readFile(folder.path("out/a.bmp")), a);
  EXPECT_EQ(state.PictureFileName, "a.bmp");  // opened again
  select({"c.bmp"});
  EXPECT_EQ(state.PictureFileName, "a.bmp");
  state.AutoPrev = true;
  select({"c.bmp"});
  EXPECT_EQ(state.PictureFileName, "c.bmp");
  EXPECT_EQ(commands(), (Names{"Convert", "Info"}));
}

TEST_F(MainWindow, WarnsWheneverTheDirectoriesBecomeOne) {
  const auto expectWarning = [&] {
    messages.expectLast(1, "The source and destination directories must be different.", "Warning!",
                        forms::Icon::Information);
  };
  set("Dest", folder.drive("in"));
  start();
  expectWarning();
  type("lstDest", folder.drive("IN"));  // case counts
  EXPECT_TRUE(messages.texts().empty());
  type("lstSource", folder.drive("IN"));
  expectWarning();
  EXPECT_EQ(text("lstSource"), folder.drive("IN"));
  // Picking an entry is a change too.
  for (const char* name : {"lstSource", "lstDest"}) {
    box(name)->showPopup();
    QTest::keyClick(box(name)->view(), Qt::Key_Return);
  }
  expectWarning();
  EXPECT_EQ(list()->model()->rowCount(), 3);
}

TEST_F(MainWindow, BrowsingFillsBoxAndStateOnceAndLoadsNoPalette) {
  const std::tuple<const char*, const char*, std::string&> cases[] = {
      {"cmdSourceBrowse", "lstSource", state.SourceDir},
      {"cmdDestBrowse", "lstDest", state.DestDir},
      {"cmdBrowsePal", "lstPalette", state.PalDir}};
  folder.write("pal/25.pal", {});
  start();
  for (const auto& [button, name, chosen] : cases) {
    const std::string first = text(name), wanted = folder.drive(name);
    folder.makeFolder(name);
    type(name, wanted);
    for (const char* end : {"CancelButton", "OKButton", "OKButton"}) {
      pressAndThen("frmMain", button, [&] { press("frmBrowse", end); });
      EXPECT_EQ(chosen, *end == 'C' ? first : wanted);
    }
    EXPECT_EQ(text(name), wanted);
    EXPECT_EQ(box(name)->count(), 2);
  }
  for (const char* file : {"base.pal", "25.pal"}) {
    pressAndThen("frmMain", "cmdBrowseDefault", [&] {
      if (*file == '2') QTest::keyClick(control("frmFileBrowse", "File1"), Qt::Key_Home);
      press("frmFileBrowse", "cmdOK");
    });
    EXPECT_EQ(text("lstDefault"), folder.drive("pal/") + file);
    EXPECT_EQ(state.DefaultPalette, text("lstDefault"));
    EXPECT_EQ(state.CurrentPaletteFile, folder.drive("pal/base.pal"));
  }
}

}  // namespace
}  // namespace mill
