// Whole conversions through the real window, from the click on "Yes" to the window's hiding,
// against a plain loop over the same files in the same run. Takes one argument, a folder in
// memory-backed storage that it fills with pictures.

#include <QApplication>
#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <sys/resource.h>

#include "conversion/frm_convert.h"
#include "mainwindow/frm_main.h"
#include "picture/program_state.h"
#include "plain_loop.h"
#include "platform/application.h"
#include "platform/msg_box.h"
#include "platform/paths.h"
#include "platform/progress_bar.h"
#include "platform/settings.h"

namespace mill::bench {
namespace {

namespace fs = std::filesystem;

constexpr int kRuns = 5;

struct Work {
  const char* title;
  int count;
  int width;
  int height;
  double aim;  ///< at most so many times the plain loop's processor time

  double megabytes() const { return 1e-6 * count * width * height; }
};

struct Cost {
  double processor = 0;  ///< seconds
  double elapsed = 0;    ///< seconds
  double painting = 0;   ///< seconds
};

double processorTime() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

double seconds(std::chrono::nanoseconds time) {
  return 1e-9 * static_cast<double>(time.count());
}

template <class Act>
Cost measure(Act act) {
  const double processor = processorTime();
  const auto painting = forms::ProgressBar::paintingTime();
  const auto begin = std::chrono::steady_clock::now();
  act();
  return {processorTime() - processor, seconds(std::chrono::steady_clock::now() - begin),
          seconds(forms::ProgressBar::paintingTime() - painting)};
}

void put(std::string& bytes, std::size_t at, std::int32_t value) {
  for (int i = 0; i < 4; ++i)
    bytes[at + static_cast<std::size_t>(i)] = static_cast<char>(value >> 8 * i);
}

std::vector<std::string> makePictures(const Work& work, const fs::path& folder) {
  const int size = work.width * work.height;
  std::string bytes(static_cast<std::size_t>(68 + size), '\0');
  bytes.replace(0, 2, "KS");
  put(bytes, 20, work.width);
  put(bytes, 24, work.height);
  bytes[28] = 8;
  put(bytes, 40, size);
  for (int i = 0; i < size; ++i)
    bytes[static_cast<std::size_t>(44 + i)] = static_cast<char>(i * 7 + i / work.width);
  put(bytes, static_cast<std::size_t>(64 + size), 1);
  std::vector<std::string> names;
  for (int i = 0; i < work.count; ++i) {
    char name[24];
    std::snprintf(name, sizeof name, "pic%05d.bmp", i);
    names.push_back(name);
    std::ofstream(folder / name, std::ios::binary)
        .write(bytes.data(), static_cast<long>(bytes.size()));
  }
  return names;
}

template <class W>
W* control(const char* form, const char* name) {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->objectName() == QLatin1String(form))
      return window->findChild<W*>(QLatin1String(name));
  }
  return nullptr;
}

void settle() {
  for (int i = 0; i < 20; ++i) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

[[noreturn]] void fail(const std::string& what) {
  std::printf("failed: %s\n", what.c_str());
  std::fflush(stdout);
  std::_Exit(1);
}

void require(bool holds, const char* what) {
  if (!holds) fail(what);
}

/// Selects every picture and converts them; the cost is that of the click on "Yes".
Cost convertThroughWindow(const Work& work) {
  auto* list = control<QListView>("frmMain", "filSource");
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                    list->visualRect(list->model()->index(0, 0)).center());
  QTest::keyClick(list, Qt::Key_A, Qt::ControlModifier);
  Cost cost;
  QTimer::singleShot(0, [&] {
    settle();
    auto* yes = control<QPushButton>("frmConvert", "cmdYes");
    require(yes->isVisible(), "the convert dialog is shown");
    cost = measure([&] { yes->click(); });
  });
  control<QPushButton>("frmMain", work.count > 1 ? "cmdBatch" : "cmdConvert")->click();
  settle();
  return cost;
}

void empty(const fs::path& folder) {
  fs::remove_all(folder);
  fs::create_directories(folder);
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
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

void saveFolders(const fs::path& source, const fs::path& target) {
  const auto save = [](const char* key, const fs::path& path) {
    forms::SaveSetting(forms::App.Title, "Settings", key, forms::drivePath(path.string()));
  };
  save("Source", source);
  save("Dest", target);
  save("Palette", source / "base.pal");
  std::ofstream(source / "base.pal") << std::string(1048, '\x40');
  forms::SaveFlag(forms::App.Title, "Settings", "AutoPal", false);
}

bool sameCount(const fs::path& folder, int count) {
  return std::distance(fs::directory_iterator(folder), {}) == count;
}

void runWork(const Work& work, const fs::path& root) {
  const fs::path source = root / "source";
  const fs::path target = root / "target";
  empty(source);
  empty(target);
  const auto names = makePictures(work, source);
  saveFolders(source, target);
  frmMain->Show();
  settle();
  forgetPeak();
  convertThroughWindow(work);
  const double peak = peakMemory();

  std::vector<double> ratios, processor, elapsed, limit, painting;
  for (int run = 0; run < kRuns; ++run) {
    empty(target);
    const Cost plain = measure(
        [&] { convertPlainly(names, source.string(), target.string(), work.width, work.height); });
    empty(target);
    const Cost ours = convertThroughWindow(work);
    require(sameCount(target, work.count), "every picture was converted");
    ratios.push_back(ours.processor / plain.processor);
    processor.push_back(ours.processor);
    elapsed.push_back(ours.elapsed);
    limit.push_back(plain.processor);
    painting.push_back(ours.painting / ours.elapsed);
  }
  const double perPicture = 1e3 / work.count;
  std::printf("%-22s %9.0f %9.0f %10.4f %10.4f %10.4f %7.2f %6.1f %8.1f%% %8.1f\n", work.title,
              work.count / median(elapsed), work.megabytes() / median(elapsed),
              median(processor) * perPicture, median(elapsed) * perPicture,
              median(limit) * perPicture, median(ratios), work.aim, 100 * median(painting), peak);
  std::fflush(stdout);
  frmMain->Unload();
  settle();
  state = {};
}

}  // namespace
}  // namespace mill::bench

int main(int argc, char** argv) {
  using namespace mill::bench;
  if (argc != 2) {
    std::fprintf(stderr, "usage: batch-bench FOLDER\n");
    return 2;
  }
  const forms::Desktop desktop(argv[0]);
  forms::answerMessagesWith(
      [](const forms::Message& message) -> forms::Answer { fail(message.text); });
  std::printf("%-22s %9s %9s %10s %10s %10s %7s %6s %9s %8s\n", "work", "pic/s", "MB/s",
              "cpu ms/pic", "ms/pic", "limit ms", "ratio", "aim", "painting", "peak MB");
  for (const Work& work :
       {Work{"1 of 640 x 480", 1, 640, 480, 0}, Work{"1000 of 640 x 480", 1000, 640, 480, 2.0},
        Work{"2000 of 64 x 64", 2000, 64, 64, 3.0}, Work{"1 of 8192 x 8192", 1, 8192, 8192, 2.5}}) {
    runWork(work, argv[1]);
  }
  return 0;
}
