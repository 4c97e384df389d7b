#include "palette/frm_colour.h"

#include <QLineEdit>
#include <QTest>

#include "picture/open_picture.h"
#include "picture/program_state.h"
#include "support/windows.h"

namespace mill {
namespace {

using model::Colours;
using model::paletteFile;
using test::control;
using Names = std::vector<std::string>;

constexpr const char* kForm = "frmColour";
const std::string kHead("a head \0 of any bytes \xFF", 24);

Colours inverted(Colours colours) {
  for (auto& [red, green, blue, extra] : colours) {
    for (std::uint8_t* part : {&red, &green, &blue}) *part = static_cast<std::uint8_t>(~*part);
  }
  return colours;
}

/// Over the palette in use, "base.pal", and one with another head, "other.pal".
class Editor : public test::WindowTest {
 protected:
  Editor() {
    folder.makeFolder("else");
    folder.write("base.pal", paletteFile(kHead, own));
    folder.write("other.pal", paletteFile(std::string(24, '-'), other));
    folder.write("else/other.pal", paletteFile(kHead, inverted(other)));
    open();
  }
  void open() {
    state.CurrentPaletteFile = state.DefaultPalette = folder.drive("base.pal");
    state.PaletteTable = test::tableOf(own);
    state.PaletteHeader = kHead;
    frmColour->Show();
  }

  static void press(const char* button) { test::press(kForm, button); }
  static QLineEdit* box(const char* name) { return control<QLineEdit>(kForm, name); }
  static void type(const char* name, const QString& text) {
    box(name)->selectAll();
    QTest::keyClicks(box(name), text);
    if (text.isEmpty()) QTest::keyClick(box(name), Qt::Key_Delete);
  }
  static void click(int swatch) {
    const std::string name = "palette1(" + std::to_string(swatch) + ")";
    QTest::mouseClick(control(kForm, name.c_str()), Qt::LeftButton);
  }
  static void expectBoxes(const QString& boxes, const model::Colour& current,
                          const model::Colour& original) {
    QStringList texts;
    for (const char* name : {"txtIndex", "txtRed", "txtGreen", "txtBlue"}) {
      texts << box(name)->text();
    }
    EXPECT_EQ(texts.join(' '), boxes);
    for (const auto& [name, c] : {std::pair("lblCurrent", current), {"lblOrginal", original}}) {
      const QImage image = control(kForm, name)->grab().toImage();
      EXPECT_EQ(image.pixel(30, 30), qRgb(c.red, c.green, c.blue)) << name;
    }
  }
  static void expectEntry(int index, const Colours& colours) {
    const model::Colour& c = colours[static_cast<std::size_t>(index)];
    expectBoxes(QString("%1 %2 %3 %4").arg(index).arg(c.red).arg(c.green).arg(c.blue), c, c);
  }
  static void expectSwatches(const Colours& colours) {
    const QImage image = control(kForm, "palette1")->grab().toImage();
    for (int i = 0; i < 256; ++i) {
      const auto [red, green, blue, extra] = colours[static_cast<std::size_t>(i)];
      ASSERT_EQ(image.pixel(i % 16 * 16 + 8, i / 16 * 16 + 8), qRgb(red, green, blue)) << i;
    }
  }
  /// Presses a button. The dialog of Load or Save gets a name, or is cancelled without one; the
  /// extractor gets a destination.
  void use(const std::string& button, const std::string& name = {}) {
    const QString text = QString::fromStdString(name);
    test::pressAndThen(kForm, button.c_str(), [&] {
      if (button == "cmdExtract") {
        QTest::keyClicks(control("frmPalExtract", "lstDest"), text);
        test::pressAndThen("frmPalExtract", "cmdDestBrowse",
                           [] { test::press("frmBrowse", "OKButton"); });
        test::press("frmPalExtract", "cmdDone");
      } else {
        EXPECT_EQ(test::window("frmSave")->windowTitle(),
                  button == "cmdLoad" ? "Load Palette File" : "Save File");
        EXPECT_EQ(std::exchange(state.FilePattern, ""), "*.pal");
        control<QLineEdit>("frmSave", "txtFilename")->setText(text);
        test::press("frmSave", name.empty() ? "cmdCancel" : "cmdOK");
      }
    });
  }

  const Colours own = model::someColours(3);
  const Colours other = model::someColours(8);
};

TEST_F(Editor, TheIndexBoxShowsTheEntryThatCounts) {
  expectEntry(0, own);
  for (const auto& [text, index] : {std::pair("9", 9), {"", 0}, {"007", 7}, {"256", 255}}) {
    type("txtIndex", text);
    expectEntry(index, own);
  }
  for (const int index : {0, 15, 17, 255}) {
    click(index);
    expectEntry(index, own);
  }
}

TEST_F(Editor, TheColourBoxesKeepWhatIsTypedAndSetTheColourThatCounts) {
  const std::pair<const char*, std::uint8_t> cases[] = {
      {"", 0}, {"abc", 0}, {"12abc", 12}, {"2.5", 2}, {"-3", 0}, {"300", 255}, {"7", 7}};
  Colours changed = own;
  click(9);
  for (const auto& [text, number] : cases) {
    for (const char* name : {"txtRed", "txtGreen", "txtBlue"}) type(name, text);
    changed[9] = {number, number, number, own[9].extra};
    expectBoxes(QString("9 %1 %1 %1").arg(text), changed[9], own[9]);
    press("cmdNew");
    expectSwatches(changed);
  }
  const std::pair<const char*, int> steps[] = {{"updRed", 1}, {"updGreen", 2}, {"updBlue", 3}};
  for (const auto& [arrows, count] : steps) {
    for (int i = 0; i < count; ++i) QTest::keyClick(control(kForm, arrows), Qt::Key_Up);
  }
  expectBoxes("9 8 9 10", {8, 9, 10, 0}, own[9]);
  click(9);
  expectEntry(9, changed);
  use("cmdSave", "set.pal");
  EXPECT_EQ(test::readFile(folder.path("set.pal")), paletteFile(kHead, changed));
}

TEST_F(Editor, OneInversionIsAProposalTheOtherLeavesTheBoxes) {
  click(5);
  type("txtRed", "0");
  type("txtGreen", "128");
  type("txtBlue", "255");
  press("cmdInvert");
  expectBoxes("5 255 127 0", {255, 127, 0, 0}, own[5]);
  press("cmdInvertAll");
  expectBoxes("5 255 127 0", {255, 127, 0, 0}, own[5]);
  expectSwatches(inverted(own));
}

TEST_F(Editor, OKTakesUpTheFileOfTheLastLoadOrSaveAndThePictureFollows) {
  struct Case {
    std::vector<std::pair<const char*, std::string>> steps;
    std::string file;
    Colours colours;
    std::string said = {};
  };
  const std::string missing = "The palette file does not exist.";
  const std::string incomplete = "The palette file is incomplete.";
  const std::string unwritable = "The palette file can't be written.\n" + folder.drive();
  model::Bytes cut = paletteFile(kHead, other);
  cut.resize(24 + 4 * 100 + 3);
  folder.write("cut.pal", cut);
  Colours hundred = other;
  std::fill(hundred.begin() + 100, hundred.end(), model::Colour{});
  folder.makeFolder("folder.pal");
  const model::Bytes source = model::kestrelBitmap({.width = 4, .height = 4, .dataSize = 16});
  folder.write("in.bmp", source);
  state.TempPicturePath = folder.drive("temp.bmp");
  OpenPicture(folder.drive("in.bmp"));
  const char *load = "cmdLoad", *save = "cmdSave", *invert = "cmdInvertAll",
             *extract = "cmdExtract";
  const Case cases[] = {
      {{{invert, ""}, {save, ""}}, "base.pal", own},
      {{{invert, ""}, {load, ""}}, "base.pal", own},
      {{{extract, folder.drive("else")}}, "base.pal", own},
      {{{load, "gone.pal"}}, "base.pal", own, missing},
      {{{save, "gone\\x"}}, "base.pal", own, unwritable + "\\gone\\x.pal"},
      {{{save, "folder"}}, "base.pal", own, unwritable + "\\folder.pal"},
      {{{load, "cut.pal"}}, "cut.pal", hundred, incomplete},
      {{{load, "other.pal"}, {load, ""}}, "other.pal", other},
      {{{load, "other.pal"}, {load, "else"}}, "other.pal", other, missing},
      {{{load, "other.pal"}, {invert, ""}}, "other.pal", other},
      {{{load, "other.pal"}, {extract, folder.drive("else")}}, "else/other.pal", inverted(other)},
      {{{load, "other.pal"}, {invert, ""}, {save, "both.pal"}}, "both.pal", inverted(other)},
      {{{invert, ""}, {save, "x.pal"}, {load, "other.pal"}}, "other.pal", other},
      {{{invert, ""}, {save, "x.pal"}}, "x.pal", inverted(own)},
      {{{invert, ""}, {save, "y"}}, "y", own},           // written as "y.pal"
      {{{invert, ""}, {save, "z.PAL"}}, "z.PAL", own}};  // written as "z.PAL.pal"
  // Whether OK is pressed, the open picture, whether previews are wanted.
  const std::tuple<bool, const char*, bool> ways[] = {
      {false, "in.bmp", true}, {true, "", true}, {true, "in.bmp", false}, {true, "in.bmp", true}};
  for (const Case& c : cases) {
    for (const auto& [ok, picture, preview] : ways) {
      SCOPED_TRACE(&c - cases);
      open();
      state.PictureFileName = picture;
      state.ShowPrev = preview;
      std::filesystem::remove(folder.path("temp.bmp"));
      click(5);
      for (const auto& [button, name] : c.steps) {
        button == invert ? press(button) : use(button, name);
      }
      EXPECT_EQ(messages.texts(), c.said.empty() ? Names{} : Names{c.said});
      expectEntry(5, own);
      test::window(kForm)->close();  // has no close box
      // The two buttons are pressed from anywhere.
      QTest::keyClick(box("txtGreen"), ok ? Qt::Key_Return : Qt::Key_Escape);
      EXPECT_FALSE(frmColour.isLoaded());
      test::settle();
      EXPECT_EQ(state.CurrentPaletteFile, folder.drive(ok ? c.file : "base.pal"));
      EXPECT_EQ(state.PaletteTable, test::tableOf(ok ? c.colours : own));
      const bool whole = folder.exists(c.file) && c.file != "cut.pal";
      EXPECT_EQ(messages.texts().size(), ok && !whole ? 1u : 0u);
      const bool shown = ok && *picture && preview && c.file != "base.pal";
      EXPECT_EQ(test::readFile(folder.path("temp.bmp")),
                shown ? model::convertedBitmap(source, c.colours) : model::Bytes{});
    }
  }
  EXPECT_NE(state.PreviewDC, nullptr);
  for (const char* name : {"x.pal", "y.pal", "z.PAL.pal"}) {
    EXPECT_EQ(test::readFile(folder.path(name)), paletteFile(kHead, inverted(own))) << name;
  }
  // Not with the head of the file that was loaded.
  EXPECT_EQ(test::readFile(folder.path("both.pal")), paletteFile(kHead, inverted(other)));
}

}  // namespace
}  // namespace mill
