#include "palette/frm_colour.h"

#include <QLineEdit>
#include <QTest>

#include "picture/open_picture.h"
#include "picture/program_state.h"
#include "support/windows.h"

namespace mill {
namespace {

using model::Colours;
using test::Bytes;
using test::control;
using test::readFile;
using Names = std::vector<std::string>;

constexpr const char* kForm = "frmColour";
const std::string kHead("a head \0 of any bytes \xFF", 24);

Colours inverted(Colours colours) {
  const auto invert = [](std::uint8_t& value) { value = static_cast<std::uint8_t>(~value); };
  for (model::Colour& c : colours) invert(c.red), invert(c.green), invert(c.blue);
  return colours;
}

/// Over the palette in use, "base.pal", and one with another head, "other.pal".
class Colour : public test::WindowTest {
 protected:
  Colour() {
    folder.makeFolder("else");
    folder.write("base.pal", model::paletteFile(kHead, own));
    folder.write("other.pal", model::paletteFile(std::string(24, '-'), other));
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
  static void typeColour(const QString& red, const QString& green, const QString& blue) {
    type("txtRed", red), type("txtGreen", green), type("txtBlue", blue);
  }
  static void expectPatches(const model::Colour& current, const model::Colour& original) {
    for (const auto& [name, c] : {std::pair("lblCurrent", current), {"lblOrginal", original}}) {
      const QImage image = control(kForm, name)->grab().toImage();
      EXPECT_EQ(image.pixel(30, 30), qRgb(c.red, c.green, c.blue)) << name;
    }
  }
  static QString boxes() {
    const auto text = [](const char* name) { return box(name)->text() + " "; };
    return text("txtIndex") + text("txtRed") + text("txtGreen") + text("txtBlue");
  }
  static void expectEntry(int index, const Colours& colours) {
    const model::Colour& c = colours[static_cast<std::size_t>(index)];
    EXPECT_EQ(boxes(), QString("%1 %2 %3 %4 ").arg(index).arg(c.red).arg(c.green).arg(c.blue));
    expectPatches(c, c);
  }
  static void click(int swatch) {
    const std::string name = "palette1(" + std::to_string(swatch) + ")";
    QTest::mouseClick(control(kForm, name.c_str()), Qt::LeftButton);
  }
  /// Presses Load or Save and gives a name in the dialog; without one cancels.
  static void use(const char* button, const std::string& name) {
    test::pressAndThen(kForm, button, [&] {
      const bool loads = button == std::string("cmdLoad");
      EXPECT_EQ(test::window("frmSave")->windowTitle(), loads ? "Load Palette File" : "Save File");
      EXPECT_EQ(std::exchange(state.FilePattern, ""), "*.pal");
      control<QLineEdit>("frmSave", "txtFilename")->setText(QString::fromStdString(name));
      test::press("frmSave", name.empty() ? "cmdCancel" : "cmdOK");
    });
  }
  /// The swatches, and a file saved now, hold these colours.
  void expectWorking(const Colours& colours) {
    const QImage image = control(kForm, "palette1")->grab().toImage();
    for (int i = 0; i < 256; ++i) {
      const auto [red, green, blue, extra] = colours[static_cast<std::size_t>(i)];
      ASSERT_EQ(image.pixel(i % 16 * 16 + 8, i / 16 * 16 + 8), qRgb(red, green, blue)) << i;
    }
    use("cmdSave", "probe");
    EXPECT_EQ(readFile(folder.path("probe.pal")), model::paletteFile(kHead, colours));
  }

  const Colours own = model::someColours(3), other = model::someColours(8);
};

TEST_F(Colour, TheIndexBoxShowsTheEntryThatCounts) {
  expectEntry(0, own);
  const std::pair<const char*, int> cases[] = {{"9", 9},     {"", 0},      {"007", 7}, {"x", 0},
                                               {"255", 255}, {"256", 255}, {"-3", 3}};
  for (const auto& [text, index] : cases) {
    type("txtIndex", text);
    expectEntry(index, own);
  }
  for (const int index : {0, 15, 17, 240, 255}) {
    click(index);
    expectEntry(index, own);
  }
  QTest::keyClick(control(kForm, "updIndex"), Qt::Key_Down);
  expectEntry(254, own);
}

TEST_F(Colour, TheColourBoxesKeepWhatIsTyped) {
  const std::pair<const char*, std::uint8_t> cases[] = {
      {"7", 7}, {"", 0}, {"abc", 0}, {"12abc", 12}, {"2.5", 2}, {"-3", 0}, {"300", 255}};
  click(9);
  Colours changed = own;
  for (const auto& [text, number] : cases) {
    typeColour(text, text, text);
    EXPECT_EQ(boxes(), QString("9 %1 %1 %1 ").arg(text));
    changed[9] = {number, number, number, own[9].extra};
    expectPatches(changed[9], own[9]);
    press("cmdNew");
    expectWorking(changed);
  }
  typeColour("10", "300", "abc");
  for (const char* name : {"updRed", "updGreen", "updBlue"}) {
    QTest::keyClick(control(kForm, name), Qt::Key_Up);
  }
  EXPECT_EQ(boxes(), "9 11 255 1 ");
  expectPatches({11, 255, 1, 0}, own[9]);
  click(9);
  expectEntry(9, changed);
}

TEST_F(Colour, OneInversionIsAProposalTheOtherLeavesTheBoxes) {
  click(5);
  typeColour("0", "128", "255");
  press("cmdInvert");
  EXPECT_EQ(boxes(), "5 255 127 0 ");
  expectPatches({255, 127, 0, 0}, own[5]);
  press("cmdInvert");
  EXPECT_EQ(boxes(), "5 0 128 255 ");
  expectWorking(own);
  click(5);
  press("cmdInvertAll");
  expectEntry(5, own);
  expectWorking(inverted(own));
  press("cmdNew");
  press("cmdInvertAll");
  Colours expected = own;
  expected[5] = inverted(own)[5];
  expectWorking(expected);
}

TEST_F(Colour, LoadTakesWhatIsThereAndLeavesTheBoxes) {
  Bytes cut = model::paletteFile(kHead, other);
  cut.resize(24 + 4 * 100 + 3);
  folder.write("cut.pal", cut);
  folder.write("stub.pal", Bytes(23));
  Colours hundred = other;
  std::fill(hundred.begin() + 100, hundred.end(), model::Colour{});
  const Names missing = {"The palette file does not exist."};
  const Names incomplete = {"The palette file is incomplete."};
  const std::tuple<const char*, Colours, Names> cases[] = {{"", own, {}},
                                                           {"gone.pal", own, missing},
                                                           {"else", own, missing},
                                                           {"stub.pal", own, incomplete},
                                                           {"cut.pal", hundred, incomplete},
                                                           {"other.pal", other, {}}};
  click(5);
  for (const auto& [name, colours, said] : cases) {
    SCOPED_TRACE(name);
    use("cmdLoad", name);
    EXPECT_EQ(messages.texts(), said);
    expectEntry(5, own);
    expectWorking(colours);  // saved with the head in use, not with the one loaded
  }
}

TEST_F(Colour, SaveAddsWhatTheNameLacks) {
  folder.write("long.pal", Bytes(1100, 0xEE));
  folder.makeFolder("folder.pal");
  const std::tuple<const char*, const char*, std::size_t> cases[] = {
      {"a", "a.pal", 1048}, {"long.pal", "long.pal", 1100}, {"c.PAL", "c.PAL.pal", 1024}};
  for (const auto& [name, written, size] : cases) {
    if (size == 1024) state.PaletteHeader.clear();
    use("cmdSave", name);
    EXPECT_EQ(state.FileResult, name);
    Bytes expected = model::paletteFile(state.PaletteHeader, own);
    expected.resize(size, 0xEE);
    EXPECT_EQ(readFile(folder.path(written)), expected) << written;
  }
  for (const char* name : {"missing\\x", "folder"}) {
    use("cmdSave", name);
    const std::string path = folder.drive() + "\\" + name + ".pal";
    messages.expectLast(1, "The palette file can't be written.\n" + path, "Warning!",
                        forms::Icon::Critical);
  }
}

TEST_F(Colour, OKTakesUpTheFileOfTheLastLoadOrSave) {
  folder.write("else/other.pal", model::paletteFile(kHead, inverted(other)));
  const auto load = [] { use("cmdLoad", "other.pal"); };
  const auto save = [](const char* name) { press("cmdInvertAll"), use("cmdSave", name); };
  const auto extract = [&] {
    test::pressAndThen(kForm, "cmdExtract", [&] {
      const QString seed = QString::fromStdString(folder.drive("else"));
      QTest::keyClicks(control("frmPalExtract", "lstDest"), seed);
      test::pressAndThen("frmPalExtract", "cmdDestBrowse",
                         [] { test::press("frmBrowse", "OKButton"); });
      test::press("frmPalExtract", "cmdDone");
    });
  };
  const std::tuple<std::function<void()>, std::string, Colours> cases[] = {
      {[] { press("cmdInvertAll"), use("cmdLoad", ""); }, "base.pal", own},
      {extract, "base.pal", own},
      {[&] { load(), use("cmdLoad", ""); }, "other.pal", other},
      {[&] { load(), press("cmdInvertAll"); }, "other.pal", other},
      {[&] { save("x.pal"); }, "x.pal", inverted(own)},
      {[&] { load(), save("x.pal"); }, "x.pal", inverted(other)},
      {[&] { save("x.pal"), load(); }, "other.pal", other},
      {[&] { load(), extract(); }, "else/other.pal", inverted(other)},
      {[&] { save("y"); }, "y", own}};  // written as "y.pal"
  for (const auto& [act, file, colours] : cases) {
    for (const bool ok : {false, true}) {
      SCOPED_TRACE(file);
      state.CurrentPaletteFile = folder.drive("base.pal");
      state.PaletteTable = test::tableOf(own);
      frmColour->Show();
      act();
      test::window(kForm)->close();  // has no close box
      EXPECT_TRUE(messages.texts().empty());
      // The two buttons are pressed from anywhere.
      QTest::keyClick(box("txtGreen"), ok ? Qt::Key_Return : Qt::Key_Escape);
      EXPECT_FALSE(frmColour.isLoaded());
      test::settle();
      EXPECT_EQ(state.CurrentPaletteFile, folder.drive(ok ? file : "base.pal"));
      EXPECT_EQ(state.PaletteTable, test::tableOf(ok ? colours : own));
      EXPECT_EQ(messages.texts().size(), ok && file == "y" ? 1u : 0u);
    }
  }
}

TEST_F(Colour, OKGivesTheOpenPictureItsNewColours) {
  const Bytes source = model::kestrelBitmap({.width = 4, .height = 4, .dataSize = 16});
  folder.write("in.bmp", source);
  state.TempPicturePath = folder.drive("temp.bmp");
  OpenPicture(folder.drive("in.bmp"));
  const std::pair<const char*, bool> cases[] = {{"in.bmp", false}, {"", true}, {"in.bmp", true}};
  for (const auto& [picture, preview] : cases) {
    state.PictureFileName = picture;
    state.ShowPrev = preview;
    frmColour->Show();
    use("cmdLoad", "other.pal");
    press("cmdOK");
    test::settle();
    EXPECT_EQ(folder.exists("temp.bmp"), *picture && preview);
  }
  EXPECT_EQ(readFile(folder.path("temp.bmp")), model::convertedBitmap(source, other));
  EXPECT_NE(state.PreviewDC, nullptr);
}

}  // namespace
}  // namespace mill
