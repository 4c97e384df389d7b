#include "palette/find_palette.h"

#include <memory>
#include <unistd.h>

#include "picture/program_state.h"
#include "support/windows.h"

namespace mill {
namespace {

using Paths = std::vector<std::string>;

class FindPaletteTest : public test::WindowTest {
 protected:
  FindPaletteTest() {
    folder.makeFolder("pal/sub");
    add("default.pal", 1);
    state.PalDir = folder.drive("pal");
    state.DefaultPalette = folder.drive("default.pal");
    choosePalette = [this](const Paths& paths) {
      offered = paths;
      state.CurrentPaletteFile = paths.front();
    };
    showPaletteFile = [this] { shown = state.CurrentPaletteFile; };
  }
  ~FindPaletteTest() override {
    choosePalette = {};
    showPaletteFile = {};
  }

  void add(const std::string& name, int seed = 2) {
    folder.write(name, model::paletteFile(std::string(24, 'h'), model::someColours(seed)));
  }
  /// The path that the index leads to; it must be the one that is shown, and loaded.
  std::string found(std::int32_t index) {
    offered.clear();
    state.PictureRecord.PaletteIndex = index;
    FindPalette();
    const int seed = shown == state.DefaultPalette ? 1 : 2;
    EXPECT_EQ(state.PaletteTable, test::tableOf(model::someColours(seed)));
    EXPECT_EQ(shown, state.CurrentPaletteFile);
    return shown;
  }
  /// With and without sub-directories, picture by picture and as one of a run.
  void inEveryWay(const std::function<void()>& act) {
    for (const bool search : {false, true}) {
      state.Search = search;
      act();
      const PaletteSearchRun run;
      act();
    }
    EXPECT_TRUE(messages.texts().empty());
  }

  Paths offered;
  std::string shown;
};

TEST_F(FindPaletteTest, TakesTheFileNamedAfterTheIndex) {
  struct Case {
    std::int32_t index;
    const char* alone;
    const char* searched;
  };
  const Case cases[] = {{25, "pal/25.pal", "pal/25.pal"},
                        {-7, "pal/-7.pal", "pal/-7.pal"},
                        {26, "default.pal", "pal/sub/26.pal"},
                        {27, "default.pal", "default.pal"},   // two levels below
                        {28, "default.pal", "default.pal"},   // a directory
                        {29, "default.pal", "default.pal"},   // in a hidden directory
                        {30, "default.pal", "default.pal"},   // a link that leads nowhere
                        {33, "default.pal", "default.pal"}};  // in capital letters
  for (const char* name : {"pal/sub/deep", "pal/.hidden", "pal/28.pal"}) folder.makeFolder(name);
  for (const char* name : {"pal/25.pal", "pal/-7.pal", "pal/sub/26.pal", "pal/sub/deep/27.pal",
                           "pal/.hidden/29.pal", "pal/33.PAL", "pal/025.pal"}) {
    add(name);
  }
  std::filesystem::create_symlink("nowhere", folder.path("pal/30.pal"));
  inEveryWay([&] {
    for (const Case& c : cases) {
      EXPECT_EQ(found(c.index), folder.drive(state.Search ? c.searched : c.alone)) << c.index;
      EXPECT_TRUE(offered.empty());
    }
  });
}

TEST_F(FindPaletteTest, OffersAllThatMatchInTheirOrder) {
  for (const char* name : {"pal/m", "pal/z", "pal/a"}) folder.makeFolder(name);
  for (const char* name : {"pal", "pal/m", "pal/z", "pal/a"}) add(std::string(name) + "/25.pal");
  Paths expected = {folder.drive("pal/25.pal")};
  for (const auto& entry : std::filesystem::directory_iterator(folder.path("pal"))) {
    const std::string name = "pal/" + entry.path().filename().string() + "/25.pal";
    if (folder.exists(name)) expected.push_back(folder.drive(name));
  }
  inEveryWay([&] {
    found(25);
    EXPECT_EQ(offered, state.Search ? expected : Paths{});
  });
}

TEST_F(FindPaletteTest, Index0StandsForTheColoursOfAStandardBitmap) {
  add("pal/0.pal", 1);
  add("bmp.pal");
  EXPECT_EQ(found(0), folder.path().string() + "\\bmp.pal");
  std::filesystem::remove(folder.path("bmp.pal"));
  EXPECT_EQ(found(0), folder.path().string() + "\\bmp.pal");
  EXPECT_EQ(messages.texts(), Paths{"The palette file does not exist."});
}

TEST_F(FindPaletteTest, ADirectoryWithoutPalettesIsNoError) {
  for (const char* name : {"dangling", "locked"}) folder.makeFolder(name);
  for (const char* name : {"dangling/25.pal", "dangling/sub"}) {
    std::filesystem::create_symlink("nowhere", folder.path(name));
  }
  add("locked/25.pal");
  std::filesystem::permissions(folder.path("locked"), std::filesystem::perms::none);
  // Some users can read whatever they like.
  const bool readable = ::access(folder.path("locked").c_str(), R_OK) == 0;
  for (const char* name : {"missing", "default.pal", "dangling", readable ? "gone" : "locked"}) {
    state.PalDir = folder.drive(name);
    inEveryWay([&] { EXPECT_EQ(found(25), state.DefaultPalette) << name; });
  }
}

TEST_F(FindPaletteTest, ARunReadsTheDirectoriesOnce) {
  for (const char* name : {"pal/25.pal", "pal/sub/25.pal"}) add(name);
  state.Search = true;
  auto run = std::make_unique<PaletteSearchRun>();
  EXPECT_EQ(found(40), state.DefaultPalette);
  add("pal/sub/40.pal");
  EXPECT_EQ(found(40), state.DefaultPalette);
  found(25);  // the user is asked, and may put a palette there meanwhile
  EXPECT_EQ(found(40), folder.drive("pal/sub/40.pal"));
  add("pal/41.pal");
  EXPECT_EQ(found(41), state.DefaultPalette);
  run.reset();
  EXPECT_EQ(found(41), folder.drive("pal/41.pal"));
}

}  // namespace
}  // namespace mill
