#include "palette/frm_pal_select.h"

#include <QListView>
#include <QTest>

#include "picture/program_state.h"
#include "support/windows.h"

namespace mill {
namespace {

using model::someColours;
using test::control;
using test::press;

constexpr const char* kForm = "frmPalSelect";

/// With two palettes of the index that pictures ask for.
class Chooser : public test::MainWindowTest {
 protected:
  Chooser() {
    folder.makeFolder("pal/sub");
    folder.write("pal/25.pal", model::paletteFile(std::string(24, '-'), someColours(20)));
    folder.write("pal/sub/25.pal", model::paletteFile(std::string(24, '-'), someColours(21)));
    for (const char* flag : {"ShowPrev", "ShowPal", "AutoPal", "Search"}) set(flag, "True");
  }
  static void choose(int row) {
    auto* list = control<QListView>(kForm, "lstPalette");
    const QPoint at = list->visualRect(list->model()->index(row, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
  }
  void expectPreview(const test::Bytes& picture, int seed) const {
    EXPECT_EQ(test::readFile(folder.path("temp.bmp")),
              model::convertedBitmap(picture, someColours(seed)));
    test::expectSwatches("frmPalToolbar", someColours(seed));
  }
};

TEST_F(Chooser, OnlyAButtonDecidesAndAPreviewIsNoChoice) {
  struct Case {
    const char* picture;
    std::vector<int> previews;
    int chosen;
    const char* button;
    const char* file;
    int seed;
  };
  const Case cases[] = {{"a.bmp", {}, -1, "cmdDefault", "pal/base.pal", 3},
                        {"c.bmp", {0, 1}, 1, "cmdDefault", "pal/base.pal", 3},
                        {"d.bmp", {1}, 0, "cmdOK", "pal/25.pal", 20}};
  for (const Case& c : cases) addPicture(c.picture, *c.picture);
  start();
  for (const auto& [picture, previews, chosen, button, file, seed] : cases) {
    SCOPED_TRACE(picture);
    const test::Bytes bitmap = test::readFile(folder.path("in") / picture);
    const std::string before = state.CurrentPaletteFile;
    select({picture});
    test::pressAndThen("frmMain", "cmdOpen", [&] {
      for (const int row : previews) {
        choose(row);
        press(kForm, "cmdPrev");
        EXPECT_EQ(state.CurrentPaletteFile, before);
        expectPreview(bitmap, 20 + row);
      }
      if (chosen >= 0) choose(chosen);
      EXPECT_EQ(test::isEnabled(kForm, "cmdOK"), chosen >= 0);
      for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        QTest::keyClick(control(kForm, "lstPalette"), key);
      }
      test::window(kForm)->close();
      EXPECT_TRUE(test::window(kForm)->isVisible());
      press(kForm, button);
    });
    EXPECT_EQ(state.CurrentPaletteFile, folder.drive(file));
    expectPreview(bitmap, seed);
  }
  EXPECT_EQ(messages.texts(), test::Texts{});
}

}  // namespace
}  // namespace mill
