#include "harness.h"

#include <QTest>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>

#include "mainwindow/frm_main.h"
#include "picture/program_state.h"
#include "platform/system/application.h"
#include "platform/system/paths.h"
#include "platform/system/settings.h"

namespace mill::bench {

namespace {

namespace fs = std::filesystem;

double seconds(clockid_t clock) {
  timespec time{};
  clock_gettime(clock, &time);
  return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

void put(std::string& bytes, std::size_t at, std::int32_t value) {
  for (std::size_t i = 0; i < 4; ++i) bytes[at + i] = static_cast<char>(value >> 8 * i);
}

std::string kestrelBitmap(int width, int height) {
  const int size = width * height;
  std::string bytes(static_cast<std::size_t>(68 + size), '\0');
  bytes.replace(0, 2, "KS");
  put(bytes, 20, width);
  put(bytes, 24, height);
  bytes[28] = 8;
  put(bytes, 40, size);
  for (int i = 0; i < size; ++i) {
    bytes[static_cast<std::size_t>(44 + i)] = static_cast<char>(i * 7 + i / width);
  }
  put(bytes, static_cast<std::size_t>(64 + size), 1);
  return bytes;
}

void save(const fs::path& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(bytes.data(), static_cast<long>(bytes.size()));
  require(file.good(), "writing " + path.string());
}

std::string palette() {
  std::string bytes(1048, '\0');
  for (std::size_t i = 24; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i / 4);
  return bytes;
}

}  // namespace

Cost now() {
  return {seconds(CLOCK_PROCESS_CPUTIME_ID), seconds(CLOCK_MONOTONIC)};
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

double largest(const std::vector<double>& values) {
  return *std::max_element(values.begin(), values.end());
}

void fail(const std::string& what) {
  std::printf("failed: %s\n", what.c_str());
  std::fflush(stdout);
  std::_Exit(1);
}

void require(bool holds, const std::string& what) {
  if (!holds) fail(what);
}

void settle() {
  for (int i = 0; i < 20; ++i) {
    QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

void empty(const fs::path& folder) {
  fs::remove_all(folder);
  fs::create_directories(folder);
}

QWidget* window(const char* form) {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == QLatin1String(form)) return widget;
  }
  fail(std::string("no window ") + form);
}

void waitUntilShown(const char* form) {
  require(QTest::qWaitForWindowExposed(window(form)), std::string(form) + " is shown");
  settle();
}

void showMainWindow(const Folders& folders) {
  const bool search = !folders.palettes.empty();
  save(folders.source / "base.pal", palette());
  sys::Settings settings(sys::App.Title, "Settings");
  settings.setText("Source", sys::drivePath(folders.source.string()));
  settings.setText("Dest", sys::drivePath(folders.target.string()));
  settings.setText("PalDir", sys::drivePath(folders.palettes.string()));
  settings.setText("Palette", sys::drivePath((folders.source / "base.pal").string()));
  for (const char* flag : {"AutoPal", "Search", "ShowPal"}) settings.setFlag(flag, search);
  for (const char* flag : {"ShowPrev", "AutoPrev"}) settings.setFlag(flag, false);
  require(settings.save(), "the settings are saved");
  frmMain->show();
  waitUntilShown("frmMain");
}

void unloadMainWindow() {
  frmMain->Unload();
  settle();
  state = {};
}

std::vector<std::string> namesOfPictures(int count) {
  std::vector<std::string> names;
  for (int i = 0; i < count; ++i) {
    names.push_back("picture" + std::to_string(100000 + i) + ".bmp");
  }
  return names;
}

std::vector<std::string> makePictures(const fs::path& folder, int count, int width, int height) {
  const std::string bytes = kestrelBitmap(width, height);
  std::vector<std::string> names = namesOfPictures(count);
  for (const std::string& name : names) save(folder / name, bytes);
  return names;
}

void makePalettes(const fs::path& folder, int directories) {
  empty(folder);
  for (int i = 1; i <= directories; ++i) {
    const fs::path directory = folder / std::to_string(i);
    fs::create_directory(directory);
    save(directory / (std::to_string(directories + 1 - i) + ".pal"), palette());
  }
}

}  // namespace mill::bench
