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
  // The picture, the row chosen after both have been previewed, and what the button makes of it.
  const std::tuple<const char*, int, const char*, const char*, int> cases[] = {
      {"a.bmp", 1, "cmdOK", "pal/sub/25.pal", 21}, {"b.bmp", 0, "cmdDefault", "pal/base.pal", 3}};
  addPicture("a.bmp");
  const test::Bytes picture = addPicture("b.bmp");
  folder.write("in/c.bmp", model::kestrelBitmap({.paletteIndex = 7}));
  folder.write("pal/7.pal", test::Bytes(30));
  start();
  for (const auto& [name, chosen, button, file, seed] : cases) {
    select({name});
    test::pressAndThen("frmMain", "cmdOpen", [&] {
      const std::string current = state.CurrentPaletteFile;
      EXPECT_FALSE(test::isEnabled(kForm, "cmdOK"));
      test::window("frmPreviewToolbar")->resize(50 + seed, 40);
      test::settle();  // shows nothing of the picture before
      EXPECT_FALSE(state.PreviewDC);
      for (const int row : {0, 1}) {
        choose(row);
        press(kForm, "cmdPrev");
        EXPECT_EQ(state.CurrentPaletteFile, current);
        expectPreview(picture, 20 + row);
      }
      choose(chosen);
      auto* list = control<QListView>(kForm, "lstPalette");
      QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, QPoint(9, list->height() - 9));
      for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        QTest::keyClick(control(kForm, "lstPalette"), key);
      }
      test::window(kForm)->close();
      EXPECT_TRUE(test::window(kForm)->isVisible());
      press(kForm, button);
    });
    EXPECT_EQ(state.CurrentPaletteFile, folder.drive(file));
    expectPreview(picture, seed);
  }
  select({"c.bmp"});  // whose palette ends early
  test::pressAndThen("frmMain", "cmdConvert", [] { press("frmConvert", "cmdYes"); });
  EXPECT_EQ(messages.texts(), test::Texts{"The palette file is incomplete."});
  EXPECT_FALSE(folder.exists("out/c.bmp"));
}

}  // namespace
}  // namespace mill
