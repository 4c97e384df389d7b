#include "batches.h"

#include <QListView>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <fstream>

#include "harness.h"
#include "plain_loop.h"

namespace mill::bench {

namespace {

namespace fs = std::filesystem;

constexpr int kRuns = 5;
constexpr int kPaletteFolders = 50;

struct Work {
  const char* title;
  int count;
  int width;
  int height;
  const char* aim;  ///< at most so many times the plain loop's processor time

  double megabytes() const { return 1e-6 * count * width * height; }
};

/// The medians of several runs.
struct Result {
  double ratio = 0;      ///< processor time to the plain loop's
  double processor = 0;  ///< seconds
  double elapsed = 0;    ///< seconds
  double limit = 0;      ///< the plain loop's processor time, seconds
  double painting = 0;   ///< share of the elapsed time
  double peak = 0;       ///< MB, of the first run
};

/// Counts how often the two progress bars are painted.
class Paintings final : public QObject {
 public:
  Paintings() {
    for (const char* bar : {"Progress1", "Progress2"}) {
      control<QProgressBar>("frmConvert", bar)->installEventFilter(this);
    }
  }
  int count() const { return count_; }

 private:
  bool eventFilter(QObject*, QEvent* event) override {
    count_ += event->type() == QEvent::Paint;
    return false;
  }
  int count_ = 0;
};

/// Seconds to paint a bar once, including the way to the screen.
double paintingCost() {
  auto* bar = control<QProgressBar>("frmConvert", "Progress1");
  std::vector<double> times;
  for (int i = 0; i < 9; ++i) times.push_back(measure([&] { bar->repaint(); }).elapsed);
  return median(times);
}

/// The cost of a conversion, and how much of the elapsed time the bars' painting takes.
struct Conversion {
  Cost cost;
  double painting = 0;  ///< seconds
};

/// Selects every picture and converts them; measures the click on "Yes".
Conversion convertThroughWindow(const Work& work) {
  auto* list = control<QListView>("frmMain", "filSource");
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                    list->visualRect(list->model()->index(0, 0)).center());
  QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
  Conversion result;
  QTimer::singleShot(0, [&] {
    settle();
    auto* yes = control<QPushButton>("frmConvert", "cmdYes");
    require(yes->isVisible(), "the convert dialog is shown");
    const double onePainting = paintingCost();
    const Paintings paintings;
    result.cost = measure([&] { yes->click(); });
    result.painting = paintings.count() * onePainting;
  });
  control<QPushButton>("frmMain", work.count > 1 ? "cmdBatch" : "cmdConvert")->click();
  settle();
  return result;
}

/// In MB, since the last call of `forgetPeak`.
double peakMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmHWM:")) return std::stod(line.substr(6)) / 1024;
  }
  return 0;
}

void forgetPeak() {
  std::ofstream("/proc/self/clear_refs") << 5;
}

bool holds(const fs::path& folder, int count) {
  return std::distance(fs::directory_iterator(folder), {}) == count;
}

Result run(const Work& work, const std::vector<std::string>& names, const Folders& folders) {
  empty(folders.target);
  showMainWindow(folders);
  forgetPeak();
  convertThroughWindow(work);
  Result result{.peak = peakMemory()};

  std::vector<double> ratios, processor, elapsed, limit, painting;
  for (int i = 0; i < kRuns; ++i) {
    empty(folders.target);
    const Cost plain = measure([&] {
      convertPlainly(names, folders.source.string(), folders.target.string(), work.width,
                     work.height);
    });
    empty(folders.target);
    const auto [ours, bars] = convertThroughWindow(work);
    require(holds(folders.target, work.count), "every picture was converted");
    ratios.push_back(ours.processor / plain.processor);
    processor.push_back(ours.processor);
    elapsed.push_back(ours.elapsed);
    limit.push_back(plain.processor);
    painting.push_back(bars / ours.elapsed);
  }
  unloadMainWindow();
  result.ratio = median(ratios);
  result.processor = median(processor);
  result.elapsed = median(elapsed);
  result.limit = median(limit);
  result.painting = median(painting);
  return result;
}

void print(const Work& work, const Result& result, const Result& withPalettes) {
  const double perPicture = 1e3 / work.count;
  std::printf("%-20s %8.0f %7.0f %9.4f %9.4f %9.4f %6.2f %5s %7.1f%% %8.1f %9.2f %6.2f\n",
              work.title, work.count / result.elapsed, work.megabytes() / result.elapsed,
              result.processor * perPicture, result.elapsed * perPicture, result.limit * perPicture,
              result.ratio, work.aim, 100 * result.painting, result.peak, withPalettes.ratio,
              withPalettes.processor / result.processor);
  std::fflush(stdout);
}

}  // namespace

void runBatches(const fs::path& folder) {
  const Folders plain{folder / "source", folder / "target", {}};
  const Folders searching{plain.source, plain.target, folder / "palettes"};
  makePalettes(searching.palettes, kPaletteFolders);
  std::printf("%-20s %8s %7s %9s %9s %9s %6s %5s %8s %8s %9s %6s\n", "", "pic/s", "MB/s", "cpu ms",
              "ms", "limit ms", "ratio", "aim", "painting", "peak MB", "palettes:", "times");
  for (const Work& work :
       {Work{"1 of 640 x 480", 1, 640, 480, ""}, Work{"1000 of 640 x 480", 1000, 640, 480, "2.0"},
        Work{"2000 of 64 x 64", 2000, 64, 64, "3.0"},
        Work{"1 of 8192 x 8192", 1, 8192, 8192, "2.5"}}) {
    empty(plain.source);
    const auto names = makePictures(plain.source, work.count, work.width, work.height);
    const Result without = run(work, names, plain);
    print(work, without, run(work, names, searching));
  }
}

}  // namespace mill::bench
