#include "batches.h"

#include <QListView>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <fstream>
#include <sstream>

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

const Work kWorks[] = {{"1 of 640 x 480", 1, 640, 480, ""},
                       {"1000 of 640 x 480", 1000, 640, 480, "1.3"},
                       {"2000 of 64 x 64", 2000, 64, 64, "1.8"},
                       {"1 of 8192 x 8192", 1, 8192, 8192, "1.5"}};

/// What one process measures.
struct Result {
  double processor = 0;  ///< seconds
  double elapsed = 0;    ///< seconds
  double painting = 0;   ///< share of the elapsed time
  double peak = 0;       ///< MB
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

/// Selects every picture and converts them; measures the click on "Yes".
Result convertThroughWindow(const Work& work) {
  auto* list = control<QListView>("frmMain", "filSource");
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                    list->visualRect(list->model()->index(0, 0)).center());
  QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
  Result result;
  QTimer::singleShot(0, [&] {
    settle();
    auto* yes = control<QPushButton>("frmConvert", "cmdYes");
    require(yes->isVisible(), "the convert dialog is shown");
    const double onePainting = paintingCost();
    const Paintings paintings;
    const Cost cost = measure([&] { yes->click(); });
    result = {.processor = cost.processor,
              .elapsed = cost.elapsed,
              .painting = paintings.count() * onePainting / cost.elapsed};
  });
  control<QPushButton>("frmMain", work.count > 1 ? "cmdBatch" : "cmdConvert")->click();
  settle();
  return result;
}

/// In MB.
double peakMemory() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with("VmHWM:")) return std::stod(line.substr(6)) / 1024;
  }
  return 0;
}

bool holds(const fs::path& folder, int count) {
  return std::distance(fs::directory_iterator(folder), {}) == count;
}

struct Place {
  explicit Place(const fs::path& folder)
      : source(folder / "source"), target(folder / "target"), palettes(folder / "palettes") {}

  fs::path source, target, palettes;
};

Result measureHere(const Place& place, const std::string& what, const Work& work) {
  if (what == "plain") {
    const std::vector<std::string> names = namesOfPictures(work.count);
    const Cost cost = measure([&] {
      convertPlainly(names, place.source.string(), place.target.string(), work.width, work.height);
    });
    return {.processor = cost.processor, .elapsed = cost.elapsed};
  }
  showMainWindow({place.source, place.target, what == "search" ? place.palettes : fs::path()});
  Result result = convertThroughWindow(work);
  result.peak = peakMemory();
  unloadMainWindow();
  return result;
}

/// Measures in a process of its own, since a second run finds its memory already there.
Result measureApart(const fs::path& folder, const char* what, const Work& work) {
  const Place place(folder);
  empty(place.target);
  QProcess process;
  process.start(
      QCoreApplication::applicationFilePath(),
      {QString::fromStdString(folder.string()), QLatin1String(what), QString::number(work.count),
       QString::number(work.width), QString::number(work.height)});
  process.waitForFinished(-1);
  std::istringstream numbers(process.readAllStandardOutput().toStdString());
  Result result;
  numbers >> result.processor >> result.elapsed >> result.painting >> result.peak;
  require(!numbers.fail() && holds(place.target, work.count),
          "every picture was converted: " + numbers.str());
  return result;
}

std::vector<double> each(const std::vector<Result>& results, double Result::*value) {
  std::vector<double> values;
  for (const Result& result : results) values.push_back(result.*value);
  return values;
}

void compare(const fs::path& folder, const Work& work) {
  std::vector<Result> plain, window, search;
  std::vector<double> ratios, searchRatios;
  for (int i = 0; i < kRuns; ++i) {
    plain.push_back(measureApart(folder, "plain", work));
    window.push_back(measureApart(folder, "window", work));
    search.push_back(measureApart(folder, "search", work));
    ratios.push_back(window.back().processor / plain.back().processor);
    searchRatios.push_back(search.back().processor / plain.back().processor);
  }
  const double elapsed = median(each(window, &Result::elapsed));
  const double perPicture = 1e3 / work.count;
  std::printf("%-18s %8.0f %7.0f %9.4f %9.4f %9.4f %6.2f %6.2f %5s %7.1f%% %8.1f %8.2f\n",
              work.title, work.count / elapsed, work.megabytes() / elapsed,
              median(each(window, &Result::processor)) * perPicture, elapsed * perPicture,
              median(each(plain, &Result::processor)) * perPicture, median(ratios), largest(ratios),
              work.aim, 100 * median(each(window, &Result::painting)),
              median(each(window, &Result::peak)), median(searchRatios));
  std::fflush(stdout);
}

}  // namespace

void runBatches(const fs::path& folder) {
  const Place place(folder);
  makePalettes(place.palettes, kPaletteFolders);
  std::printf("%-18s %8s %7s %9s %9s %9s %6s %6s %5s %8s %8s %8s\n", "", "pic/s", "MB/s", "cpu ms",
              "ms", "plain ms", "ratio", "most", "aim", "painting", "peak MB", "palettes");
  for (const Work& work : kWorks) {
    empty(place.source);
    makePictures(place.source, work.count, work.width, work.height);
    compare(folder, work);
  }
}

void runBatch(const fs::path& folder, const std::string& what, int count, int width, int height) {
  const Place place(folder);
  if (what == "make") {
    empty(place.source);
    empty(place.target);
    makePictures(place.source, count, width, height);
    makePalettes(place.palettes, kPaletteFolders);
    return;
  }
  const Result result = measureHere(place, what, {"", count, width, height, ""});
  std::printf("%.9f %.9f %.9f %.3f\n", result.processor, result.elapsed, result.painting,
              result.peak);
}

}  // namespace mill::bench
