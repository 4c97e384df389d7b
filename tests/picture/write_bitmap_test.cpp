#include "picture/write_bitmap.h"

#include <sys/stat.h>

#include "picture/open_picture.h"
#include "picture/program_state.h"
#include "support/format_model.h"
#include "support/windows.h"

namespace mill {
namespace {

using forms::Icon;
using test::Bytes;
using test::readFile;

/// A picture "in.bmp" is open, and there is a folder "out".
class WriteBitmapTest : public test::WindowTest {
 protected:
  WriteBitmapTest() {
    folder.makeFolder("out");
    folder.write("in.bmp", source);
    OpenPicture(folder.drive("in.bmp"));
  }

  void expectUnwritable(const std::string& path) {
    EXPECT_FALSE(WriteBitmap(path));
    messages.expectLast(1, "The file can't be written.\n" + path, "Warning!", Icon::Critical);
  }

  const Bytes source = model::kestrelBitmap({.width = 30, .height = 10, .dataSize = 320});
};

TEST_F(WriteBitmapTest, SaysWhichFileCannotBeWritten) {
  ::mkfifo(folder.path("out/pipe").c_str(), 0600);
  folder.makeFolder("out/folder");
  for (const char* name : {"missing/new.bmp", "out/pipe", "out/folder"}) {
    expectUnwritable(folder.drive(name));
  }
  for (const char* path : {"Z:\\dev\\null", "Q:\\new.bmp", "\\new.bmp"}) expectUnwritable(path);
  EXPECT_TRUE(std::filesystem::is_fifo(folder.path("out/pipe")));
}

TEST_F(WriteBitmapTest, AFullDiskCostsNoOlderFile) {
  const Bytes old(100, 0xEE);
  folder.write("out/old.bmp", old);
  {
    const test::Limit fullDisk(RLIMIT_FSIZE, 1200);
    expectUnwritable(folder.drive("out/old.bmp"));
    expectUnwritable(folder.drive("out/new.bmp"));
  }
  EXPECT_EQ(readFile(folder.path("out/old.bmp")), old);
  EXPECT_FALSE(folder.exists("out/new.bmp"));
}

TEST_F(WriteBitmapTest, NeverWritesOverTheFileThatThePictureCameFrom) {
  std::filesystem::create_symlink(folder.path("in.bmp"), folder.path("out/link.bmp"));
  std::filesystem::create_hard_link(folder.path("in.bmp"), folder.path("out/hard.bmp"));
  std::filesystem::create_directory_symlink(folder.path(), folder.path("out/again"));
  for (const char* name : {"in.bmp", "out/link.bmp", "out/hard.bmp", "out/again/in.bmp"}) {
    EXPECT_FALSE(WriteBitmap(folder.drive(name)));
    messages.expectLast(1, "The source and destination directories must be different.", "Warning!",
                        Icon::Information);
  }
  EXPECT_EQ(readFile(folder.path("in.bmp")), source);
}

}  // namespace
}  // namespace mill
