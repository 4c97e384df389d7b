#include "platform/system/settings.h"

#include <fstream>

#include "support/windows.h"

namespace mill {
namespace {

TEST(Settings, WhatIsSavedOverADamagedFileIsThereInTheNextRun) {
  const char* keys[] = {"Source", "Dest", "PalDir"};
  const std::string texts[] = {" C:\\\xC3\xA4, \"b\"; x=1% ", "latin\xFC\\x", ""};
  const std::string file = sys::Settings("Damaged", "Settings").file();
  std::ofstream(file) << "garbage\n[Settings\nOther\n";
  sys::Settings store("Damaged", "Settings");
  for (const int i : {0, 1, 2}) store.setText(keys[i], texts[i]);
  store.setFlag("Flag", false);
  EXPECT_TRUE(store.save());
  // Qt remembers what it has written, but reads a copy anew.
  std::filesystem::copy(file, sys::Settings("Next", "Settings").file());
  sys::Settings next("Next", "Settings");
  for (const int i : {0, 1, 2}) EXPECT_EQ(next.text(keys[i], "other"), texts[i]);
  EXPECT_EQ(next.text("Flag", ""), "False");
  EXPECT_FALSE(next.flag("Flag", true));
  const test::Limit fullDisk(RLIMIT_FSIZE, 0);
  for (sys::Settings* unwritable : {&next, &store}) {
    unwritable->setFlag("Flag", true);
    EXPECT_FALSE(unwritable->save()) << unwritable->file();
  }
}

}  // namespace
}  // namespace mill
