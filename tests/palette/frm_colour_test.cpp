#include "palette/frm_colour.h"

#include <QTableView>
#include <QTest>

#include "picture/open_picture.h"
#include "picture/program_state.h"
#include "support/windows.h"

namespace mill {
namespace {

using model::Colours;
using model::paletteFile;
using test::control;

constexpr const char* kForm = "frmColour";
const std::string kHead("a head \0 of any bytes \xFF", 24);

/// Over the current palette, "base.pal", and one with another head, "other.pal".
class Editor : public test::WindowTest {
 protected:
  Editor() {
    folder.write("base.pal", paletteFile(kHead, own));
    folder.write("other.pal", paletteFile(std::string(24, '-'), other));
    folder.write("short.pal", model::Bytes(23, 1));
    open();
  }
  void open() {
    state.CurrentPaletteFile = state.DefaultPalette = folder.drive("base.pal");
    state.PaletteTable = own;
    state.PaletteHeader = kHead;
    frmColour->show();
    test::settle();
  }
  /// Presses the mouse on the next swatch and releases it on this one.
  static void click(int swatch) {
    auto* view = control<QTableView>(kForm, "palette1");
    const QRect place = view->visualRect(view->model()->index(swatch / 16, swatch % 16));
    QTest::mousePress(view->viewport(), Qt::LeftButton, {}, place.center() + QPoint(16, 0));
    QTest::mouseMove(view->viewport(), place.center());
    QTest::mouseRelease(view->viewport(), Qt::LeftButton, {}, place.center());
  }
  static std::string numbers() {
    std::string texts;
    for (const char* name : {"txtIndex", "txtRed", "txtGreen", "txtBlue"}) {
      texts += control<QLineEdit>(kForm, name)->text().toStdString() + " ";
    }
    return texts;
  }
  static QRgb patch(const char* name) { return test::painted(control(kForm, name)).pixel(30, 30); }
  /// Loads or saves.
  static void use(const char* button, const std::string& name) {
    test::pressAndThen(kForm, button, [&] {
      control<QLineEdit>("frmSave", "txtFilename")->setText(QString::fromStdString(name));
      test::press("frmSave", "cmdOK");
    });
  }

  const Colours own = model::someColours(3), other = model::someColours(8);
};

TEST_F(Editor, TypedNumbersReachTheSavedFile) {
  test::type(kForm, "txtIndex", "0256");
  EXPECT_TRUE(numbers().starts_with("255 ")) << numbers();
  Colours changed = own;
  for (const auto& [text, number] : {std::pair("12abc", 12), {"300", 255}, {"7", 7}}) {
    click(9);
    for (const char* name : {"txtRed", "txtGreen", "txtBlue"}) test::type(kForm, name, text);
    const std::string box = std::string(text) + " ";
    EXPECT_EQ(numbers(), "9 " + box + box + box);
    const auto byte = static_cast<std::uint8_t>(number);
    EXPECT_EQ(patch("lblCurrent"), qRgb(byte, byte, byte));
    test::press(kForm, "cmdNew");
    changed[9] = {byte, byte, byte, own[9].Extra};
  }
  test::expectSwatches(kForm, changed);
  EXPECT_EQ(patch("lblOrginal"), qRgb(255, 255, 255));
  QTest::keyClick(control(kForm, "updRed"), Qt::Key_PageUp);
  test::press(kForm, "cmdInvert");  // a proposal until it is set
  EXPECT_EQ(numbers(), "9 247 248 248 ");
  test::press(kForm, "cmdInvertAll");
  for (auto& [red, green, blue, extra] : changed) {
    for (std::uint8_t* part : {&red, &green, &blue}) *part = static_cast<std::uint8_t>(~*part);
  }
  test::expectSwatches(kForm, changed);
  const auto undo = [](const char* at, Qt::KeyboardModifiers shift) {
    for (int i = 0; i < 5; ++i) {
      QTest::keyClick(control(kForm, at), Qt::Key_Z, Qt::ControlModifier | shift);
    }
  };
  undo("txtRed", {});
  test::expectSwatches(kForm, own);
  undo("updRed", Qt::ShiftModifier);
  test::expectSwatches(kForm, changed);
  use("cmdSave", "inverted.pal");
  EXPECT_EQ(test::readFile(folder.path("inverted.pal")), paletteFile(kHead, changed));
  EXPECT_EQ(state.PaletteTable, own);
}

TEST_F(Editor, OKAdoptsTheFileLoadedOrSavedLast) {
  const auto picture = model::kestrelBitmap({.width = 4, .height = 4, .dataSize = 16});
  folder.makeFolder("in");
  folder.write("in/a.bmp", picture);
  OpenPicture(folder.drive("in/a.bmp"));
  state.ShowPrev = true;
  const char* missing = "The palette file does not exist.";
  // What is done after a load, the palette that is current after OK, and the message.
  const std::tuple<const char*, const char*, const char*, const Colours*, const char*> cases[] = {
      {"cmdSave", "bare", "bare", &own, missing},  // written as "bare.pal"
      {"cmdLoad", "missing.pal", "other.pal", &other, missing},
      {"cmdLoad", "short.pal", "other.pal", &other, "The palette file is incomplete."}};
  for (const auto& [button, name, file, colours, text] : cases) {
    SCOPED_TRACE(name);
    colours == &own ? test::drop(kForm, "palette1", folder.path("other.pal"))
                    : use("cmdLoad", "other.pal");
    use(button, name);
    test::press(kForm, "cmdOK");
    EXPECT_FALSE(frmColour.isLoaded());
    EXPECT_EQ(state.CurrentPaletteFile, folder.drive(file));
    EXPECT_EQ(state.PaletteTable, *colours);
    EXPECT_EQ(messages.texts(), test::Texts{text});
    test::settle();
    open();
  }
  EXPECT_EQ(test::readFile(folder.path("bare.pal")), paletteFile(kHead, other));
  EXPECT_EQ(test::readFile(folder.path("temp.bmp")), model::convertedBitmap(picture, other));
}

}  // namespace
}  // namespace mill
