#include "support/windows.h"

#include <QAccessible>
#include <QDropEvent>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QUrl>
#include <QWindow>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <utility>

#include "mainwindow/frm_main.h"
#include "picture/hooks.h"
#include "picture/program_state.h"
#include "platform/system/paths.h"

namespace mill::test {

std::string TempFolder::drive(const std::string& name) const {
  return sys::drivePath(path(name).string());
}

void TempFolder::write(const std::string& name, const Bytes& bytes) const {
  std::ofstream(path(name), std::ios::binary)
      .write(reinterpret_cast<const char*>(bytes.data()), static_cast<long>(bytes.size()));
}

Bytes readFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return Bytes(std::istreambuf_iterator<char>(in), {});
}

bool Messages::eventFilter(QObject* watched, QEvent* event) {
  auto* box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(watched) : nullptr;
  if (box) QTimer::singleShot(0, box, [this, box] { answer(*box); });
  return false;
}

void Messages::answer(QMessageBox& box) {
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&box)->role(), QAccessible::AlertMessage);
  said_.push_back({box.text().toStdString(), box.windowTitle().toStdString(), box.icon()});
  if (meanwhile) meanwhile();
  const bool asks = box.standardButtons().testFlag(QMessageBox::No);
  if (answers.empty()) answers = {asks ? QMessageBox::No : QMessageBox::Ok};
  auto* button = box.button(answers.front());
  if (!button) ADD_FAILURE() << "no such answer to " << said_.back().text;
  (button ? button : box.buttons().front())->click();
  answers.erase(answers.begin());
}

Texts Messages::texts() {
  Texts texts;
  for (const Said& message : std::exchange(said_, {})) texts.push_back(message.text);
  return texts;
}

void Messages::expectLast(std::size_t count, const std::string& text, const std::string& title,
                          QMessageBox::Icon icon) {
  const std::vector<Said> heard = std::exchange(said_, {});
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

void inModal(const std::function<void()>& open, const std::function<void()>& act) {
  bool isDone = false;
  QTimer watch;  // message boxes may come before
  QObject::connect(&watch, &QTimer::timeout, [&] {
    const bool isThere = dynamic_cast<forms::Form*>(QApplication::activeModalWidget());
    if (isThere && !std::exchange(isDone, true)) act();
  });
  watch.start(0);
  open();
  EXPECT_TRUE(isDone) << "no window was shown modally";
}

void pressAndThen(const char* form, const char* button, const std::function<void()>& act) {
  inModal([&] { press(form, button); }, act);
}

void drop(const char* form, const char* on, const std::filesystem::path& path) {
  const QWidget* target = control(form, on);
  QMimeData files;
  files.setUrls({QUrl::fromEncoded("file://" + QByteArray(path.c_str()).toPercentEncoding("/"))});
  const QPoint at = target->mapTo(window(form), target->rect().center());
  QDropEvent event(at, Qt::CopyAction, &files, Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(window(form)->windowHandle(), &event);
  settle();
}

void type(const char* form, const char* box, const std::string& text) {
  auto* edit = control(form, box);
  edit->setFocus();
  auto* line = qobject_cast<QLineEdit*>(edit);
  if (!line) line = edit->findChild<QLineEdit*>();
  line->selectAll();
  QTest::keyClicks(line, QString::fromStdString(text));
}

QImage painted(QWidget* widget) {
  return widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

QImage boxWith(Bytes bitmap, QSize box, int scale) {
  bitmap.resize(1 << 20);
  const QImage picture = QImage::fromData(bitmap.data(), 1 << 20, "BMP");
  QImage image(box, QImage::Format_RGB32);
  image.fill(QApplication::palette().color(QPalette::Window));
  QPainter(&image).drawImage(QRect({}, picture.size() * scale), picture);
  return image;
}

void expectSwatches(const char* form, const model::Colours& colours) {
  auto* view = control<QTableView>(form, "palette1");
  const QImage image = painted(view);
  for (int i = 0; i < 256; ++i) {
    const auto [red, green, blue, extra] = colours[static_cast<std::size_t>(i)];
    const QRect swatch = view->visualRect(view->model()->index(i / 16, i % 16));
    ASSERT_EQ(image.pixel(swatch.center()), qRgb(red, green, blue)) << i;
  }
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
  while (!forms::Form::loaded().empty()) forms::Form::loaded().back()->Unload();
  settle();
  state = {};
  hooks = {};
}

MainWindowTest::MainWindowTest() {
  std::filesystem::remove(settings().file());
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
  sys::Settings store = settings();
  store.setText(key, value);
  EXPECT_TRUE(store.save());
}

void MainWindowTest::start() {
  frmMain->show();
  settle();
}

Bytes MainWindowTest::addPicture(const std::string& name, int seed) {
  model::Kestrel picture{.width = 4, .height = 4, .dataSize = 16};
  picture.pixels[0] = static_cast<std::uint8_t>(seed);
  folder.write("in/" + name, model::kestrelBitmap(picture));
  return model::kestrelBitmap(picture);
}

void MainWindowTest::select(const Texts& names) {
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
