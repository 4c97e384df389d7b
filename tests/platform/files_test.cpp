#include "platform/files.h"

#include <algorithm>
#include <sys/stat.h>

#include "platform/settings.h"
#include "support/windows.h"

namespace mill {
namespace {

using test::Bytes;
using test::readFile;
using test::TempFolder;

std::vector<std::string> sorted(std::vector<std::string> names) {
  std::sort(names.begin(), names.end());
  return names;
}

TEST(Files, OnlyNormalFilesAreListed) {
  const TempFolder folder;
  for (const char* name : {"a.bmp", "SKY.BMP", ".hidden.bmp", "note.txt", "back\\slash.bmp",
                           "latin\xFC.bmp", "b.bmpx", "bmp"}) {
    folder.write(name, {1});
  }
  folder.makeFolder("folder.bmp");
  ::mkfifo(folder.path("pipe.bmp").c_str(), 0600);
  std::filesystem::create_symlink("a.bmp", folder.path("link.bmp"));
  std::filesystem::create_symlink("gone", folder.path("dangling.bmp"));

  EXPECT_EQ(sorted(forms::filesIn(folder.drive(), "*.bmp")),
            (std::vector<std::string>{"SKY.BMP", "a.bmp", "latin\xFC.bmp", "link.bmp"}));
  EXPECT_EQ(forms::filesIn(folder.drive(), "*.*").size(), 7u);
  EXPECT_EQ(forms::directoriesIn(folder.drive()), std::vector<std::string>{"folder.bmp"});
  EXPECT_TRUE(forms::filesIn(folder.drive("gone"), "*").empty());
  EXPECT_TRUE(forms::filesIn(folder.drive("a.bmp"), "*").empty());
  EXPECT_FALSE(forms::hasFiles(folder.drive("folder.bmp")));
  EXPECT_TRUE(forms::hasFiles(folder.drive()));
  for (const char* name : {".hidden.bmp", "folder.bmp", "pipe.bmp", "dangling.bmp", "gone", ""}) {
    EXPECT_FALSE(forms::isNormalFile(folder.drive() + "\\" + name)) << name;
  }
  EXPECT_FALSE(forms::InputFile(folder.drive("pipe.bmp")).isOpen());
}

TEST(Files, WritingGoesOverTheStartAndKeepsTheTail) {
  const TempFolder folder;
  folder.write("old", {1, 2, 3, 4});
  forms::OutputFile file(folder.drive("old"), 2);
  ASSERT_TRUE(file.isOpen());
  EXPECT_TRUE(file.write(Bytes{9, 8}) && file.close());
  EXPECT_EQ(readFile(folder.path("old")), (Bytes{9, 8, 3, 4}));
}

TEST(Files, AnAbandonedOutputLeavesNoTrace) {
  const TempFolder folder;
  folder.write("old", {1, 2});
  {
    const forms::OutputFile longer(folder.drive("old"), 4096);
    const forms::OutputFile fresh(folder.drive("new"), 4096);
    EXPECT_TRUE(longer.isOpen() && fresh.isOpen());
  }
  EXPECT_EQ(readFile(folder.path("old")), (Bytes{1, 2}));
  EXPECT_FALSE(folder.exists("new"));
}

TEST(Files, OnlyRegularFilesAreWrittenOver) {
  const TempFolder folder;
  folder.makeFolder("folder");
  ::mkfifo(folder.path("pipe").c_str(), 0600);
  std::filesystem::create_symlink("/dev/null", folder.path("device"));
  std::filesystem::create_symlink("gone/file", folder.path("dangling"));
  for (const char* name : {"folder", "pipe", "device", "dangling", "gone\\file", ""}) {
    EXPECT_FALSE(forms::OutputFile(folder.drive() + "\\" + name, 1).isOpen()) << name;
  }
  EXPECT_FALSE(forms::OutputFile("\\rootless", 1).isOpen());
}

TEST(Settings, ValuesComeBackInAnyBytes) {
  for (const std::string value :
       {"C:\\new, \"folder\"; x=1%", "", " \xC3\xA4 ", "latin\xFC\\x", "True"}) {
    EXPECT_TRUE(forms::SaveSetting("RasterMill", "Settings", "Key", value));
    EXPECT_EQ(forms::GetSetting("RasterMill", "Settings", "Key", "other"), value);
  }
  EXPECT_EQ(forms::GetSetting("RasterMill", "Settings", "Missing", "other"), "other");
}

TEST(Settings, FlagsAreTheTwoWordsAndNothingElse) {
  for (const char* text : {"true", "1", "Yes", "", "False "}) {
    forms::SaveSetting("RasterMill", "Settings", "Flag", text);
    EXPECT_TRUE(forms::GetFlag("RasterMill", "Settings", "Flag", true)) << text;
    EXPECT_FALSE(forms::GetFlag("RasterMill", "Settings", "Flag", false)) << text;
  }
  forms::SaveFlag("RasterMill", "Settings", "Flag", false);
  EXPECT_FALSE(forms::GetFlag("RasterMill", "Settings", "Flag", true));
  EXPECT_EQ(forms::GetSetting("RasterMill", "Settings", "Flag", ""), "False");
}

}  // namespace
}  // namespace mill
