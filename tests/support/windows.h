#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QWidget>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "platform/system/application.h"
#include "platform/system/settings.h"
#include "support/format_model.h"

namespace mill::test {

using model::Bytes;
using Texts = std::vector<std::string>;

/// A temporary folder, removed with the object.
class TempFolder {
 public:
  ~TempFolder() { std::filesystem::remove_all(path()); }  // Qt can't remove names of any bytes

  std::filesystem::path path(const std::string& name = {}) const {
    const std::filesystem::path root = root_.path().toStdString();
    return name.empty() ? root : root / name;
  }
  /// The same in drive form.
  std::string drive(const std::string& name = {}) const;
  void write(const std::string& name, const Bytes& bytes) const;
  void makeFolder(const std::string& name) const {
    std::filesystem::create_directories(path(name));
  }
  bool exists(const std::string& name) const { return std::filesystem::exists(path(name)); }

 private:
  QTemporaryDir root_;
};

Bytes readFile(const std::filesystem::path& path);

/// Answers every message box as long as it lives, and keeps what they said. One without a prepared
/// answer gets OK, or No where it asks.
class Messages : public QObject {
 public:
  Messages() { qApp->installEventFilter(this); }

  /// The texts said since the last call.
  Texts texts();
  /// There were `count` messages, and the last of them was this one. Forgets them all.
  void expectLast(std::size_t count, const std::string& text, const std::string& title,
                  QMessageBox::Icon icon);

  std::vector<QMessageBox::StandardButton> answers;
  /// Called at each message, before it is answered.
  std::function<void()> meanwhile;

 private:
  struct Said {
    std::string text, title;
    QMessageBox::Icon icon;
  };
  bool eventFilter(QObject* watched, QEvent* event) override;
  void answer(QMessageBox& box);

  std::vector<Said> said_;
};

/// The window of a form; a visible one if another is just being unloaded.
QWidget* window(const char* form);

/// A control or menu item by its name; the test stops where there is none.
template <class W = QWidget>
W* control(const char* form, const char* name) {
  W* found = window(form) ? window(form)->findChild<W*>(QString::fromUtf8(name)) : nullptr;
  if (!found) {
    ADD_FAILURE() << "no " << name << " in " << form;
    std::abort();
  }
  return found;
}
inline bool isEnabled(const char* form, const char* name) {
  return control(form, name)->isEnabled();
}

/// Presses a button of a form with the mouse.
void press(const char* form, const char* button);
/// Does `open`, which shows a window modally, and `act` in there.
void inModal(const std::function<void()>& open, const std::function<void()>& act);
/// Presses a button that shows a window modally, and does `act` in there.
void pressAndThen(const char* form, const char* button, const std::function<void()>& act);
/// Drops a file or folder on a control.
void drop(const char* form, const char* on, const std::filesystem::path& path);
/// Makes `text` that of a line edit or combo box, as if typed.
void type(const char* form, const char* box, const std::string& text);
/// Processes all pending events, deferred deletions included.
void settle();

/// What a widget shows at this moment.
QImage painted(QWidget* widget);
/// An empty box with a bitmap file, if it is one, at its top left. Bytes missing in it are 0.
QImage boxWith(Bytes bitmap, QSize box, int scale = 1);
/// The swatches of a form show these colours.
void expectSwatches(const char* form, const model::Colours& colours);

/// Unloads all forms and empties the shared state before and after each test. Temporary files go
/// to the test's own folder.
class WindowTest : public ::testing::Test {
 protected:
  WindowTest();
  ~WindowTest() override { reset(); }

  TempFolder folder;
  Messages messages;

 private:
  static void reset();
};

/// The main window over three folders of its own: "in" with the pictures, "out", "pal" with the
/// default palette in it. All flags are off unless a test sets them before `start`.
class MainWindowTest : public WindowTest {
 protected:
  MainWindowTest();

  static sys::Settings settings() { return sys::Settings(sys::App.Title, "Settings"); }
  void set(const char* key, const std::string& value);
  /// Creates and shows the window, as the program does.
  void start();
  /// A Kestrel Bitmap of 4 x 4 pixels in "in"; `seed` makes it another than the rest.
  Bytes addPicture(const std::string& name, int seed = 0);
  /// Clicks the names in the list, with Ctrl from the second one on.
  void select(const Texts& names);
  /// Selects the name and opens it into the preview.
  void preview(const std::string& name);

  const model::Colours colours = model::someColours(3);
};

}  // namespace mill::test
