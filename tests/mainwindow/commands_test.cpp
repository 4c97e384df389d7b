#include <QAction>
#include <QCheckBox>
#include <QListView>
#include <QTest>

#include "mainwindow/frm_main.h"
#include "picture/program_state.h"
#include "platform/application.h"
#include "support/windows.h"

namespace mill {
namespace {

using forms::Answer;
using test::Bytes;
using test::control;
using test::window;
using Names = std::vector<std::string>;

class CommandsTest : public test::MainWindowTest {
 protected:
  /// Which of these can be used, of buttons and menu items.
  static Names enabled() {
    Names found;
    for (const char* name : {"cmdOpen", "cmdConvert", "cmdBatch", "cmdInfo"}) {
      if (control("frmMain", name)->isEnabled()) found.emplace_back(name);
    }
    for (const char* name : {"mnuOpen", "mnuConvert", "mnuBatch", "mnuInfo"}) {
      if (test::menuItem("frmMain", name)->isEnabled()) found.emplace_back(name);
    }
    return found;
  }
  static QCheckBox* box(const char* name) { return control<QCheckBox>("frmMain", name); }
  static bool visible(const char* form) { return window(form)->isVisible(); }
  Bytes temporary() const { return test::readFile(folder.path("temp.bmp")); }
  /// The preview shows what the temporary file holds, and that is this picture.
  void expectPreview(const Bytes& bitmap) const {
    EXPECT_EQ(temporary(), bitmap);
    window("frmPreviewToolbar")->resize(64, 64);
    EXPECT_TRUE(test::painted(control("frmPreviewToolbar", "Picture1")) ==
                test::boxWith(bitmap, {64, 64}, 16));
  }
  static void setMinimised(bool minimised) {
    window("frmMain")->setWindowState(minimised ? Qt::WindowMinimized : Qt::WindowNoState);
    test::settle();
  }
  /// Clicks a name twice; `act` runs once the window that the second click opens is there.
  void doubleClick(
      const std::string& name, std::function<void()> act = [] {}) {
    select({name});
    test::whenShown(std::move(act));
    auto* list = control<QListView>("frmMain", "filSource");
    const QPoint at = list->visualRect(list->currentIndex()).center();
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, at);
    test::settle();
  }

  const Names openOnly = {"cmdOpen", "cmdConvert", "mnuOpen", "mnuConvert"};
  const Names opened = {"cmdConvert", "cmdInfo", "mnuConvert", "mnuInfo"};
  const Names info = {"cmdInfo", "mnuInfo"};
};

TEST_F(CommandsTest, ThePreviewCommandOpensWritesAndShows) {
  set("ShowPrev", "True");
  const Bytes a = addPicture("a.bmp", 1);
  const Bytes standard = model::convertedBitmap(addPicture("b.bmp", 2), model::someColours(8));
  folder.write("in/b.bmp", standard);
  folder.write("in/junk.bmp", {'j', 'u', 'n', 'k'});
  start();
  // With nothing selected, nothing open.
  test::press("frmMain", "cmdOpen");
  EXPECT_EQ(messages.texts(), Names{"The file you seleted to be opened does not exist."});
  EXPECT_EQ(enabled(), info);
  EXPECT_FALSE(state.PreviewDC);

  select({"a.bmp"});
  EXPECT_EQ(enabled(), openOnly);
  test::menuItem("frmMain", "mnuOpen")->trigger();
  EXPECT_EQ(enabled(), opened);
  expectPreview(model::convertedBitmap(a, colours));

  // A refused file leaves the picture before it in the preview.
  folder.write("temp.bmp", {});
  preview("junk.bmp");
  EXPECT_EQ(messages.texts(), Names{"This file is not a valid bitmap file."});
  EXPECT_EQ(enabled(), opened);
  EXPECT_EQ(state.PictureFileName, "a.bmp");
  expectPreview(model::convertedBitmap(a, colours));

  messages.answers = {Answer::Yes};
  preview("b.bmp");
  EXPECT_EQ(enabled(), info);
  expectPreview(standard);
  preview("junk.bmp");
  expectPreview(standard);
  // The refusal has made it count as no standard bitmap, but it is shown and written as it was.
  select({"b.bmp"});
  EXPECT_EQ(enabled(), opened);
  select({"a.bmp"});
  EXPECT_EQ(enabled(), openOnly);
}

TEST_F(CommandsTest, WithoutThePreviewWindowTheCommandDoesNothing) {
  addPicture("a.bmp");
  set("ShowPrev", "True");
  start();
  select({"a.bmp"});
  box("chkPrev")->click();
  // The menu item keeps its state.
  EXPECT_EQ(enabled(), (Names{"cmdConvert", "mnuOpen", "mnuConvert"}));
  state.AutoPrev = true;
  test::menuItem("frmMain", "mnuOpen")->trigger();
  doubleClick("a.bmp");
  EXPECT_EQ(state.PictureFileName, "");
  EXPECT_FALSE(folder.exists("temp.bmp"));
  EXPECT_EQ(enabled(), (Names{"cmdConvert", "mnuConvert"}));
  EXPECT_EQ(frmMain->MousePointer(), forms::vbDefault);
}

TEST_F(CommandsTest, EachCheckBoxSetsItsFlagAndLeavesTheMainWindowActive) {
  const std::pair<const char*, bool&> cases[] = {
      {"chkPrev", state.ShowPrev}, {"chkAutoPrev", state.AutoPrev}, {"chkResize", state.ResizeFit},
      {"chkPal", state.ShowPal},   {"chkAutoPal", state.AutoPal},   {"chkSearch", state.Search}};
  start();
  for (const bool on : {true, false}) {
    for (const auto& [name, flag] : cases) {
      EXPECT_EQ(flag, !on) << name;
      box(name)->setChecked(on);
      EXPECT_EQ(flag, on) << name;
      EXPECT_EQ(visible("frmPreviewToolbar"), state.ShowPrev);
      EXPECT_EQ(visible("frmPalToolbar"), state.ShowPal);
      EXPECT_EQ(forms::Screen.ActiveForm(), &*frmMain);
    }
  }
}

TEST_F(CommandsTest, ToolWindowsGoAndComeWithTheMainWindow) {
  start();
  for (const bool pal : {false, true}) {
    for (const bool prev : {false, true}) {
      box("chkPal")->setChecked(pal);
      box("chkPrev")->setChecked(prev);
      for (const bool minimised : {true, false, true, false}) {
        setMinimised(minimised);
        EXPECT_EQ(visible("frmPalToolbar"), pal && !minimised);
        EXPECT_EQ(visible("frmPreviewToolbar"), prev && !minimised);
        EXPECT_TRUE(state.ShowPal == pal && state.ShowPrev == prev);
      }
    }
  }
  // The close box says nothing to flag and tick, and both ways bring the windows back.
  for (const bool byTick : {false, true}) {
    for (const char* tool : {"frmPalToolbar", "frmPreviewToolbar"}) window(tool)->close();
    EXPECT_FALSE(visible("frmPalToolbar") || visible("frmPreviewToolbar"));
    EXPECT_TRUE(state.ShowPal && state.ShowPrev);
    for (const bool first : {true, false}) {
      for (const char* name : {"chkPal", "chkPrev"}) {
        EXPECT_TRUE(box(name)->isChecked() == first || !byTick);
        if (byTick) box(name)->click();
      }
      if (!byTick) setMinimised(first);
    }
    EXPECT_TRUE(visible("frmPalToolbar") && visible("frmPreviewToolbar"));
  }
}

TEST_F(CommandsTest, ADialogStaysTheActiveWindowWhenToolWindowsComeBack) {
  for (const char* flag : {"ShowPal", "ShowPrev"}) set(flag, "True");
  addPicture("a.bmp");
  start();
  select({"a.bmp"});
  test::pressAndThen("frmMain", "cmdConvert", [] {
    forms::Form* dialog = forms::Screen.ActiveForm();
    for (const bool minimised : {true, false}) setMinimised(minimised);
    EXPECT_EQ(forms::Screen.ActiveForm(), dialog);
    test::press("frmConvert", "cmdNo");
  });
}

TEST_F(CommandsTest, ADoubleClickPreviewsThenAsksThenShowsAgain) {
  set("ShowPrev", "True");
  const Bytes a = addPicture("a.bmp", 1);
  addPicture("b.bmp", 2);
  for (const bool autoPreview : {false, true}) {
    SCOPED_TRACE(autoPreview);
    set("AutoPrev", autoPreview ? "True" : "False");
    start();
    bool asked = false;
    const auto answer = [&](const char* button) {
      return [&asked, button] {
        asked = visible("frmConvert");
        if (asked) test::press("frmConvert", button);
      };
    };
    doubleClick("a.bmp", answer("cmdNo"));
    EXPECT_EQ(asked, autoPreview);
    EXPECT_EQ(state.PictureFileName, "a.bmp");
    doubleClick("a.bmp", answer("cmdNo"));
    EXPECT_TRUE(asked && !folder.exists("out/a.bmp"));
    doubleClick("a.bmp", answer("cmdYes"));
    EXPECT_EQ(test::readFile(folder.path("out/a.bmp")), model::convertedBitmap(a, colours));
    EXPECT_EQ(state.PictureFileName, "a.bmp");
    expectPreview(model::convertedBitmap(a, colours));
    // One click on another name shows it where that is wanted.
    select({"b.bmp"});
    EXPECT_EQ(state.PictureFileName, autoPreview ? "b.bmp" : "a.bmp");
    EXPECT_EQ(enabled(), autoPreview ? opened : openOnly);
    std::filesystem::remove(folder.path("out/a.bmp"));
    state.PictureFileName.clear();
    frmMain->Unload();
    test::settle();
  }
}

}  // namespace
}  // namespace mill
