// Measures the program through its real windows. Takes one argument, a folder in memory-backed
// storage that it fills with pictures.

#include <cstdio>

#include "batches.h"
#include "harness.h"
#include "platform/forms/application.h"
#include "platform/forms/msg_box.h"
#include "windows.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: window-bench FOLDER\n");
    return 2;
  }
  const forms::Desktop desktop(argv[0]);
  forms::answerMessagesWith([](const forms::Message& message) -> forms::Answer {
    mill::bench::fail("a message: " + message.text);
  });
  std::printf(
      "Whole conversions, processor time against the plain loop; then with the palette\n"
      "search over 50 folders and the swatch window, and how many times that is\n");
  mill::bench::runBatches(argv[1]);
  std::printf("\nWaiting for windows\n");
  mill::bench::runWindows(argv[1]);
  return 0;
}
