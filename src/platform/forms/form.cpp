#include "platform/forms/form.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QIcon>
#include <QScreen>
#include <QWindow>

#include <algorithm>

#include "platform/forms/application.h"
#include "platform/forms/shell.h"
#include "platform/system/text.h"

namespace forms {

namespace {

bool isToolWindow(const FormLook& look) {
  return look.BorderStyle == Border::FixedToolWindow ||
         look.BorderStyle == Border::SizableToolWindow;
}

Qt::WindowFlags windowFlags(const FormLook& look) {
  const Qt::WindowFlags kind = isToolWindow(look) ? Qt::Tool
                               : look.MinButton   ? Qt::Window
                                                  : Qt::Dialog;
  Qt::WindowFlags flags = kind | Qt::CustomizeWindowHint;
  // Without a text and a button there is no title bar.
  if (*look.Caption || look.ControlBox) flags |= Qt::WindowTitleHint;
  if (look.ControlBox) flags |= Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  if (look.MinButton) flags |= Qt::WindowMinimizeButtonHint;
  return flags;
}

/// In every size in which it is built into the program.
QIcon programIcon() {
  QIcon icon;
  const QDir pictures(QStringLiteral(":/icon"));
  for (const QString& file : pictures.entryList()) icon.addFile(pictures.filePath(file));
  return icon;
}

/// Holds an unloaded form until the event loop deletes it.
class Grave final : public QObject {
 public:
  std::unique_ptr<Form> form;
};

}  // namespace

Form::Form(const FormLook& look)
    : look_(look),
      shell_(new Shell(*this, windowFlags(look),
                       QSize(pixels(look.Client.Width), pixels(look.Client.Height)),
                       look.BorderStyle != Border::SizableToolWindow)) {
  shell_->setObjectName(look.Name);
  if (look.Icon) shell_->setWindowIcon(programIcon());
  // A tool window comes up beside the window that is in use and leaves it in use.
  shell_->setAttribute(Qt::WA_ShowWithoutActivating, isToolWindow(look));
  setCaption(look.Caption);
}

Form::~Form() {
  Screen.forget(*this);
  delete shell_;
}

QWidget* Form::host() {
  return shell_->client();
}

QMenuBar* Form::menuBar() {
  return shell_->menuBar();
}

void Form::setCaption(const std::string& caption) {
  if (caption == caption_) return;
  caption_ = caption;
  // Qt takes "[*]" in a title for its mark of a changed document; doubled it stands for itself.
  shell_->setWindowTitle(shown(caption).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
  shell_->setAccessibleName(shown(caption));
}

bool Form::Visible() const {
  return shell_->isVisible();
}

void Form::setClientSize(std::int64_t width, std::int64_t height) {
  const QSize screen = shell_->screen()->virtualSize();
  const auto within = [](std::int64_t size, int limit) {
    return static_cast<int>(std::clamp<std::int64_t>(size, 1, limit));
  };
  shell_->resize(within(width, screen.width()), within(height, screen.height()));
}

int Form::ScaleHeight() const {
  return shell_->client()->height() * kTwipsPerPixel;
}

int Form::ScaleWidth() const {
  return shell_->client()->width() * kTwipsPerPixel;
}

WindowState Form::WindowState() const {
  if (shell_->isMinimized()) return forms::WindowState::Minimised;
  return shell_->isMaximized() ? forms::WindowState::Maximised : forms::WindowState::Normal;
}

void Form::setMousePointer(Pointer pointer) {
  if (pointer == pointer_) return;
  pointer_ = pointer;
  if (pointer == vbHourglass) {
    if (shell_->cursor().shape() != Qt::WaitCursor) shell_->setCursor(Qt::WaitCursor);
    return;
  }
  if (std::exchange(pointerPending_, true)) return;
  QMetaObject::invokeMethod(
      shell_,
      [this] {
        pointerPending_ = false;
        if (pointer_ == vbDefault) shell_->unsetCursor();
      },
      Qt::QueuedConnection);
}

void Form::Show() {
  place(nullptr);
  present();
}

void Form::Show(Mode mode) {
  Form* active = Screen.ActiveForm();
  Show(mode, active ? *active : *this);
}

void Form::Show(Mode mode, Form& owner) {
  // Only a window that comes up anew can become modal.
  shell_->hide();
  place(owner.Visible() ? &owner : nullptr);
  if (mode == vbModeless) return present();
  owner_ = &owner;
  QEventLoop loop;
  shell_->loop = &loop;
  shell_->setWindowModality(Qt::ApplicationModal);
  modal_ = true;
  present();
  // Nothing of the form is touched behind the loop: it may have been unloaded and be gone.
  if (shell_->loop) loop.exec();
}

void Form::place(Form* owner) {
  if (!placed_) shell_->fitToClient();
  if (owner) {
    shell_->winId();
    shell_->windowHandle()->setTransientParent(owner->shell_->windowHandle());
  } else if (!placed_ && !look_.MinButton) {
    // Shown by itself, a dialog stays out of the task bar as a tool window does.
    shell_->setWindowFlag(Qt::Tool);
  }
  const QSize size = shell_->size();
  if (look_.Position == StartUpPosition::CentreOwner && owner) {
    const QPoint centre = owner->shell_->frameGeometry().center();
    shell_->move(centre - QPoint(size.width() / 2, size.height() / 2));
  } else if (!placed_) {
    if (look_.Position == StartUpPosition::Manual) {
      shell_->setGeometry(QRect(QPoint(pixels(look_.At.Left), pixels(look_.At.Top)), size));
    } else if (isToolWindow(look_)) {
      placeBesideMain();
    } else if (look_.Position != StartUpPosition::System) {
      const QPoint centre = QGuiApplication::primaryScreen()->availableGeometry().center();
      shell_->move(centre - QPoint(size.width() / 2, size.height() / 2));
    }
  }
  placed_ = true;
}

/// The main window comes up in the middle of the screen, where a desktop would put a tool window
/// that is shown before it.
void Form::placeBesideMain() {
  constexpr int kGap = 12;
  constexpr QMargins kFramePixels(1, 22, 1, 5);
  const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
  QRect main(QPoint(), Forms[0].shell_->size());
  main.moveCenter(screen.center());
  if (Forms[0].Visible()) main = Forms[0].shell_->geometry();
  const QSize size = shell_->size();
  const QRect inner = screen - kFramePixels;
  // Takes the first of these places that is free of all windows from that one on.
  const auto take = [&](std::initializer_list<QPoint> places, int first) {
    for (const QPoint& place : places) {
      const QRect whole = QRect(place, size) + kFramePixels;
      bool isFree = screen.contains(whole);
      for (int i = first; i < Forms.Count(); ++i) {
        isFree &= !Forms[i].Visible() || !whole.intersects(Forms[i].shell_->frameGeometry());
      }
      if (!isFree) continue;
      shell_->setGeometry(QRect(place, size));
      return true;
    }
    return false;
  };
  const bool beside = take({QPoint(main.right() + kGap, main.top()),
                            QPoint(main.left() - kGap - size.width(), main.top()),
                            QPoint(main.left(), main.bottom() + kGap + kFramePixels.top())},
                           0);
  // On a small screen in a corner, partly behind the main window.
  const QPoint lastCorner = inner.bottomRight() - QPoint(size.width(), size.height());
  if (!beside) take({inner.topLeft(), lastCorner}, 1);
}

void Form::present() {
  const bool wasVisible = Visible();
  if (isToolWindow(look_)) shell_->setWindowState(shell_->windowState() & ~Qt::WindowMinimized);
  shell_->show();
  if (!wasVisible) shell_->focusFirst();
  if (!isToolWindow(look_)) shell_->activateWindow();
  Screen.show(*this);
}

void Form::Hide() {
  // Without a place of its own a window that comes back is placed anew by the desktop.
  if (Visible()) shell_->windowHandle()->setFramePosition(shell_->frameGeometry().topLeft());
  shell_->hide();
  leave();
}

void Form::Refresh() {
  shell_->repaint();
}

void Form::leave() {
  const bool wasModal = std::exchange(modal_, false);
  Screen.forget(*this);
  owner_ = nullptr;  // which may be gone before this window is shown again
  // Left to itself, a desktop may give the focus to no window at all.
  Form* next = Screen.ActiveForm();
  if (wasModal && next && next->Visible()) next->shell_->activateWindow();
  if (QEventLoop* loop = std::exchange(shell_->loop, nullptr)) loop->quit();
}

void Form::Unload() {
  if (!std::exchange(loaded_, false)) return;
  Form_Unload();
  Hide();
  Forms.remove(*this);
}

void Form::closeBox() {
  if (!look_.ControlBox) return;
  if (isToolWindow(look_)) return Hide();
  Unload();
}

void Form::activated() {
  // A desktop may still report a window that has been hidden meanwhile.
  if (loaded_ && Visible()) Screen.activate(*this);
}

void FormCollection::add(std::unique_ptr<Form> form, std::function<void()> forget) {
  Form& added = *form;
  entries_.push_back({std::move(form), std::move(forget)});
  added.loaded_ = true;
  added.Form_Load();
}

void FormCollection::remove(Form& form) {
  const auto entry = std::find_if(entries_.begin(), entries_.end(),
                                  [&](const Entry& e) { return e.form.get() == &form; });
  if (entry == entries_.end()) return;
  entry->forget();
  // The caller may be one of the form's own handlers, so the form goes when the event loop is back.
  auto* grave = new Grave;
  grave->form = std::move(entry->form);
  grave->deleteLater();
  entries_.erase(entry);
  if (entries_.empty() && onLastUnloaded) onLastUnloaded();
}

void ScreenInfo::show(Form& form) {
  if (form.modal_) modal_.push_back(&form);
  // A tool window comes up to date, but the window in use stays the active one.
  if (!isToolWindow(form.look_) || !active_) active_ = &form;
  form.Form_Activate();
}

void ScreenInfo::activate(Form& form) {
  // A desktop may hand the focus to a window that a modal one blocks; that activates nothing.
  if (active_ == &form || (!modal_.empty() && modal_.back() != &form)) return;
  active_ = &form;
  form.Form_Activate();
}

void ScreenInfo::forget(Form& form) {
  std::erase(modal_, &form);
  if (active_ != &form) return;
  active_ = nullptr;
  if (!modal_.empty()) return activate(*modal_.back());
  if (form.owner_ && form.owner_->Visible()) return activate(*form.owner_);
  for (int i = 0; i < Forms.Count(); ++i) {
    if (Forms[i].Visible()) return activate(Forms[i]);
  }
}

}  // namespace forms
