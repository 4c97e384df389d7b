#include "platform/system/files.h"

#include <algorithm>
#include <sys/stat.h>

#include "platform/system/paths.h"
#include "platform/system/temp_directory.h"
#include "platform/system/text.h"
#include "support/windows.h"

namespace mill {
namespace {

namespace fs = std::filesystem;

using test::Texts;
using Files = test::WindowTest;

TEST_F(Files, DriveFormsMeanNativeFiles) {
  folder.makeFolder("dosdevices/c:");
  ::setenv("WINEPREFIX", folder.path().c_str(), 1);
  const std::pair<const char*, fs::path> cases[] = {{"z:\\home\\a b\\x.bmp", "/home/a b/x.bmp"},
                                                    {"Z:", "/"},
                                                    {"/native/dir\\x.bmp", "/native/dir/x.bmp"},
                                                    {"C:\\Game", folder.path("dosdevices/c:/Game")},
                                                    {"relative", ""}};
  for (const auto& [path, native] : cases) EXPECT_EQ(sys::nativePath(path), native) << path;
  EXPECT_EQ(sys::drives(), (Texts{"C:", "Z:"}));
  ::unsetenv("WINEPREFIX");
}

TEST_F(Files, NamesOfAnyBytesComeBackUnchanged) {
  for (const std::string name : {"gr\xC3\xBC\xFC", "\xE2\x82", "\xF0\x9F\x92\x80\xED\xA0\x80"}) {
    EXPECT_EQ(sys::bytesOf(sys::shown(name)), name);
  }
  EXPECT_TRUE(sys::shown("gr\xC3\xBC\xFC").startsWith(QStringLiteral("gr\u00FC")));
}

TEST_F(Files, TemporaryFilesNeverLieWhereOthersCanWrite) {
  ::unsetenv("temp");
  ::setenv("XDG_CACHE_HOME", folder.path("cache").c_str(), 1);
  ::setenv("TEMP", folder.path().c_str(), 1);
  EXPECT_EQ(sys::tempDirectory(), folder.drive());
  fs::permissions(folder.path(), fs::perms::others_write, fs::perm_options::add);
  EXPECT_EQ(sys::tempDirectory(), folder.drive("cache/raster-mill"));
  ::unsetenv("TEMP");
}

TEST_F(Files, OnlyNormalFilesAreListedAndRead) {
  for (const char* name : {"SKY.BMP", ".h.bmp", "\\.bmp", "\xFC.bmp", "bmp"})
    folder.write(name, {});
  ::mkfifo(folder.path("pipe.bmp").c_str(), 0600);
  fs::create_symlink("SKY.BMP", folder.path("link.bmp"));
  Texts found = sys::filesIn(folder.drive(), "*.bmp");
  std::sort(found.begin(), found.end());
  EXPECT_EQ(found, (Texts{"SKY.BMP", "link.bmp", "\xFC.bmp"}));
  EXPECT_EQ(sys::filesIn(folder.drive(), "*.*").size(), 4u);
  EXPECT_FALSE(sys::InputFile(folder.drive("pipe.bmp")).isOpen());
}

}  // namespace
}  // namespace mill
