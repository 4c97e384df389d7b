#include <QLabel>
#include <QListView>
#include <QProgressBar>
#include <QTest>

#include "picture/program_state.h"
#include "support/windows.h"

namespace mill {
namespace {

using test::Bytes;
using test::control;
using test::press;
using Texts = std::vector<std::string>;

/// Two palettes of index 25, which all pictures have.
class PalSelectTest : public test::MainWindowTest {
 protected:
  PalSelectTest() {
    for (const char* flag : {"ShowPrev", "ShowPal", "AutoPal", "Search"}) set(flag, "True");
    folder.makeFolder("pal/sub");
    for (int i = 0; i < 2; ++i) {
      folder.write(names[i], model::paletteFile(std::string(24, 'h'), model::someColours(20 + i)));
    }
  }

  static bool enabled(const char* button) { return control("frmPalSelect", button)->isEnabled(); }
  static void choose(int row) {
    auto* list = control<QListView>("frmPalSelect", "lstPalette");
    const QPoint at = list->visualRect(list->model()->index(row, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
  }
  /// Opens a picture and runs `act` in the chooser that comes up over it.
  void openAnd(const std::string& name, std::function<void()> act) {
    select({name});
    test::pressAndThen("frmMain", "cmdOpen", std::move(act));
    EXPECT_FALSE(test::window("frmPalSelect") && test::window("frmPalSelect")->isVisible());
  }
  Bytes temporary() const { return test::readFile(folder.path("temp.bmp")); }
  void expectPreview(const Bytes& bitmap) const {
    EXPECT_EQ(temporary(), bitmap);
    EXPECT_TRUE(test::painted(control("frmPreviewToolbar", "Picture1")) ==
                test::boxWith(bitmap, {64, 64}, 16));
  }

  const char* const names[2] = {"pal/25.pal", "pal/sub/25.pal"};
};

TEST_F(PalSelectTest, WhatIsPressedDecidesAndAPreviewIsNoChoice) {
  struct Case {
    std::vector<int> previews;
    int chosen;
    const char* button;
    const char* file;
    int seed;
  };
  const Case cases[] = {{{}, -1, "cmdDefault", "pal/base.pal", 3},
                        {{}, 1, "cmdOK", "pal/sub/25.pal", 21},
                        {{1}, 1, "cmdDefault", "pal/base.pal", 3},
                        {{0, 1}, 0, "cmdOK", "pal/25.pal", 20},
                        {{0}, 1, "cmdOK", "pal/sub/25.pal", 21}};
  std::vector<Bytes> pictures;
  for (int i = 0; i < 5; ++i) pictures.push_back(addPicture(std::to_string(i) + ".bmp", i));
  start();
  test::window("frmPreviewToolbar")->resize(64, 64);
  for (std::size_t i = 0; i < 5; ++i) {
    SCOPED_TRACE(i);
    const Case& c = cases[i];
    const std::string before = state.CurrentPaletteFile;
    openAnd(std::to_string(i) + ".bmp", [&] {
      EXPECT_FALSE(enabled("cmdOK") || enabled("cmdPrev"));
      for (const int row : c.previews) {
        choose(row);
        press("frmPalSelect", "cmdPrev");
        EXPECT_EQ(state.CurrentPaletteFile, before);
        EXPECT_EQ(test::window("frmPalToolbar")->windowTitle(), QStringLiteral("Palette (25.pal)"));
        expectPreview(model::convertedBitmap(pictures[i], model::someColours(20 + row)));
      }
      if (c.chosen >= 0) choose(c.chosen);
      EXPECT_EQ(enabled("cmdOK") && enabled("cmdPrev"), c.chosen >= 0);
      press("frmPalSelect", c.button);
    });
    EXPECT_EQ(state.CurrentPaletteFile, folder.drive(c.file));
    EXPECT_EQ(control<QLabel>("frmMain", "lblPalFile")->text().toStdString(), folder.drive(c.file));
    expectPreview(model::convertedBitmap(pictures[i], model::someColours(c.seed)));
  }
  EXPECT_TRUE(messages.texts().empty());
}

TEST_F(PalSelectTest, ListsFullPathsAndEndsByItsButtonsOnly) {
  addPicture("a.bmp");
  start();
  openAnd("a.bmp", [&] {
    QWidget* dialog = test::window("frmPalSelect");
    EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Palette Selection"));
    EXPECT_EQ(dialog->size(), QSize(7335 / 15, 2655 / 15));
    const auto* rows = control<QListView>("frmPalSelect", "lstPalette")->model();
    for (int i = 0; i < 2; ++i) {
      EXPECT_EQ(rows->index(i, 0).data().toString().toStdString(), folder.drive(names[i]));
    }
    for (const int row : {-1, 0}) {
      if (row >= 0) choose(row);
      for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClick(control("frmPalSelect", "cmdDefault"), key);
        QTest::keyClick(control("frmPalSelect", "lstPalette"), key);
      }
      dialog->close();
      EXPECT_TRUE(dialog->isVisible());
    }
    press("frmPalSelect", "cmdDefault");
  });
}

TEST_F(PalSelectTest, ComesUpOverARunWhichThenGoesOn) {
  const Bytes a = addPicture("a.bmp", 1), b = addPicture("b.bmp", 2);
  set("ShowPrev", "False");
  start();
  select({"a.bmp", "b.bmp"});
  int asked = 0;
  std::function<void()> decide = [&] {
    EXPECT_TRUE(test::window("frmConvert")->isVisible());
    EXPECT_EQ(state.PictureFileName, asked == 0 ? "a.bmp" : "b.bmp");
    choose(asked == 0 ? 1 : 0);
    const auto* bar = control<QProgressBar>("frmConvert", "Progress1");
    test::settle();
    EXPECT_EQ(bar->value(), 0);
    press("frmPalSelect", "cmdPrev");
    test::settle();
    EXPECT_EQ(bar->value(), 0);  // only the run itself is reported
    EXPECT_EQ(temporary(),
              model::convertedBitmap(asked == 0 ? a : b, model::someColours(asked == 0 ? 21 : 20)));
    if (asked++ == 0) test::whenShown(decide);
    press("frmPalSelect", "cmdOK");
  };
  test::pressAndThen("frmMain", "cmdBatch", [&] {
    test::pressAndThen("frmConvert", "cmdYes", decide);
    test::settle();
    EXPECT_EQ(control<QProgressBar>("frmConvert", "Progress1")->value(), 100);
  });
  EXPECT_EQ(asked, 2);
  EXPECT_EQ(test::readFile(folder.path("out/a.bmp")),
            model::convertedBitmap(a, model::someColours(21)));
  EXPECT_EQ(test::readFile(folder.path("out/b.bmp")),
            model::convertedBitmap(b, model::someColours(20)));
  EXPECT_FALSE(test::window("frmConvert")->isVisible());
  EXPECT_FALSE(test::window("frmPreviewToolbar")->isVisible());
  EXPECT_TRUE(state.PreviewDC);
  EXPECT_TRUE(messages.texts().empty());
}

}  // namespace
}  // namespace mill
