#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "platform/application.h"

/// The windows are real ones on Qt's offscreen platform, with a home and settings of their own.
int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  std::string home = (std::filesystem::temp_directory_path() / "mill-home-XXXXXX").string();
  if (!::mkdtemp(home.data())) return 1;
  ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "temp"}) {
    ::setenv(name, home.c_str(), 1);
  }
  ::unsetenv("WINEPREFIX");
  int result = 1;
  {
    const forms::Desktop desktop(argv[0]);
    result = RUN_ALL_TESTS();
  }
  std::filesystem::remove_all(home);
  return result;
}
