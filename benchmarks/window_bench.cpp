// Measures the program through its real windows. Takes one argument, a folder in memory-backed
// storage that it fills with pictures.

#include <QMessageBox>

#include <cstdio>
#include <cstdlib>

#include "batches.h"
#include "harness.h"
#include "platform/forms/desktop.h"
#include "windows.h"
#include "writes.h"

namespace {

/// Ends the program when a message box appears.
class NoMessages final : public QObject {
 public:
  NoMessages() { qApp->installEventFilter(this); }

 private:
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(watched) : nullptr;
    if (box) mill::bench::fail("a message: " + box->text().toStdString());
    return false;
  }
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2 && argc != 3 && argc != 6) {
    std::fprintf(stderr,
                 "usage: window-bench FOLDER [windows | make|plain|window|search COUNT W H]\n");
    return 2;
  }
  const forms::Desktop desktop(argv[0]);
  const NoMessages noMessages;
  if (argc == 6) {
    mill::bench::runBatch(argv[1], argv[2], std::atoi(argv[3]), std::atoi(argv[4]),
                          std::atoi(argv[5]));
    return 0;
  }
  if (argc == 3) {
    mill::bench::runWindows(argv[1]);
    return 0;
  }
  std::printf(
      "Whole conversions in fresh processes, processor time against the plain loop; last the "
      "ratio\n"
      "with the palette search over 50 folders and the swatch window\n");
  mill::bench::runBatches(argv[1]);
  std::printf("\nWriting files\n");
  mill::bench::runWrites(std::filesystem::path(argv[1]) / "written");
  std::printf("\nWaiting for windows\n");
  mill::bench::runWindows(argv[1]);
  return 0;
}
