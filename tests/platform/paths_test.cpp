#include "platform/paths.h"

#include <filesystem>

#include "platform/environment.h"
#include "platform/text.h"
#include "support/windows.h"

namespace mill {
namespace {

using test::TempFolder;

/// Sets an environment variable, or unsets it with null, as long as it lives.
class Variable {
 public:
  Variable(const char* name, const char* value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    value ? ::setenv(name, value, 1) : ::unsetenv(name);
  }
  ~Variable() { old_.empty() ? ::unsetenv(name_) : ::setenv(name_, old_.c_str(), 1); }

 private:
  const char* name_;
  std::string old_;
};

TEST(Paths, DriveFormsMeanNativeFiles) {
  const TempFolder wine;
  wine.makeFolder("dosdevices");
  wine.makeFolder("drive_c");
  std::filesystem::create_directory_symlink("../drive_c", wine.path("dosdevices/c:"));
  std::filesystem::create_directory_symlink("/gone", wine.path("dosdevices/d:"));
  const Variable prefix("WINEPREFIX", wine.path().c_str());

  EXPECT_EQ(forms::nativePath("Z:\\home\\a b\\x.bmp"), "/home/a b/x.bmp");
  EXPECT_EQ(forms::nativePath("z:"), "/");
  EXPECT_EQ(forms::nativePath("Z:\\\\a\\\\b"), "/a/b");
  EXPECT_EQ(forms::nativePath("/native/dir\\x.bmp"), "/native/dir/x.bmp");
  EXPECT_EQ(forms::nativePath("C:\\Game").string(), wine.path("dosdevices/c:/Game").string());
  EXPECT_EQ(forms::drives(), (std::vector<std::string>{"C:", "Z:"}));
  for (const char* nowhere : {"", "\\x.bmp", "relative"}) {
    EXPECT_TRUE(forms::nativePath(nowhere).empty()) << nowhere;
  }
  EXPECT_EQ(forms::drivePath("/a/b"), "Z:\\a\\b");
  EXPECT_EQ(forms::drivePath("C:\\a"), "C:\\a");
}

TEST(Paths, TextsOfAnyBytesComeBackAsTheyWent) {
  for (const std::string text :
       {"plain", "gr\xC3\xBC\xC3\x9F", "latin \xFC and \xE4\xF6", "\xFF\xFE", "cut \xE2\x82",
        "face \xF0\x9F\x98\x80 \xED\xA0\x80", "\xEF\xBF\xBD"}) {
    EXPECT_EQ(forms::bytesOf(forms::shown(text)), text);
  }
  EXPECT_EQ(forms::shown("gr\xC3\xBC\xC3\x9F"), QStringLiteral("gr\u00FC\u00DF"));
}

TEST(Environment, TemporaryFilesNeverLieWhereOthersCanWrite) {
  const TempFolder folder;
  folder.makeFolder("mine");
  folder.makeFolder("everybodys");
  std::filesystem::permissions(folder.path("mine"), std::filesystem::perms::owner_all);
  std::filesystem::permissions(folder.path("everybodys"), std::filesystem::perms::all);
  const Variable cache("XDG_CACHE_HOME", folder.path("cache").c_str());
  const Variable temp("temp", "C:\\as it is");
  EXPECT_EQ(forms::tempDirectory(), "C:\\as it is");

  const Variable noTemp("temp", nullptr);
  const Variable noTEMP("TEMP", nullptr);
  const Variable mine("TMPDIR", folder.path("mine").c_str());
  EXPECT_EQ(forms::tempDirectory(), folder.drive("mine"));

  const Variable everybodys("TMPDIR", folder.path("everybodys").c_str());
  EXPECT_EQ(forms::tempDirectory(), folder.drive("cache/raster-mill"));
  EXPECT_EQ(std::filesystem::status(folder.path("cache/raster-mill")).permissions(),
            std::filesystem::perms::owner_all);
}

}  // namespace
}  // namespace mill
