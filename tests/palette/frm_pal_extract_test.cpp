#include "palette/frm_pal_extract.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>

#include <optional>

#include "picture/program_state.h"
#include "platform/common_dialog.h"
#include "support/windows.h"

namespace mill {
namespace {

using model::someColours;
using test::Bytes;
using test::control;
using test::readFile;

constexpr const char* kForm = "frmPalExtract";

/// Over the lists "sky.ksl" with the palettes 25, -7, 25 and "two.ksl" with 12, 0, and a folder
/// "out".
class PalExtract : public test::WindowTest {
 protected:
  PalExtract() {
    folder.makeFolder("out");
    folder.write("sky.ksl", sky);
    folder.write("two.ksl", model::paletteList({{someColours(4), 12}, {someColours(5), 0}}));
    frmPalExtract->Show();
  }
  ~PalExtract() override { forms::answerCommonDialogWith({}); }

  static void press(const char* button, int times = 1) {
    for (int i = 0; i < times; ++i) test::press(kForm, button);
  }
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
  void browseDest(const char* button) {
    test::pressAndThen(kForm, "cmdDestBrowse", [&] { test::press("frmBrowse", button); });
  }
  void expectWarning(const std::string& text) {
    messages.expectLast(1, text, "Warning!", forms::Icon::Critical);
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

  const Bytes sky =
      model::paletteList({{someColours(1), 25}, {someColours(2), -7}, {someColours(3), 25}});
};

TEST_F(PalExtract, TheButtonsFollowWhatIsPickedLoadedAndTyped) {
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

TEST_F(PalExtract, StepsThroughTheListAndKeepsItsPlaceUntilItIsClosed) {
  for (const bool done : {false, true, true}) {
    EXPECT_EQ(usable() + text("txtNumber") + text("txtIndex"), "");
    load("sky.ksl");
    press("cmdPrev");
    expectShown("3", "25", someColours(1));
    press("cmdNext");
    expectShown("3", "-7", someColours(2));
    press("cmdNext", 2);
    expectShown("3", "25", someColours(3));
    EXPECT_EQ(usable(), "Prev Next ");
    load("two.ksl");  // has no third palette
    expectShown("2", "0", someColours(5));
    load("sky.ksl");
    expectShown("3", "-7", someColours(2));
    done ? press("cmdDone") : void(test::window(kForm)->close());
    EXPECT_FALSE(frmPalExtract.isLoaded());
    test::settle();
    frmPalExtract->Show();
  }
}

TEST_F(PalExtract, ABadListChangesNothing) {
  const std::string missing = "The palette list file does not exist.";
  Bytes none = sky, many = sky;
  none[4] = 0;
  many[4] = 0, many[5] = 0x80;
  many.resize(52 + 32768 * 1032);
  const Bytes cut(sky.begin(), sky.end() - 1);
  const std::pair<std::string, Bytes> cases[] = {{"head cut", Bytes(51, 1)},
                                                 {"cut", cut},
                                                 {"none", none},
                                                 {"many", many},
                                                 {"locked", sky},
                                                 {"gone", sky}};
  type("lstSource", folder.drive("two.ksl"));  // typing picks no file
  press("cmdLoad");
  expectWarning(missing);
  load("sky.ksl");
  press("cmdNext");
  for (const auto& [name, bytes] : cases) {
    SCOPED_TRACE(name);
    folder.write(name, bytes);
    pick(name);
    std::optional<test::Limit> noFiles;
    if (name == "locked") noFiles.emplace(RLIMIT_NOFILE, 0);
    if (name == "gone") std::filesystem::remove(folder.path(name));
    press("cmdLoad");
    noFiles.reset();
    expectWarning(name == "gone" ? missing : "This file is not a valid palette list.");
    EXPECT_EQ(usable(), "Load ");
    expectShown("3", "-7", someColours(2));
  }
}

TEST_F(PalExtract, SavesThePaletteOnShowUnderItsIndex) {
  folder.write("name.long", sky);
  folder.write("out/12.pal", Bytes(1100, 0xEE));
  // The list, a step in it, whether into a folder of its own, what is written and how long.
  const std::tuple<const char*, int, bool, const char*, model::Colours, std::size_t> cases[] = {
      {"sky.ksl", 0, false, "25.pal", someColours(1), 1048},
      {"sky.ksl", 2, false, "25.pal", someColours(3), 1048},
      {"sky.ksl", 2, true, "sky/25.pal", someColours(3), 1048},
      {"sky.ksl", 1, true, "sky/-7.pal", someColours(2), 1024},
      {"name.long", 1, true, "name./-7.pal", someColours(2), 1048},
      {"two.ksl", 0, false, "12.pal", someColours(4), 1100}};
  type("lstDest", folder.drive("out"));
  messages.meanwhile = [] { EXPECT_EQ(usable(), "Prev Next "); };
  for (const auto& [list, steps, add, written, colours, size] : cases) {
    SCOPED_TRACE(written);
    // Before any palette has been read there is no head.
    state.PaletteHeader = std::string("a head \0 of any bytes \xFF", size == 1024 ? 0 : 24);
    type("lstSource", "");
    load(list);
    press("cmdPrev", 2);
    press("cmdNext", steps);
    control<QCheckBox>(kForm, "chkAdd")->setChecked(add);
    press("cmdSave");
    messages.expectLast(1, "Palette file saved!", "", forms::Icon::None);
    EXPECT_EQ(usable(), "Prev Next Save ");
    Bytes expected = model::paletteFile(state.PaletteHeader, colours);
    expected.resize(size, 0xEE);
    EXPECT_EQ(readFile(folder.path("out") / written), expected);
  }
}

TEST_F(PalExtract, SaysWhatCannotBeWritten) {
  folder.makeFolder("folders/25.pal");
  folder.write("folders/sky", {});
  load("sky.ksl");
  const auto expectUnwritable = [&](const std::string& dest, bool add) {
    type("lstDest", "x");
    type("lstDest", dest);
    control<QCheckBox>(kForm, "chkAdd")->setChecked(add);
    press("cmdSave");
    expectWarning("The palette file can't be written.\n" + dest + (add ? "\\sky" : "") +
                  "\\25.pal");
    EXPECT_EQ(usable(), "Prev Next Save ");
  };
  for (const std::string& dest : {std::string(), std::string("none"), std::string("Z:\\proc"),
                                  folder.drive("missing"), folder.drive("folders")}) {
    for (const bool add : {false, true}) expectUnwritable(dest, add);
  }
  const test::Limit fullDisk(RLIMIT_FSIZE, 500);
  expectUnwritable(folder.drive("out"), false);
  EXPECT_FALSE(folder.exists("missing") || folder.exists("out/25.pal"));
}

TEST_F(PalExtract, BoxesOfferWhatWasPicked) {
  pick("sky.ksl");
  load("two.ksl");
  pickEntry("lstSource");
  press("cmdLoad");
  EXPECT_EQ(text("txtNumber"), "3");
  for (const char* button : {"OKButton", "OKButton", "CancelButton"}) {
    type("lstDest", folder.drive("out"));
    browseDest(button);
    EXPECT_EQ(box("lstDest")->currentText().toStdString(), folder.drive("out"));
    EXPECT_EQ(box("lstDest")->count(), 1);
  }
  type("lstDest", "elsewhere");
  pickEntry("lstDest");
  press("cmdSave");
  EXPECT_TRUE(folder.exists("out/25.pal"));
}

TEST_F(PalExtract, TheFileDialogShowsListsInCapitalsToo) {
  for (const char* name : {"out/A.KSL", "out/b.ksl", "out/c.pal"}) folder.write(name, sky);
  state.PalDir = folder.drive("out");
  test::pressAndThen(kForm, "cmdSourceBrowse", [] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->windowTitle(), "Find KSL files");
    const auto* list = dialog->findChild<QAbstractItemView*>("listView");
    EXPECT_TRUE(QTest::qWaitFor([&] { return list->model()->rowCount(list->rootIndex()) == 2; }));
    auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
    QTest::keyClicks(name, "A.KSL");
    QTest::keyClick(name, Qt::Key_Return);
    if (dialog->isVisible()) dialog->reject();
  });
  EXPECT_EQ(box("lstSource")->currentText().toStdString(), folder.drive("out/A.KSL"));
}

}  // namespace
}  // namespace mill
