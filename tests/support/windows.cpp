#include "support/windows.h"

#include <QListView>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <csignal>
#include <fstream>
#include <iterator>
#include <utility>

#include "mainwindow/frm_main.h"
#include "picture/program_state.h"
#include "platform/forms/application.h"
#include "platform/system/paths.h"
#include "platform/system/settings.h"

namespace mill::test {

TempFolder::TempFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "mill-XXXXXX").string();
  root_ = ::mkdtemp(pattern.data());
}

std::string TempFolder::drive(const std::string& name) const {
  return forms::drivePath(path(name).string());
}

void TempFolder::write(const std::string& name, const Bytes& bytes) const {
  std::ofstream(root_ / name, std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes.data()), static_cast<long>(bytes.size()));
}

Bytes readFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return Bytes(std::istreambuf_iterator<char>(in), {});
}

Messages::Messages() {
  forms::answerMessagesWith([this](const forms::Message& message) {
    said_.push_back(message);
    if (meanwhile) meanwhile();
    const bool asks = message.buttons == forms::Buttons::YesNo;
    if (answers.empty()) answers = {asks ? forms::Answer::No : forms::Answer::OK};
    const forms::Answer answer = answers.front();
    answers.erase(answers.begin());
    return answer;
  });
}

std::vector<std::string> Messages::texts() {
  std::vector<std::string> texts;
  for (const forms::Message& message : std::exchange(said_, {})) texts.push_back(message.text);
  return texts;
}

void Messages::expectLast(std::size_t count, const std::string& text, const std::string& title,
                          forms::Icon icon) {
  const std::vector<forms::Message> heard = std::exchange(said_, {});
  ASSERT_EQ(heard.size(), count);
  EXPECT_EQ(heard.back().text, text);
  EXPECT_EQ(heard.back().title, title);
  EXPECT_EQ(heard.back().icon, icon);
}

QWidget* window(const char* form) {
  QWidget* found = nullptr;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() != QLatin1String(form)) continue;
    if (!found || widget->isVisible()) found = widget;
  }
  return found;
}

void press(const char* form, const char* button) {
  QTest::mouseClick(control<QPushButton>(form, button), Qt::LeftButton);
}

void whenShown(std::function<void()> act) {
  QTimer::singleShot(0, qApp, std::move(act));
}

void pressAndThen(const char* form, const char* button, std::function<void()> act) {
  whenShown(std::move(act));
  press(form, button);
}

QImage painted(QWidget* widget) {
  return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QImage boxWith(const Bytes& bitmap, QSize box, int scale) {
  const auto number = [&](std::size_t at) { return bitmap.at(at) | bitmap.at(at + 1) << 8; };
  const int width = number(18), height = number(22), rowBytes = (width + 3) / 4 * 4;
  QImage image(box, QImage::Format_RGB32);
  image.fill(QApplication::palette().color(QPalette::Window));
  for (int y = 0; y < std::min(height * scale, box.height()); ++y) {
    for (int x = 0; x < std::min(width * scale, box.width()); ++x) {
      // The last row is stored first, and of each colour blue. What isn't there is colour 0.
      const auto at =
          static_cast<std::size_t>(1078 + (height - 1 - y / scale) * rowBytes + x / scale);
      const auto colour = 54 + std::size_t{4} * (at < bitmap.size() ? bitmap[at] : 0);
      image.setPixel(x, y, qRgb(bitmap[colour + 2], bitmap[colour + 1], bitmap[colour]));
    }
  }
  return image;
}

Limit::Limit(__rlimit_resource resource, rlim_t value) : resource_(resource) {
  std::signal(SIGXFSZ, SIG_IGN);
  ::getrlimit(resource, &before_);
  const rlimit limit{value, before_.rlim_max};
  ::setrlimit(resource, &limit);
}

ColourTable tableOf(const model::Colours& colours) {
  ColourTable table;
  auto entry = table.begin();
  for (const auto& [red, green, blue, extra] : colours) *entry++ = {red, green, blue, extra};
  return table;
}

void settle() {
  for (int i = 0; i < 3; ++i) {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

WindowTest::WindowTest() {
  reset();
  ::setenv("temp", folder.path().c_str(), 1);
}

void WindowTest::reset() {
  while (forms::Forms.Count() > 0) forms::Forms[forms::Forms.Count() - 1].Unload();
  settle();
  state = {};
}

MainWindowTest::MainWindowTest() {
  std::filesystem::remove(forms::nativePath(forms::settingsFile(forms::Application::Title)));
  for (const char* name : {"in", "out", "pal"}) folder.makeFolder(name);
  // A folder without any file would not be taken as the source.
  folder.write("in/readme.txt", {});
  folder.write("pal/base.pal", model::paletteFile("24 bytes of some header.", colours));
  set("Source", folder.drive("in"));
  set("Dest", folder.drive("out"));
  set("PalDir", folder.drive("pal"));
  set("Palette", folder.drive("pal/base.pal"));
  for (const char* flag : {"ShowPal", "ShowPrev", "AutoPrev", "AutoPal", "ResizeFit", "Search"}) {
    set(flag, "False");
  }
}

void MainWindowTest::set(const char* key, const std::string& value) {
  forms::SaveSetting(forms::Application::Title, "Settings", key, value);
}

void MainWindowTest::start() {
  frmMain->Show();
  settle();
}

Bytes MainWindowTest::addPicture(const std::string& name, int seed) {
  model::Kestrel picture{.width = 4, .height = 4, .dataSize = 16};
  picture.pixels[0] = static_cast<std::uint8_t>(seed);
  folder.write("in/" + name, model::kestrelBitmap(picture));
  return model::kestrelBitmap(picture);
}

void MainWindowTest::select(const std::vector<std::string>& names) {
  auto* list = control<QListView>("frmMain", "filSource");
  Qt::KeyboardModifiers keys;
  for (const std::string& name : names) {
    const QModelIndexList found =
        list->model()->match(list->model()->index(0, 0), Qt::DisplayRole,
                             QString::fromStdString(name), 1, Qt::MatchExactly);
    ASSERT_FALSE(found.isEmpty()) << name;
    QTest::mouseClick(list->viewport(), Qt::LeftButton, std::exchange(keys, Qt::ControlModifier),
                      list->visualRect(found.front()).center());
  }
}

void MainWindowTest::preview(const std::string& name) {
  select({name});
  press("frmMain", "cmdOpen");
}

}  // namespace mill::test
