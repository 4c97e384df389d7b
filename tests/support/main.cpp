#include <cstdlib>

#include "platform/forms/desktop.h"
#include "support/windows.h"

/// The windows are real ones on Qt's offscreen platform, with a home and settings of their own.
int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  const mill::test::TempFolder home;
  ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
  for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "temp"}) {
    ::setenv(name, home.path().c_str(), 1);
  }
  ::unsetenv("WINEPREFIX");
  const forms::Desktop desktop(argv[0]);
  return RUN_ALL_TESTS();
}
