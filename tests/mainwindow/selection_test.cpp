#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QTest>

#include "picture/program_state.h"
#include "support/windows.h"

namespace mill {
namespace {

using test::control;
using test::press;
using test::pressAndThen;
using Names = std::vector<std::string>;

class SelectionTest : public test::MainWindowTest {
 protected:
  SelectionTest() {
    for (const char* name : {"a.bmp", "B.BMP", "c.bmp"}) addPicture(name);
  }

  static QComboBox* box(const char* name) { return control<QComboBox>("frmMain", name); }
  static std::string text(const char* name) { return box(name)->currentText().toStdString(); }
  static QListView* list() { return control<QListView>("frmMain", "filSource"); }
  static void type(const char* name, const std::string& text) {
    box(name)->lineEdit()->selectAll();
    QTest::keyClicks(box(name)->lineEdit(), QString::fromStdString(text));
  }

  /// Which of the four commands can be used; button and menu item of each must agree.
  static Names commands() {
    Names found;
    for (const std::string name : {"Open", "Convert", "Batch", "Info"}) {
      const bool enabled = control("frmMain", ("cmd" + name).c_str())->isEnabled();
      EXPECT_EQ(test::menuItem("frmMain", ("mnu" + name).c_str())->isEnabled(), enabled) << name;
      if (enabled) found.push_back(name);
    }
    return found;
  }
};

TEST_F(SelectionTest, DecidesWhichCommandsCanBeUsed) {
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

TEST_F(SelectionTest, ADoubleClickOffersToConvertTheOpenPicture) {
  start();
  for (const auto& [open, standard] :
       {std::pair("a.bmp", false), std::pair("a.bmp", true), std::pair("c.bmp", false)}) {
    state.PictureFileName = open;
    state.IsStandardBitmap = standard;
    bool offered = false;
    test::whenShown([&] {
      offered = test::window("frmConvert")->isVisible();
      if (offered) press("frmConvert", "cmdNo");
    });
    select({"a.bmp"});
    const QPoint at = list()->visualRect(list()->currentIndex()).center();
    QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseRelease(list()->viewport(), Qt::LeftButton, {}, at);
    test::settle();
    EXPECT_EQ(offered, open == std::string("a.bmp") && !standard);
  }
}

TEST_F(SelectionTest, WarnsWheneverTheDirectoriesBecomeOne) {
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

TEST_F(SelectionTest, BrowseButtonsFillBoxListAndState) {
  struct Case {
    const char* button;
    const char* box;
    const char* caption;
    std::string& chosen;
  };
  const Case cases[] = {
      {"cmdSourceBrowse", "lstSource", "Browse for Source Directory", state.SourceDir},
      {"cmdDestBrowse", "lstDest", "Browse for Destination Directory", state.DestDir},
      {"cmdBrowsePal", "lstPalette", "Browse for Palette Directory", state.PalDir}};
  start();
  for (const Case& c : cases) {
    const std::string first = text(c.box), wanted = folder.drive(c.box);
    folder.makeFolder(c.box);
    type(c.box, wanted);
    for (const char* button : {"CancelButton", "OKButton", "OKButton"}) {
      pressAndThen("frmMain", c.button, [&] {
        EXPECT_EQ(test::window("frmBrowse")->windowTitle(), c.caption);
        press("frmBrowse", button);
      });
      EXPECT_EQ(c.chosen, *button == 'C' ? first : wanted);
    }
    EXPECT_EQ(text(c.box), wanted);
    EXPECT_EQ(box(c.box)->count(), 2);
  }
}

TEST_F(SelectionTest, BrowsingForTheDefaultPaletteLoadsNone) {
  folder.write("pal/25.pal", {});
  start();
  for (const bool chosen : {false, true}) {
    pressAndThen("frmMain", "cmdBrowseDefault", [&] {
      if (chosen) QTest::keyClick(control("frmFileBrowse", "File1"), Qt::Key_Home);
      press("frmFileBrowse", "cmdOK");
    });
    EXPECT_EQ(text("lstDefault"), folder.drive(chosen ? "pal/25.pal" : "pal/base.pal"));
    EXPECT_EQ(state.DefaultPalette, text("lstDefault"));
    EXPECT_EQ(state.CurrentPaletteFile, folder.drive("pal/base.pal"));
  }
}

}  // namespace
}  // namespace mill
