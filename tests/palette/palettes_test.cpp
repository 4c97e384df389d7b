#include <QListView>
#include <QTest>

#include <optional>

#include "palette/frm_pal_toolbar.h"
#include "picture/find_palette.h"
#include "picture/load_palette.h"
#include "picture/program_state.h"
#include "support/windows.h"

namespace mill {
namespace {

using model::paletteFile;
using model::someColours;
using test::Bytes;
using test::control;
using test::press;
using test::readFile;
using test::tableOf;
using Paths = std::vector<std::string>;

constexpr const char* kMissing = "The palette file does not exist.";
constexpr const char* kIncomplete = "The palette file is incomplete.";
constexpr const char* kUnreadable = "The palette file can't be read.\n";
constexpr const char* kChooser = "frmPalSelect";
const std::string kHead("any \0 bytes \xFF, 24 of them", 24);

/// Over the directory "pal" with the default palette, "base.pal".
class Palettes : public test::MainWindowTest {
 protected:
  Palettes() {
    state.PalDir = folder.drive("pal");
    state.DefaultPalette = folder.drive("pal/base.pal");
  }

  void add(const std::string& name, int seed = 2) {
    std::filesystem::create_directories(folder.path(name).parent_path());
    folder.write(name, paletteFile(kHead, someColours(seed)));
  }
  /// The palettes that the user is asked about, or the one that is found without asking. The one
  /// that is settled on is shown and loaded.
  Paths found(std::int32_t index) {
    Paths offered;
    std::string shown;
    choosePalette = [&](const Paths& paths) {
      offered = paths;
      state.CurrentPaletteFile = paths.back();
    };
    showPaletteFile = [&] { shown = state.CurrentPaletteFile; };
    state.PictureRecord.PaletteIndex = index;
    FindPalette();
    choosePalette = {};
    showPaletteFile = {};
    EXPECT_EQ(state.PaletteTable, tableOf(someColours(shown == state.DefaultPalette ? 3 : 2)));
    EXPECT_EQ(shown, state.CurrentPaletteFile);
    return offered.empty() ? Paths{shown} : offered;
  }
  /// With and without sub-directories, picture by picture and as one of a run.
  void inEveryWay(const std::function<void()>& act) {
    for (const bool search : {false, true}) {
      state.Search = search;
      act();
      const PaletteSearchRun run;
      act();
    }
    EXPECT_EQ(messages.texts(), Paths{});
  }

  static void choose(int row) {
    auto* list = control<QListView>(kChooser, "lstPalette");
    const QPoint at = list->visualRect(list->model()->index(row, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
  }
  void expectPreview(const Bytes& picture, int seed) const {
    const Bytes bitmap = model::convertedBitmap(picture, someColours(seed));
    EXPECT_EQ(readFile(folder.path("temp.bmp")), bitmap);
    EXPECT_TRUE(test::painted(control("frmPreviewToolbar", "Picture1")) ==
                test::boxWith(bitmap, {64, 64}, 16));
  }
  static void expectSwatches(const char* title, int seed) {
    EXPECT_EQ(test::window("frmPalToolbar")->windowTitle(), title);
    const QImage image = test::painted(control("frmPalToolbar", "palette1"));
    for (int i = 0; i < 256; ++i) {
      const auto [red, green, blue, extra] = someColours(seed)[static_cast<std::size_t>(i)];
      ASSERT_EQ(image.pixel(i % 16 * 8 + 4, i / 16 * 8 + 4), qRgb(red, green, blue)) << i;
    }
  }
};

TEST_F(Palettes, LoadTakesTheEntriesThatAreThereAndSaveKeepsATail) {
  // The file and its size, how many entries are taken of it, and what is said. A negative number
  // leaves everything as it was.
  const std::tuple<const char*, std::size_t, int, std::string> cases[] = {
      {"missing", 0, -1, kMissing},
      {"folder", 0, -1, kMissing},
      {"empty", 0, -1, kIncomplete},
      {"head cut", 23, -1, kIncomplete},
      {"unreadable", 1048, -1, kUnreadable},
      {"head only", 24, 0, kIncomplete},
      {"one entry", 28, 1, kIncomplete},
      {"last entry cut", 1047, 255, kIncomplete},
      {"whole", 1048, 256, ""},
      {"bytes behind the end", 1100, 256, ""}};
  folder.makeFolder("folder");
  folder.write("empty", {});
  for (const auto& [name, size, entries, text] : cases) {
    SCOPED_TRACE(name);
    Bytes file = paletteFile(kHead, someColours(4));
    file.resize(size, 0xEE);
    if (size > 0) folder.write(name, file);
    state.PaletteTable = tableOf(colours);
    state.PaletteHeader = "old";
    state.CurrentPaletteFile = folder.drive(name);
    const bool warned = text == kUnreadable;
    std::optional<test::Limit> noFiles;
    if (warned) noFiles.emplace(RLIMIT_NOFILE, 0);
    LoadPalette();
    noFiles.reset();
    if (!text.empty()) {
      messages.expectLast(1, text + (warned ? state.CurrentPaletteFile : ""),
                          warned ? "Warning!" : "",
                          warned ? forms::Icon::Critical : forms::Icon::None);
    }
    model::Colours expected = entries < 0 ? colours : someColours(4);
    if (entries >= 0) std::fill(expected.begin() + entries, expected.end(), model::Colour{});
    EXPECT_EQ(state.PaletteTable, tableOf(expected));

    // The colours stand behind the head that was read last, whatever its length.
    folder.write("long", Bytes(1100, 0xEE));
    state.CurrentPaletteFile = folder.drive("long");
    EXPECT_TRUE(SavePalette());
    Bytes saved = paletteFile(entries < 0 ? "old" : kHead, expected);
    saved.resize(1100, 0xEE);
    EXPECT_EQ(readFile(folder.path("long")), saved);
    EXPECT_EQ(messages.texts(), Paths{});
  }
}

TEST_F(Palettes, APictureFindsTheFilesNamedAfterItsIndex) {
  for (const char* name :
       {"pal/25.pal", "pal/-7.pal", "pal/sub/26.pal", "pal/sub/deep/27.pal", "pal/.hidden/29.pal",
        "pal/33.PAL", "pal/025.pal", "pal/0.pal", "pal/31.pal", "pal/m/31.pal", "pal/z/31.pal",
        "pal/a/31.pal", "bmp.pal", "pal/28.pal/in a folder"}) {
    add(name);
  }
  std::filesystem::create_symlink("nowhere", folder.path("pal/30.pal"));
  std::filesystem::create_symlink("nowhere", folder.path("pal/link"));
  const Paths base = {state.DefaultPalette};
  Paths several = {folder.drive("pal/31.pal")};
  for (const auto& entry : std::filesystem::directory_iterator(folder.path("pal"))) {
    const std::string name = "pal/" + entry.path().filename().string() + "/31.pal";
    if (folder.exists(name)) several.push_back(folder.drive(name));
  }
  inEveryWay([&] {
    EXPECT_EQ(found(25), Paths{folder.drive("pal/25.pal")});
    EXPECT_EQ(found(-7), Paths{folder.drive("pal/-7.pal")});
    EXPECT_EQ(found(26), state.Search ? Paths{folder.drive("pal/sub/26.pal")} : base);
    EXPECT_EQ(found(31), state.Search ? several : Paths{several.front()});
    // Two levels below, a directory, in a hidden directory, a link to nothing, in capital letters.
    for (const int index : {27, 28, 29, 30, 33}) EXPECT_EQ(found(index), base) << index;
    // The colours of a standard bitmap, which are saved as it is opened.
    EXPECT_EQ(found(0), Paths{folder.path().string() + "\\bmp.pal"});
  });
  for (const char* name : {"missing", "pal/base.pal"}) {
    state.PalDir = folder.drive(name);
    inEveryWay([&] { EXPECT_EQ(found(25), base) << name; });
  }
}

TEST_F(Palettes, ARunReadsTheDirectoriesOnce) {
  for (const char* name : {"pal/25.pal", "pal/sub/25.pal"}) add(name);
  const Paths none = {state.DefaultPalette};
  state.Search = true;
  std::optional<PaletteSearchRun> run(std::in_place);
  EXPECT_EQ(found(40), none);
  add("pal/sub/40.pal");
  EXPECT_EQ(found(40), none);
  found(25);  // the user is asked, and may put a palette there meanwhile
  EXPECT_EQ(found(40), Paths{folder.drive("pal/sub/40.pal")});
  add("pal/41.pal");
  EXPECT_EQ(found(41), none);
  run.reset();
  EXPECT_EQ(found(41), Paths{folder.drive("pal/41.pal")});
}

TEST_F(Palettes, OnlyAButtonDecidesAndAPreviewIsNoChoice) {
  struct Case {
    const char* picture;
    std::vector<int> previews;
    int chosen;
    const char* button;
    const char* file;
    int seed;
  };
  const Case cases[] = {{"a.bmp", {}, -1, "cmdDefault", "pal/base.pal", 3},
                        {"b.bmp", {}, 1, "cmdOK", "pal/sub/25.pal", 21},
                        {"c.bmp", {1}, 1, "cmdDefault", "pal/base.pal", 3},
                        {"d.bmp", {0, 1}, 0, "cmdOK", "pal/25.pal", 20},
                        {"e.bmp", {0}, 1, "cmdOK", "pal/sub/25.pal", 21}};
  for (const Case& c : cases) addPicture(c.picture);
  add("pal/25.pal", 20);
  add("pal/sub/25.pal", 21);
  for (const char* flag : {"ShowPrev", "ShowPal", "AutoPal", "Search"}) set(flag, "True");
  start();
  test::window("frmPreviewToolbar")->resize(64, 64);
  for (const auto& [picture, previews, chosen, button, file, seed] : cases) {
    SCOPED_TRACE(picture);
    const Bytes bitmap = addPicture(picture, *picture);  // unlike the one before
    const std::string before = state.CurrentPaletteFile;
    select({picture});
    test::pressAndThen("frmMain", "cmdOpen", [&] {
      for (const int row : previews) {
        choose(row);
        press(kChooser, "cmdPrev");
        EXPECT_EQ(state.CurrentPaletteFile, before);
        expectSwatches("Palette (25.pal)", 20 + row);
        expectPreview(bitmap, 20 + row);
      }
      if (chosen >= 0) choose(chosen);
      EXPECT_EQ(control(kChooser, "cmdOK")->isEnabled(), chosen >= 0);
      EXPECT_EQ(control(kChooser, "cmdPrev")->isEnabled(), chosen >= 0);
      for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
        QTest::keyClick(control(kChooser, "lstPalette"), key);
      }
      test::window(kChooser)->close();
      EXPECT_TRUE(test::window(kChooser)->isVisible());
      press(kChooser, button);
    });
    EXPECT_EQ(state.CurrentPaletteFile, folder.drive(file));
    expectPreview(bitmap, seed);
  }
  EXPECT_EQ(messages.texts(), Paths{});
}

TEST_F(Palettes, TheSwatchesFollowOnlyIfTheyAreWantedAndCatchUpWhenActivated) {
  add("pal/12.pal", 1);
  set("ShowPal", "True");
  start();
  state.ShowPal = false;
  state.CurrentPaletteFile = folder.drive("pal/12.pal");
  LoadPalette();
  expectSwatches("Palette (base.pal)", 3);
  frmPalToolbar->Show();
  expectSwatches("Palette (12.pal)", 1);
}

}  // namespace
}  // namespace mill
