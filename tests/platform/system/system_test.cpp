#include <algorithm>
#include <fcntl.h>
#include <fstream>
#include <sys/file.h>
#include <sys/stat.h>

#include "platform/system/file_io.h"
#include "platform/system/files.h"
#include "platform/system/paths.h"
#include "platform/system/temp_directory.h"
#include "support/windows.h"

namespace mill {
namespace {

namespace fs = std::filesystem;

using test::Texts;
using System = test::WindowTest;

TEST_F(System, TemporaryFilesNeverLieWhereOthersCanWrite) {
  const fs::path own = folder.path("cache/raster-mill");
  EXPECT_EQ(sys::tempDirectory({"Z:\\", folder.drive("gone")}), folder.path());  // by `temp`
  ::setenv("XDG_CACHE_HOME", folder.path("cache").c_str(), 1);
  ::setenv("TEMP", folder.path().c_str(), 1);
  EXPECT_EQ(sys::tempDirectory({folder.drive(".")}), sys::drivePath(own.string()));
  ::unsetenv("temp");
  EXPECT_EQ(sys::tempDirectory(), folder.drive());
  fs::permissions(folder.path(), fs::perms::others_write, fs::perm_options::add);
  EXPECT_EQ(sys::tempDirectory(), sys::drivePath(own.string()));
  ::unsetenv("TEMP");
  for (const bool isLink : {true, false}) {
    fs::remove_all(own.parent_path());
    folder.makeFolder("planted");
    folder.makeFolder("cache/raster-mill-killed");
    if (isLink) fs::create_directory_symlink(folder.path("planted"), own);
    if (!isLink) fs::create_directory(own);
    const int other = ::open((own / ".lock").c_str(), O_RDWR | O_CREAT, 0600);
    ::flock(other, LOCK_EX);  // another copy of the program is running
    EXPECT_TRUE(sys::tempDirectory().starts_with(folder.drive("cache/raster-mill-"))) << isLink;
    EXPECT_EQ(fs::status(folder.path("planted")).permissions() & fs::perms::others_read,
              fs::perms::others_read);
    ::close(other);
  }
}

TEST_F(System, OnlyNormalFilesAreListedAndRead) {
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

TEST_F(System, SettingsSavedOverADamagedFileAreThereInTheNextRun) {
  const char* keys[] = {"Source", "Dest", "PalDir"};
  const std::string texts[] = {" C:\\\xC3\xA4, \"b\"; x=1% ", "latin\xFC\\x", ""};
  const std::string file = sys::Settings("Damaged", "Settings").file();
  std::ofstream(file) << "garbage\n[Settings\nOther\n";
  sys::Settings store("Damaged", "Settings");
  for (const int i : {0, 1, 2}) store.setText(keys[i], texts[i]);
  store.setFlag("Flag", false);
  EXPECT_TRUE(store.save());
  // Qt caches what it has written, but really reads a copy.
  fs::copy(file, sys::Settings("Next", "Settings").file());
  sys::Settings next("Next", "Settings");
  for (const int i : {0, 1, 2}) EXPECT_EQ(next.text(keys[i], "other"), texts[i]);
  EXPECT_EQ(next.text("Flag", ""), "False");
  EXPECT_FALSE(next.flag("Flag", true));
  // Another program holds the file, perhaps on another machine; or it is none.
  const std::string held = sys::Settings("Held", "Settings").file();
  std::ofstream(held + ".lock") << "1\nprogram\nhost\n";
  EXPECT_FALSE(sys::Settings("Held", "Settings").save());
  ::mkfifo(sys::Settings("Pipe", "Settings").file().c_str(), 0600);
  EXPECT_EQ(sys::Settings("Pipe", "Settings").text("Source", "other"), "other");
  EXPECT_FALSE(sys::Settings("Pipe", "Settings").save());
}

}  // namespace
}  // namespace mill
