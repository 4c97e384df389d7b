#include "mainwindow/frm_options.h"

#include <QLineEdit>
#include <QTest>

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
  Options() { open(); }

  void open() {
    if (frmOptions.isLoaded()) frmOptions->Unload();
    state.SourceDir = source;
    state.DestDir = "Z:\\dest";
    state.DefaultPalette = "Z:\\old.pal";
    frmOptions->Show();
  }
  static QLineEdit* box(const char* name) { return control<QLineEdit>(kForm, name); }
  static std::string text(const char* name) { return box(name)->text().toStdString(); }
  static void type(const char* name, const std::string& text) {
    box(name)->setText(QString::fromStdString(text));
  }
  static bool mayApply() { return control(kForm, "cmdApply")->isEnabled(); }
  static void browse(const char* button, const char* dialog, const char* answer) {
    test::pressAndThen(kForm, button, [=] { press(dialog, answer); });
  }

  void expectWarnings(std::size_t count) {
    const std::string warning =
        "The source and destination directories must be different.\r\n"
        "Are you sure you want to continue?";
    EXPECT_EQ(messages.texts(), std::vector<std::string>(count, warning));
  }
  static void expectStored(const std::string& source, const char* dest, const char* palette) {
    EXPECT_EQ(state.SourceDir, source);
    EXPECT_EQ(state.DestDir, dest);
    EXPECT_EQ(state.DefaultPalette, palette);
  }

  const std::string source = folder.drive();
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

TEST_F(Options, AsksWhereBothDirectoriesAreOne) {
  // The button, the answer, and the palette that is stored then.
  const std::tuple<std::string, Answer, const char*> cases[] = {
      {"cmdOK", Answer::Cancel, "Z:\\old.pal"},
      {"cmdOK", Answer::OK, "Z:\\new.pal"},
      {"cmdApply", Answer::Cancel, "Z:\\new.pal"},
      {"cmdApply", Answer::OK, "Z:\\new.pal"}};
  for (const auto& [button, answer, palette] : cases) {
    const bool same = answer == Answer::OK;
    open();
    type("txtSource", "Z:\\dest");
    type("txtPalette", "Z:\\new.pal");
    messages.answers = {answer};
    press(kForm, button.c_str());
    expectWarnings(1);
    expectStored(same ? "Z:\\dest" : source, "Z:\\dest", palette);
    EXPECT_EQ(frmOptions.isLoaded(), button == "cmdApply" || !same);
    if (!frmOptions.isLoaded()) continue;
    EXPECT_EQ(text("txtSource"), state.SourceDir);
    EXPECT_EQ(text("txtPalette"), "Z:\\new.pal");
    EXPECT_EQ(mayApply(), button != "cmdApply");
  }
}

TEST_F(Options, BrowsesForDirectories) {
  type("txtDest", "");
  browse("cmdSourceBrowse", "frmBrowse", "CancelButton");  // its empty result equals the empty box
  expectWarnings(1);
  EXPECT_EQ(text("txtSource"), source);

  // The directory of the other box, which comes back without the backslash.
  messages.answers = {Answer::Cancel, Answer::OK};
  type("txtDest", source + "\\");
  browse("cmdDestBrowse", "frmBrowse", "OKButton");
  EXPECT_EQ(text("txtDest"), source + "\\");
  browse("cmdDestBrowse", "frmBrowse", "OKButton");
  EXPECT_EQ(text("txtDest"), source);
  expectWarnings(2);
  EXPECT_EQ(state.DestDir, "Z:\\dest");
}

TEST_F(Options, BrowsesForAPaletteWithOrWithoutAName) {
  folder.write("1.pal", {});
  type("txtPalette", folder.drive("x.pal"));
  browse("cmdPalBrowse", "frmFileBrowse", "cmdCancel");
  EXPECT_EQ(text("txtPalette"), folder.drive("x.pal"));
  browse("cmdPalBrowse", "frmFileBrowse", "cmdOK");
  EXPECT_EQ(text("txtPalette"), source + "\\");
  test::pressAndThen(kForm, "cmdPalBrowse", [] {
    QTest::keyClick(control("frmFileBrowse", "File1"), Qt::Key_Down);
    press("frmFileBrowse", "cmdOK");
  });
  EXPECT_EQ(text("txtPalette"), folder.drive("1.pal"));
  EXPECT_EQ(state.DefaultPalette, "Z:\\old.pal");
}

}  // namespace
}  // namespace mill
