#include "platform/system/files.h"

#include <algorithm>
#include <sys/stat.h>

#include "platform/forms/bitmap.h"
#include "platform/system/environment.h"
#include "platform/system/paths.h"
#include "platform/system/settings.h"
#include "platform/system/text.h"
#include "support/windows.h"

namespace mill {
namespace {

namespace fs = std::filesystem;

using test::Bytes;
using Names = std::vector<std::string>;
using Files = test::WindowTest;

TEST_F(Files, DriveFormsMeanNativeFiles) {
  for (const char* name : {"dosdevices", "drive_c"}) folder.makeFolder(name);
  fs::create_directory_symlink("../drive_c", folder.path("dosdevices/c:"));
  fs::create_directory_symlink("/gone", folder.path("dosdevices/d:"));
  ::setenv("WINEPREFIX", folder.path().c_str(), 1);
  const std::pair<const char*, fs::path> cases[] = {{"Z:\\home\\a b\\x.bmp", "/home/a b/x.bmp"},
                                                    {"z:", "/"},
                                                    {"Z:\\\\a\\\\b", "/a/b"},
                                                    {"/native/dir\\x.bmp", "/native/dir/x.bmp"},
                                                    {"C:\\Game", folder.path("dosdevices/c:/Game")},
                                                    {"", ""},
                                                    {"\\x.bmp", ""},
                                                    {"relative", ""}};
  for (const auto& [path, native] : cases) EXPECT_EQ(forms::nativePath(path), native) << path;
  EXPECT_EQ(forms::drives(), (Names{"C:", "Z:"}));
  EXPECT_EQ(forms::drivePath("/a/b"), "Z:\\a\\b");
  EXPECT_EQ(forms::drivePath("C:\\a"), "C:\\a");
  ::unsetenv("WINEPREFIX");
}

TEST_F(Files, NamesOfAnyBytesComeBackAsTheyWent) {
  for (const std::string text :
       {"plain", "gr\xC3\xBC\xC3\x9F", "latin \xFC and \xE4\xF6", "\xFF\xFE", "cut \xE2\x82",
        "face \xF0\x9F\x98\x80 \xED\xA0\x80", "\xEF\xBF\xBD"}) {
    EXPECT_EQ(forms::bytesOf(forms::shown(text)), text);
  }
  EXPECT_EQ(forms::shown("gr\xC3\xBC\xC3\x9F"), QStringLiteral("gr\u00FC\u00DF"));
}

TEST_F(Files, TemporaryOnesNeverLieWhereOthersCanWrite) {
  ::unsetenv("temp");
  ::setenv("XDG_CACHE_HOME", folder.path("cache").c_str(), 1);
  ::setenv("TEMP", folder.path().c_str(), 1);
  fs::permissions(folder.path(), fs::perms::owner_all);
  EXPECT_EQ(forms::tempDirectory(), folder.drive());
  fs::permissions(folder.path(), fs::perms::all);
  EXPECT_EQ(forms::tempDirectory(), folder.drive("cache/raster-mill"));
  EXPECT_EQ(fs::status(folder.path("cache/raster-mill")).permissions(), fs::perms::owner_all);
  ::unsetenv("TEMP");
}

TEST_F(Files, OnlyNormalOnesAreListedAndRead) {
  for (const char* name : {"a.bmp", "SKY.BMP", ".hidden.bmp", "note.txt", "back\\slash.bmp",
                           "latin\xFC.bmp", "b.bmpx", "bmp"}) {
    folder.write(name, {1});
  }
  folder.makeFolder("folder.bmp");
  ::mkfifo(folder.path("pipe.bmp").c_str(), 0600);
  fs::create_symlink("a.bmp", folder.path("link.bmp"));
  fs::create_symlink("gone", folder.path("dangling.bmp"));
  Names found = forms::filesIn(folder.drive(), "*.bmp");
  std::sort(found.begin(), found.end());
  EXPECT_EQ(found, (Names{"SKY.BMP", "a.bmp", "latin\xFC.bmp", "link.bmp"}));
  EXPECT_EQ(forms::filesIn(folder.drive(), "*.*").size(), 7u);
  EXPECT_EQ(forms::directoriesIn(folder.drive()), Names{"folder.bmp"});
  EXPECT_TRUE(forms::filesIn(folder.drive("gone"), "*").empty());
  EXPECT_FALSE(forms::InputFile(folder.drive("pipe.bmp")).isOpen());
}

TEST_F(Files, AnAbandonedOutputLeavesNoTrace) {
  folder.write("old", {1, 2});
  for (const char* name : {"old", "new"}) {
    EXPECT_TRUE(forms::OutputFile(folder.drive(name), 4096).isOpen());
  }
  EXPECT_EQ(test::readFile(folder.path("old")), (Bytes{1, 2}));
  EXPECT_FALSE(folder.exists("new"));
}

TEST_F(Files, ABitmapMayBeLargerThanQtAllows) {
  Bytes head = model::convertedBitmap(model::kestrelBitmap({}), {});
  head[18] = head[22] = 12000 & 0xFF;
  head[19] = head[23] = 12000 >> 8;
  folder.write("large.bmp", head);
  fs::resize_file(folder.path("large.bmp"), 1078 + 12000 * 12000);
  EXPECT_TRUE(forms::Bitmap::load(folder.drive("large.bmp"), 0, 0));
}

TEST_F(Files, SettingsComeBackInAnyBytesAndFlagsAreTwoWords) {
  const std::pair<const char*, int> cases[] = {{"C:\\new, \"folder\"; x=1%", -1},
                                               {" \xC3\xA4 ", -1},
                                               {"latin\xFC\\x", -1},
                                               {"", -1},
                                               {"True", 1},
                                               {"False", 0},
                                               {"true", -1},
                                               {"1", -1},
                                               {"False ", -1}};
  for (const auto& [value, flag] : cases) {
    EXPECT_TRUE(forms::SaveSetting("RasterMill", "Settings", "Key", value));
    EXPECT_EQ(forms::GetSetting("RasterMill", "Settings", "Key", "other"), value);
    for (const bool fallback : {false, true}) {
      EXPECT_EQ(forms::GetFlag("RasterMill", "Settings", "Key", fallback),
                flag < 0 ? fallback : flag > 0)
          << value;
    }
  }
  EXPECT_EQ(forms::GetSetting("RasterMill", "Settings", "Missing", "other"), "other");
}

}  // namespace
}  // namespace mill
