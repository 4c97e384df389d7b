#include "palette/frm_pal_extract.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

#include <optional>

#include "picture/program_state.h"
#include "platform/forms/common_dialog.h"
#include "platform/system/paths.h"
#include "support/windows.h"

namespace mill {
namespace {

using model::someColours;
using test::Bytes;
using test::control;

constexpr const char* kForm = "frmPalExtract";

/// Over the lists "sky.ksl" with the palettes 25, -7, 25 and "two.ksl" with 12, 0, and a folder
/// "out".
class Extractor : public test::WindowTest {
 protected:
  Extractor() {
    folder.makeFolder("out");
    folder.write("sky.ksl", sky);
    folder.write("two.ksl", model::paletteList({{someColours(4), 12}, {someColours(5), 0}}));
    frmPalExtract->Show();
  }
  ~Extractor() override { forms::answerCommonDialogWith({}); }

  static void press(const char* button) { test::press(kForm, button); }
  static QComboBox* box(const char* name) { return control<QComboBox>(kForm, name); }
  static std::string text(const char* name) {
    return control<QLineEdit>(kForm, name)->text().toStdString();
  }
  static void type(const char* name, const std::string& text) {
    box(name)->lineEdit()->selectAll();
    QTest::keyClicks(box(name)->lineEdit(), QString::fromStdString(text));
    if (text.empty()) QTest::keyClick(box(name)->lineEdit(), Qt::Key_Delete);
  }
  /// Picks the first entry.
  static void pickEntry(const char* name) {
    box(name)->showPopup();
    QTest::keyClick(box(name)->view(), Qt::Key_Home);
    QTest::keyClick(box(name)->view(), Qt::Key_Return);
  }
  /// Picks a list file; without a name cancels.
  void pick(const std::string& name) {
    forms::answerCommonDialogWith([&] { return name.empty() ? "" : folder.path(name).string(); });
    press("cmdSourceBrowse");
  }
  void load(const std::string& name) {
    pick(name);
    press("cmdLoad");
  }
  static void browseDest(const char* button) {
    test::pressAndThen(kForm, "cmdDestBrowse", [&] { test::press("frmBrowse", button); });
  }
  /// Which of the buttons that come and go can be used.
  static std::string usable() {
    std::string found;
    for (const std::string name : {"Load", "Prev", "Next", "Save"}) {
      if (control(kForm, ("cmd" + name).c_str())->isEnabled()) found += name + " ";
    }
    return found;
  }
  static void expectShown(const char* count, const char* index, const model::Colours& colours) {
    EXPECT_EQ(text("txtNumber"), count);
    EXPECT_EQ(text("txtIndex"), index);
    const QImage image = control(kForm, "palette1")->grab().toImage();
    for (int i = 0; i < 256; ++i) {
      const auto [red, green, blue, extra] = colours[static_cast<std::size_t>(i)];
      ASSERT_EQ(image.pixel(i % 16 * 16 + 8, i / 16 * 16 + 8), qRgb(red, green, blue)) << i;
    }
  }

  const model::Colours first = someColours(1);
  const model::Colours second = someColours(2);
  const model::Colours third = someColours(3);
  const Bytes sky = model::paletteList({{first, 25}, {second, -7}, {third, 25}});
};

TEST_F(Extractor, TheButtonsFollowWhatIsPickedLoadedAndTyped) {
  const std::string stepping = "Prev Next ", saving = "Prev Next Save ";
  const std::pair<std::function<void()>, std::string> steps[] = {
      {[&] { type("lstDest", "x"), pick(""); }, ""},
      {[&] { pick("sky.ksl"); }, "Load "},
      {[&] { press("cmdLoad"), pick(""); }, saving},
      {[&] { type("lstDest", ""); }, saving},
      {[&] { type("lstSource", "typed"); }, "Load "},
      {[&] { press("cmdLoad"); }, stepping},  // the file picked, not the text
      {[&] { browseDest("CancelButton"); }, stepping},
      {[&] { type("lstDest", "x"); }, saving},
      {[&] { pickEntry("lstSource"); }, "Load "},
      {[&] { type("lstDest", "y"); }, "Load "}};
  EXPECT_EQ(usable(), "");
  for (const auto& [act, expected] : steps) {
    act();
    EXPECT_EQ(usable(), expected) << "step " << &act - &steps[0].first;
  }
  EXPECT_TRUE(messages.texts().empty());
}

TEST_F(Extractor, StepsThroughTheListAndKeepsItsPlaceUntilItIsClosed) {
  for (const bool done : {false, true, true}) {
    EXPECT_EQ(usable() + text("txtNumber") + text("txtIndex"), "");
    load("sky.ksl");
    press("cmdPrev");
    expectShown("3", "25", first);
    press("cmdNext");
    expectShown("3", "-7", second);
    press("cmdNext");
    press("cmdNext");
    expectShown("3", "25", third);
    EXPECT_EQ(usable(), "Prev Next ");
    load("two.ksl");  // has no third palette
    expectShown("2", "0", someColours(5));
    load("sky.ksl");
    expectShown("3", "-7", second);
    done ? press("cmdDone") : void(test::window(kForm)->close());
    EXPECT_FALSE(frmPalExtract.isLoaded());
    test::settle();
    frmPalExtract->Show();
  }
}

TEST_F(Extractor, ABadListChangesNothing) {
  const char* invalid = "This file is not a valid palette list.";
  const char* missing = "The palette list file does not exist.";
  // The number of palettes in the head, and the size of the file.
  const std::tuple<const char*, std::uint32_t, std::uintmax_t, const char*> cases[] = {
      {"head cut", 3, 51, invalid},
      {"last byte missing", 3, 3147, invalid},
      {"none", 0, 3148, invalid},
      {"one too many", 32768, 52 + 32768 * 1032, invalid},
      {"negative", 0xFFFFFFFF, 3148, invalid},
      {"unreadable", 3, 3148, invalid},
      {"out", 3, 3148, missing},
      {"as many as can be", 32767, 52 + 32767 * 1032, nullptr}};
  load("sky.ksl");
  press("cmdNext");
  for (const auto& [name, count, size, text] : cases) {
    SCOPED_TRACE(name);
    Bytes list = sky;
    for (std::size_t i = 0; i < 4; ++i) list[4 + i] = static_cast<std::uint8_t>(count >> (8 * i));
    list.resize(size);
    folder.write(name, list);
    pick(name);
    std::optional<test::Limit> noFiles;
    if (name == std::string("unreadable")) noFiles.emplace(RLIMIT_NOFILE, 0);
    press("cmdLoad");
    noFiles.reset();
    if (text) messages.expectLast(1, text, "Warning!", forms::Icon::Critical);
    EXPECT_EQ(usable(), text ? "Load " : "Prev Next ");
    expectShown(text ? "3" : "32767", "-7", second);
  }
}

TEST_F(Extractor, SavesThePaletteOnShowUnderItsIndexOrSaysThatItCannot) {
  // The list, steps from its first palette, the destination, whether the list's name is added, the
  // path below the destination, and what is written there.
  const std::tuple<const char*, int, std::string, bool, std::string, const model::Colours*>
      cases[] = {{"sky.ksl", 0, "out", false, "\\25.pal", &first},
                 {"sky.ksl", 2, "out", false, "\\25.pal", &third},
                 {"sky.ksl", 2, "out", true, "\\sky\\25.pal", &third},
                 {"name.long", 1, "out", true, "\\name.\\-7.pal", &second},
                 {"sky.ksl", 0, "missing", false, "\\25.pal", nullptr},
                 {"sky.ksl", 0, "missing", true, "\\sky\\25.pal", nullptr},
                 {"sky.ksl", 0, "folders", false, "\\25.pal", nullptr},
                 {"sky.ksl", 0, "folders", true, "\\sky\\25.pal", nullptr}};
  folder.write("name.long", sky);
  folder.makeFolder("folders/25.pal");
  folder.write("folders/sky", {});
  state.PaletteHeader = std::string("a head \0 of any bytes \xFF", 24);
  messages.meanwhile = [] { EXPECT_EQ(usable(), "Prev Next "); };
  for (const auto& [list, steps, dest, add, below, colours] : cases) {
    SCOPED_TRACE(dest + below);
    type("lstDest", folder.drive(dest));
    load(list);
    for (int i = 0; i < 2; ++i) press("cmdPrev");
    for (int i = 0; i < steps; ++i) press("cmdNext");
    control<QCheckBox>(kForm, "chkAdd")->setChecked(add);
    press("cmdSave");
    EXPECT_EQ(usable(), "Prev Next Save ");
    const std::string path = folder.drive(dest) + below;
    if (colours) {
      messages.expectLast(1, "Palette file saved!", "", forms::Icon::None);
      EXPECT_EQ(test::readFile(forms::nativePath(path)),
                model::paletteFile(state.PaletteHeader, *colours));
    } else {
      messages.expectLast(1, "The palette file can't be written.\n" + path, "Warning!",
                          forms::Icon::Critical);
    }
  }
}

TEST_F(Extractor, TheBoxesOfferWhatWasPicked) {
  pick("sky.ksl");
  load("two.ksl");
  pickEntry("lstSource");
  press("cmdLoad");
  expectShown("3", "25", first);
  type("lstDest", folder.drive("out"));
  for (int i = 0; i < 2; ++i) browseDest("OKButton");
  EXPECT_EQ(box("lstDest")->count(), 1);
  type("lstDest", "elsewhere");
  pickEntry("lstDest");
  press("cmdSave");
  EXPECT_TRUE(folder.exists("out/25.pal"));
}

}  // namespace
}  // namespace mill
