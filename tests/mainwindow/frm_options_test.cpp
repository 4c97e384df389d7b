#include "mainwindow/frm_options.h"

#include <QLineEdit>
#include <QTest>

#include "dialogs/frm_browse.h"
#include "dialogs/frm_file_browse.h"
#include "picture/program_state.h"
#include "support/windows.h"

namespace mill {
namespace {

using forms::Answer;
using test::control;
using test::press;

constexpr const char* kForm = "frmOptions";

class Options : public test::WindowTest {
 protected:
  Options() {
    state.SourceDir = folder.drive();
    state.DestDir = "Z:\\dest";
    state.DefaultPalette = "Z:\\old.pal";
    frmOptions->Show();
  }

  static QLineEdit* box(const char* name) { return control<QLineEdit>(kForm, name); }
  static std::string text(const char* name) { return box(name)->text().toStdString(); }
  static void type(const char* name, const std::string& text) {
    box(name)->selectAll();
    QTest::keyClick(box(name), Qt::Key_Delete);
    QTest::keyClicks(box(name), QString::fromStdString(text));
  }
  static bool mayApply() { return control(kForm, "cmdApply")->isEnabled(); }

  void expectWarnings(std::size_t count) {
    const std::vector<std::string> warning(
        count,
        "The source and destination directories must be different.\r\n"
        "Are you sure you want to continue?");
    EXPECT_EQ(messages.texts(), warning);
  }
  static void expectStored(const char* source, const char* dest, const char* palette) {
    EXPECT_EQ(state.SourceDir, source);
    EXPECT_EQ(state.DestDir, dest);
    EXPECT_EQ(state.DefaultPalette, palette);
  }
};

TEST_F(Options, StoresAtOKAndAtApplyAndNotAtCancel) {
  EXPECT_FALSE(mayApply());
  type("txtSource", "Z:\\one");
  type("txtDest", "Z:\\ONE");  // another directory
  type("txtPalette", "");
  press(kForm, "cmdApply");
  EXPECT_FALSE(mayApply());
  expectStored("Z:\\one", "Z:\\ONE", "");

  type("txtDest", "Z:\\more");
  EXPECT_TRUE(mayApply());
  press(kForm, "cmdCancel");
  expectStored("Z:\\one", "Z:\\ONE", "");

  frmOptions->Show();
  EXPECT_EQ(text("txtDest"), "Z:\\ONE");
  type("txtPalette", "Z:\\new.pal");
  press(kForm, "cmdOK");
  expectStored("Z:\\one", "Z:\\ONE", "Z:\\new.pal");
  EXPECT_FALSE(frmOptions.isLoaded());
  expectWarnings(0);
}

TEST_F(Options, AsksAtOKWhereBothDirectoriesAreOne) {
  type("txtSource", "Z:\\dest");
  type("txtPalette", "Z:\\new.pal");
  messages.answers = {Answer::Cancel, Answer::OK};
  press(kForm, "cmdOK");
  expectStored(folder.drive().c_str(), "Z:\\dest", "Z:\\old.pal");
  EXPECT_EQ(text("txtSource"), folder.drive());
  EXPECT_EQ(text("txtPalette"), "Z:\\new.pal");

  type("txtSource", "Z:\\dest");
  press(kForm, "cmdOK");
  expectStored("Z:\\dest", "Z:\\dest", "Z:\\new.pal");
  expectWarnings(2);
}

TEST_F(Options, ApplyStoresThePaletteWhateverIsAnswered) {
  const std::string source = folder.drive();
  type("txtSource", "Z:\\dest");
  type("txtPalette", "Z:\\new.pal");
  messages.answers = {Answer::Cancel, Answer::OK};
  press(kForm, "cmdApply");
  expectStored(source.c_str(), "Z:\\dest", "Z:\\new.pal");
  EXPECT_EQ(text("txtSource"), source);
  EXPECT_FALSE(mayApply());

  type("txtSource", "Z:\\dest");
  press(kForm, "cmdApply");
  expectStored("Z:\\dest", "Z:\\dest", "Z:\\new.pal");
  expectWarnings(2);
}

TEST_F(Options, BrowsesForDirectories) {
  const std::string source = folder.drive();
  const auto browse = [](const char* button, const char* answer) {
    test::pressAndThen(kForm, button, [=] { press("frmBrowse", answer); });
  };
  type("txtDest", "");
  browse("cmdSourceBrowse", "CancelButton");  // its empty result equals the empty box
  expectWarnings(1);
  EXPECT_EQ(text("txtSource"), source);

  // The directory of the other box, which comes back without the backslash.
  messages.answers = {Answer::Cancel, Answer::OK};
  type("txtDest", source + "\\");
  browse("cmdDestBrowse", "OKButton");
  EXPECT_EQ(text("txtDest"), source + "\\");
  browse("cmdDestBrowse", "OKButton");
  EXPECT_EQ(text("txtDest"), source);
  expectWarnings(2);
  EXPECT_EQ(state.DestDir, "Z:\\dest");
}

TEST_F(Options, BrowsesForAPaletteWithOrWithoutAName) {
  folder.write("1.pal", {});
  type("txtPalette", folder.drive("x.pal"));
  test::pressAndThen(kForm, "cmdPalBrowse", [] { press("frmFileBrowse", "cmdCancel"); });
  EXPECT_EQ(text("txtPalette"), folder.drive("x.pal"));
  test::pressAndThen(kForm, "cmdPalBrowse", [] { press("frmFileBrowse", "cmdOK"); });
  EXPECT_EQ(text("txtPalette"), folder.drive() + "\\");
  test::pressAndThen(kForm, "cmdPalBrowse", [] {
    QTest::keyClick(control("frmFileBrowse", "File1"), Qt::Key_Down);
    press("frmFileBrowse", "cmdOK");
  });
  EXPECT_EQ(text("txtPalette"), folder.drive("1.pal"));
  EXPECT_EQ(state.DefaultPalette, "Z:\\old.pal");
}

}  // namespace
}  // namespace mill
