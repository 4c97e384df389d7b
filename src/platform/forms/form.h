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

/// The fixed properties of a window.
struct FormLook {
  const char* Name;
  const char* Caption;
  QSize Client;  ///< twips
  Border BorderStyle = Border::Fixed;
  StartUpPosition Position = StartUpPosition::System;
  bool ControlBox = true;  ///< has a close box; without one, Alt+F4 is refused as well
  bool MinButton = false;
  bool Icon = false;  ///< has the program's icon
  /// Of the client area on the screen, in twips, for `StartUpPosition::Manual`.
  QPoint At = {};
};

/// A window: a Qt dialog with the life cycle of a form. Its `Global` loads it at first use; after
/// that Qt's own functions show and hide it any number of times. An unloaded form is deleted by the
/// event loop, so a handler may unload its own form; the next use creates a new one.
class Form : public QDialog, public Container {
 public:
  explicit Form(const FormLook& look);
  ~Form() override;

  /// The loaded forms in loading order.
  static const std::vector<Form*>& loaded() { return loaded_; }
  /// The form that was active last; null before the first one. Message boxes and windows of other
  /// programs don't count.
  static Form* active() { return active_; }

  /// Calls `Form_Load`. Used by `Global` only.
  void load();
  /// Calls `Form_Unload`, then hides and deletes the form. The program ends with its last form.
  void Unload();
  bool isLoaded() const { return isLoaded_; }

  void setVisible(bool visible) override;
  /// Blocks the other windows until this one is hidden or unloaded. A hidden owner only affects
  /// placement.
  void showModal(Form* owner = active());
  /// Like `setWindowTitle`, but "[*]" isn't a placeholder.
  void setCaption(const std::string& caption);
  /// See `Hourglass`.
  void beginWait();
  void endWait();
  /// The window without its menu bar.
  QWidget* client() const { return host_; }

 protected:
  virtual void Form_Load() {}
  virtual void Form_Unload() {}
  /// Called by every `show`, and when another form hands the activation to this one.
  virtual void Form_Activate() {}
  /// Called when the size changes and when the window is minimised or restored.
  virtual void Form_Resize() {}
  /// Called when the user drops a file or folder on a window that accepts drops; `on` is the
  /// control below the mouse.
  virtual void Form_Drop(const QWidget* /*on*/, const std::string& /*path*/) {}

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
  /// Qt would place the window here; `place` does that instead.
  void showEvent(QShowEvent*) override {}
  /// Called for Escape.
  void reject() override;

 private:
  bool isTool() const { return look_.BorderStyle != Border::Fixed; }
  void place();
  bool isAttached() const;
  void passFocus();
  bool passesKeys() const;
  static bool passKey(QEvent* event);
  bool takeDrop(QDropEvent& event);
  void keepSize(const QSize& own);
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
  QSize orderedSize_;  ///< by a Wayland compositor, for an attached window
  int waits_ = 0;      ///< number of hourglasses
  bool isWaitEnding_ = false;
};

/// The only instance of a form class: `frmConvert->hide()`.
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
