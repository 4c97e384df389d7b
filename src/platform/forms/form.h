#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/forms/geometry.h"

class QWidget;
class QMenuBar;

namespace forms {

class Form;
class Shell;

enum class Border { FixedSingle, FixedDialog, FixedToolWindow, SizableToolWindow };
enum class StartUpPosition { System, CentreScreen, CentreOwner, Manual };
enum class WindowState { Normal = 0, Minimised = 1, Maximised = 2 };
enum Mode { vbModeless = 0, vbModal = 1 };
enum Pointer { vbDefault = 0, vbHourglass = 11 };

/// What never changes about a window, as its catalogue gives it.
struct FormLook {
  const char* Name;
  const char* Caption;
  Border BorderStyle;
  Size Client;
  StartUpPosition Position = StartUpPosition::System;
  bool ControlBox = true;
  bool MinButton = false;
  /// Carries the program's icon.
  bool Icon = false;
  /// Left and top of the client area on the screen, for `StartUpPosition::Manual`.
  Rect At = {};
};

/// What controls can stand in: a form or a frame.
class Container {
 public:
  Container(const Container&) = delete;
  Container& operator=(const Container&) = delete;

  virtual QWidget* host() = 0;
  virtual Form& form() = 0;

  /// A label lends its caption to the next control that has none, as that control's accessible
  /// name.
  void lendLabel(std::string caption) { label_ = std::move(caption); }
  std::string takeLabel() { return std::exchange(label_, {}); }

 protected:
  Container() = default;
  virtual ~Container() = default;

 private:
  std::string label_;
};

/// A window. Each form class has one instance, held by its `Global`, which loads it at first use.
/// An unloaded form lives on until the event loop has come back, so that a handler may unload the
/// form that it belongs to.
class Form : public Container {
 public:
  explicit Form(const FormLook& look);
  ~Form() override;

  /// Returns at once.
  void Show();
  /// As below, owned by the active form.
  void Show(Mode mode);
  /// With `vbModal` returns when the window has been hidden or unloaded. An owner that isn't
  /// visible only loses its say in where the window opens.
  void Show(Mode mode, Form& owner);
  void Hide();
  void Unload();
  /// Paints the window now, for a handler that won't be back in the event loop for a while.
  void Refresh();

  const std::string& Caption() const { return caption_; }
  void setCaption(const std::string& caption);
  bool Visible() const;
  /// Gives the client area this size in pixels, but none that is larger than the screen.
  void setClientSize(std::int64_t width, std::int64_t height);
  /// The client area in twips.
  int ScaleHeight() const;
  int ScaleWidth() const;
  forms::WindowState WindowState() const;
  Pointer MousePointer() const { return pointer_; }
  /// Takes effect at once; the way back to the default pointer waits for the event loop, so that a
  /// long run of short operations doesn't flicker.
  void setMousePointer(Pointer pointer);
  /// Tells this window from every other one.
  const void* hWnd() const { return shell_; }

  QWidget* host() override;
  Form& form() override { return *this; }
  QMenuBar* menuBar();

 protected:
  virtual void Form_Load() {}
  virtual void Form_Unload() {}
  virtual void Form_Activate() {}
  virtual void Form_Resize() {}

 private:
  friend class Shell;
  friend class FormCollection;
  friend class ScreenInfo;

  void place(Form* owner);
  void placeBesideMain();
  void present();
  void leave();
  void activated();
  void closeBox();

  const FormLook look_;
  Shell* shell_;
  std::string caption_;
  Form* owner_ = nullptr;  ///< while it is shown modally
  Pointer pointer_ = vbDefault;
  bool loaded_ = false;
  bool placed_ = false;
  bool modal_ = false;
  bool pointerPending_ = false;
};

/// The loaded forms, in the order in which they were loaded.
class FormCollection {
 public:
  /// Called when the last form has been unloaded.
  std::function<void()> onLastUnloaded;

  FormCollection() = default;
  /// At the program's own end no form is left. At a sudden one, as when the screen goes away, the
  /// windows went before, and the forms are left alone.
  ~FormCollection() {
    for (Entry& entry : entries_) static_cast<void>(entry.form.release());
  }
  FormCollection(const FormCollection&) = delete;
  FormCollection& operator=(const FormCollection&) = delete;

  int Count() const { return static_cast<int>(entries_.size()); }
  Form& operator[](int index) { return *entries_[static_cast<std::size_t>(index)].form; }

  /// Takes a new form and loads it; `*slot` is its global instance until it is unloaded.
  template <class F>
  void load(F*& slot) {
    auto made = std::make_unique<F>();
    slot = made.get();
    add(std::move(made), [&slot] { slot = nullptr; });
  }

 private:
  friend class Form;
  struct Entry {
    std::unique_ptr<Form> form;
    std::function<void()> forget;
  };
  void add(std::unique_ptr<Form> form, std::function<void()> forget);
  void remove(Form& form);

  std::vector<Entry> entries_;
};

inline FormCollection Forms;

/// The one instance of a form class, reached by the form's name: `frmConvert->Hide()`.
template <class F>
class Global {
 public:
  F* operator->() { return &get(); }
  F& operator*() { return get(); }
  void Load() { get(); }
  bool isLoaded() const { return instance_ != nullptr; }

 private:
  F& get() {
    if (!instance_) Forms.load(instance_);
    return *instance_;
  }

  F* instance_ = nullptr;
};

}  // namespace forms
