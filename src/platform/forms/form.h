#pragma once

#include <QDialog>
#include <QPointer>

#include <string>
#include <vector>

#include "platform/forms/container.h"

class QAction;
class QMenu;
class QMenuBar;

namespace forms {

enum class Border { Fixed, FixedTool, SizableTool };
enum class StartUpPosition { System, CentreScreen, CentreOwner, Manual };

/// What never changes about a window.
struct FormLook {
  const char* Name;
  const char* Caption;
  QSize Client;  ///< twips
  Border BorderStyle = Border::Fixed;
  StartUpPosition Position = StartUpPosition::System;
  bool ControlBox = true;  ///< has a close box; without one, Alt+F4 is refused too
  bool MinButton = false;
  bool Icon = false;  ///< carries the program's icon
  /// Of the client area on the screen, in twips, for `StartUpPosition::Manual`.
  QPoint At = {};
};

/// A window: a dialog of Qt's with the life that forms have. It is loaded once, by its `Global` at
/// first use, and may then be shown and hidden any number of times, by Qt's own functions. Unloaded
/// it is deleted when the event loop is back, so that a handler may unload the form that it belongs
/// to; the next use makes it anew.
class Form : public QDialog, public Container {
 public:
  explicit Form(const FormLook& look);
  ~Form() override;

  /// The loaded forms, in the order in which they were loaded.
  static const std::vector<Form*>& loaded() { return loaded_; }
  /// The window of this program that was active last; null before the first one. Message boxes and
  /// windows of other programs don't count.
  static Form* active() { return active_; }

  /// Raises `Form_Load`. Only `Global` calls it.
  void load();
  /// Raises `Form_Unload`, hides the form and ends it. The program ends with its last form.
  void Unload();
  bool isLoaded() const { return isLoaded_; }

  void setVisible(bool visible) override;
  /// Blocks the other windows and returns when this one has been hidden or unloaded. A hidden owner
  /// only affects placement.
  void showModal(Form* owner = active());
  /// Like `setWindowTitle`, but "[*]" stands for itself and not for a mark of changes.
  void setCaption(const std::string& caption);
  /// The hourglass; see `Hourglass`.
  void beginWait();
  void endWait();
  /// The window without its menu bar.
  QWidget* client() const { return host_; }

 protected:
  virtual void Form_Load() {}
  virtual void Form_Unload() {}
  /// Comes at every `show`, and when the activation moves here from another window of this program.
  virtual void Form_Activate() {}
  /// Comes at each change of size, and when the window is minimised and restored.
  virtual void Form_Resize() {}

  QMenu* menu(const char* name, const char* caption);
  QAction* menuItem(QMenu* menu, const char* name, const char* caption, const char* shortcut,
                    Handler click, Trait traits = Plain);
  QAction* separator(QMenu* menu, const char* name);

  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  /// Qt would place the window here; see `place`.
  void showEvent(QShowEvent*) override {}
  /// Escape.
  void reject() override;

 private:
  bool isTool() const { return look_.BorderStyle != Border::Fixed; }
  void place();
  void showFocus();
  bool isBlocked() const;
  void activated();
  void leave();
  Form* successor() const;

  inline static std::vector<Form*> loaded_;
  inline static QPointer<Form> active_;

  const FormLook look_;
  QMenuBar* menuBar_ = nullptr;
  QPointer<Form> owner_;  ///< while it is shown modally
  bool isLoaded_ = false;
  bool wasPlaced_ = false;
  int waits_ = 0;  ///< hourglasses that stand
  bool isWaitEnding_ = false;
};

/// The one instance of a form class, reached by the form's name: `frmConvert->hide()`.
template <class F>
class Global {
 public:
  F* operator->() { return &get(); }
  F& operator*() { return get(); }
  void load() { get(); }
  bool isLoaded() const { return form_ && form_->isLoaded(); }

 private:
  F& get() {
    if (!isLoaded()) {
      form_ = new F;
      form_->load();
    }
    return *form_;
  }

  QPointer<F> form_;
};

}  // namespace forms
