#include "palette/frm_pal_toolbar.h"

#include "palette/load_palette.h"
#include "picture/program_state.h"
#include "support/windows.h"

namespace mill {
namespace {

class PalToolbarTest : public test::MainWindowTest {
 protected:
  static void expectShown(const std::string& title, int seed) {
    EXPECT_EQ(test::window("frmPalToolbar")->windowTitle().toStdString(), title);
    const QImage image = test::painted(test::control("frmPalToolbar", "palette1"));
    for (int i = 0; i < 256; ++i) {
      const std::string name = "palette1(" + std::to_string(i) + ")";
      const QRect place = test::control("frmPalToolbar", name.c_str())->geometry();
      EXPECT_EQ(place, QRect(i % 16 * 8, i / 16 * 8, 9, 9));
      const model::Colour c = model::someColours(seed)[static_cast<std::size_t>(i)];
      QImage plain = image.copy(place.adjusted(1, 1, -1, -1));
      plain.fill(qRgb(c.red, c.green, c.blue));
      EXPECT_TRUE(image.copy(place.adjusted(1, 1, -1, -1)) == plain) << name;
    }
  }
};

TEST_F(PalToolbarTest, FollowsEachPaletteThatIsLoadedOrCatchesUpWhenActivated) {
  folder.write("pal/12.pal", model::paletteFile(std::string(24, 'h'), model::someColours(1)));
  set("ShowPal", "True");
  start();
  expectShown("Palette (base.pal)", 3);
  state.CurrentPaletteFile = folder.drive("pal/12.pal");
  state.ShowPal = false;
  LoadPalette();
  expectShown("Palette (base.pal)", 3);
  state.ShowPal = true;
  LoadPalette();
  expectShown("Palette (12.pal)", 1);
  // A palette that isn't there, and colours that come from elsewhere.
  state.CurrentPaletteFile = folder.drive("pal/13.pal");
  LoadPalette();
  EXPECT_EQ(messages.texts().size(), 1u);
  state.PaletteTable = test::tableOf(model::someColours(2));
  expectShown("Palette (12.pal)", 1);
  frmPalToolbar->Show();
  expectShown("Palette (13.pal)", 2);
}

TEST_F(PalToolbarTest, HasTheFilesNameInItsTitle) {
  start();
  EXPECT_EQ(frmPalToolbar->Caption(), "Palette");
  for (const auto& [path, name] :
       {std::pair("C:\\pal\\12.pal", "12.pal"), {"12.pal", "12.pal"}, {"", ""}}) {
    state.CurrentPaletteFile = path;
    frmPalToolbar->update();
    EXPECT_EQ(frmPalToolbar->Caption(), std::string("Palette (") + name + ")");
  }
}

}  // namespace
}  // namespace mill
