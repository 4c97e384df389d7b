#include "platform/forms/form.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QIcon>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScreen>
#include <QUrl>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

#include "platform/forms/hourglass.h"
#include "platform/forms/window_font.h"
#include "platform/system/paths.h"
#include "platform/system/text.h"

namespace forms {

namespace {

Qt::WindowFlags flagsOf(const FormLook& look) {
  const Qt::WindowFlags kind = look.BorderStyle != Border::Fixed ? Qt::Tool
                               : look.MinButton                  ? Qt::Window
                                                                 : Qt::Dialog;
  Qt::WindowFlags flags = kind | Qt::CustomizeWindowHint;
  // A window without caption and close box has no title bar.
  if (*look.Caption || look.ControlBox) flags |= Qt::WindowTitleHint;
  if (look.ControlBox) flags |= Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  if (look.MinButton) flags |= Qt::WindowMinimizeButtonHint;
  return flags;
}

/// In every size that is built into the program.
QIcon programIcon() {
  QIcon icon;
  const QDir pictures(QStringLiteral(":/icon"));
  for (const QString& file : pictures.entryList()) icon.addFile(pictures.filePath(file));
  return icon;
}

/// The file or folder that is being dragged, in drive form; empty if it is anything else.
std::string draggedPath(const QDropEvent& event) {
  const QList<QUrl> urls = event.mimeData()->urls();
  if (urls.isEmpty() || !urls.front().isLocalFile()) return {};
  // A name is bytes, which Qt's own conversion would take for UTF-8.
  const QByteArray path = urls.front().path(QUrl::FullyEncoded).toLatin1();
  return sys::drivePath(QByteArray::fromPercentEncoding(path).toStdString());
}

}  // namespace

Form::Form(const FormLook& look) : QDialog(nullptr, flagsOf(look)), look_(look) {
  setObjectName(QString::fromUtf8(look.Name));
  setFont(windowFont());
  setCaption(look.Caption);
  if (look.Icon) setWindowIcon(programIcon());
  // Showing a tool window doesn't take the focus from the window in use.
  setAttribute(Qt::WA_ShowWithoutActivating, isTool());

  const QSize client(pixels(look.Client.width()), pixels(look.Client.height()));
  host_ = new QWidget(this);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(host_);
  if (look.BorderStyle == Border::SizableTool) {
    resize(client);
  } else {
    host_->setFixedSize(client);
    layout->setSizeConstraint(QLayout::SetFixedSize);
  }
}

Form::~Form() {
  std::erase(loaded_, this);
}

void Form::load() {
  isLoaded_ = true;
  loaded_.push_back(this);
  const auto buttons = findChildren<QPushButton*>();
  const bool hasDefault =
      std::any_of(buttons.begin(), buttons.end(),
                  [](const QPushButton* button) { return button->isDefault(); });
  // Without a default button, Qt would use the first auto-default one.
  for (QPushButton* button : buttons) button->setAutoDefault(hasDefault);
  fitCaptions(*this);
  Form_Load();
}

void Form::Unload() {
  if (!isLoaded_) return;
  isLoaded_ = false;
  Form_Unload();
  hide();
  std::erase(loaded_, this);
  deleteLater();
  if (loaded_.empty()) QCoreApplication::quit();
}

void Form::setCaption(const std::string& caption) {
  setWindowTitle(sys::shown(caption).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
}

void Form::setVisible(bool visible) {
  if (visible) {
    if (isAttached() && !loaded_.front()->isVisible()) {
      if (!loaded_.front()->isHidden()) return;  // it is about to be shown, for this window's sake
      loaded_.front()->show();
    }
    place();
    if (!isVisible()) showFocus();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    // A tool window is updated when shown, but the window in use stays active.
    if (!isTool() || !active_) active_ = this;
    QDialog::setVisible(true);
    if (!isTool()) activateWindow();
    Form_Activate();
  } else if (isVisible()) {
    // An explicit position keeps the desktop from placing the window again each time it is shown.
    windowHandle()->setGeometry(geometry());
    QDialog::setVisible(false);
    leave();
  }
}

void Form::showModal(Form* owner) {
  // Qt can't make a visible window modal.
  hide();
  owner_ = owner == this ? nullptr : owner;
  exec();
}

void Form::place() {
  const Form* owner = owner_ && owner_->isVisible() ? owner_.data() : nullptr;
  // A dialog without owner stays out of the task bar, like a tool window.
  if (!owner && !wasPlaced_ && !look_.MinButton) setWindowFlag(Qt::Tool);
  layout()->activate();
  winId();
  windowHandle()->installEventFilter(this);
  if (owner) windowHandle()->setTransientParent(owner->windowHandle());
  if (isAttached()) {
    windowHandle()->setTransientParent(loaded_.front()->windowHandle());
    if (!isVisible()) orderedSize_ = size();
  }

  const auto centreOn = [this](const QPoint& centre) {
    move(centre - QPoint(width() / 2, height() / 2));
  };
  if (look_.Position == StartUpPosition::CentreOwner && owner) {
    centreOn(owner->frameGeometry().center());
  } else if (!wasPlaced_ && look_.Position == StartUpPosition::Manual) {
    setGeometry(QRect(QPoint(pixels(look_.At.x()), pixels(look_.At.y())), size()));
  } else if (!wasPlaced_ && look_.Position != StartUpPosition::System) {
    centreOn(QGuiApplication::primaryScreen()->availableGeometry().center());
  }
  wasPlaced_ = true;
}

/// Wayland compositors place windows themselves. They keep a tool window near the window that it is
/// attached to, and let it float even if they tile the others.
bool Form::isAttached() const {
  return isTool() && !loaded_.empty() && loaded_.front() != this &&
         QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

/// Shows the focus from the start in windows opened by the keyboard.
void Form::showFocus() {
  const QWidget* before = QApplication::activeWindow();
  setAttribute(Qt::WA_KeyboardFocusChange,
               before && before->testAttribute(Qt::WA_KeyboardFocusChange));
}

/// Whether another modal window blocks this one.
bool Form::isBlocked() const {
  const QWidget* modal = QApplication::activeModalWidget();
  return modal && modal != this;
}

void Form::activated() {
  // Desktops may focus a blocked window or report one that has been hidden since; ignore that.
  if (active_ == this || !isVisible() || isBlocked()) return;
  active_ = this;
  Form_Activate();
}

void Form::leave() {
  // When shown again, the focus starts at the first control or, among buttons only, at the default.
  if (QWidget* focus = focusWidget()) focus->clearFocus();
  if (active_ == this) {
    active_ = successor();
    if (active_) active_->Form_Activate();
  }
  owner_ = nullptr;
  // Some desktops would leave no window focused.
  if (isModal() && active_ && active_->isVisible()) active_->activateWindow();
}

/// The form that becomes active when this one goes.
Form* Form::successor() const {
  if (auto* modal = dynamic_cast<Form*>(QApplication::activeModalWidget())) return modal;
  if (owner_ && owner_->isVisible()) return owner_;
  const auto visible = std::find_if(loaded_.begin(), loaded_.end(),
                                    [](const Form* form) { return form->isVisible(); });
  return visible == loaded_.end() ? nullptr : *visible;
}

void Form::beginWait() {
  if (waits_++ == 0 && !isWaitEnding_) setCursor(Qt::WaitCursor);
}

void Form::endWait() {
  if (--waits_ > 0 || std::exchange(isWaitEnding_, true)) return;
  const auto end = [this] {
    isWaitEnding_ = false;
    if (waits_ == 0) unsetCursor();
  };
  QMetaObject::invokeMethod(this, end, Qt::QueuedConnection);
}

bool Form::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::WindowActivate:
      isAttached() ? passFocus() : activated();
      break;
    case QEvent::ShortcutOverride:
      if (passesKeys()) return passKey(event);
      break;
    default:
      break;
  }
  return QDialog::event(event);
}

/// Compositors give the focus to each window that is shown, and some give it to an attached window
/// when the main window is clicked. The window in use stays active and gets the keys.
void Form::passFocus() {
  const auto pass = [] {
    if (active_ && !active_->isBlocked()) QApplication::setActiveWindow(active_);
  };
  QMetaObject::invokeMethod(this, pass, Qt::QueuedConnection);
}

bool Form::passesKeys() const {
  return isAttached() && active_ && active_ != this;
}

bool Form::passKey(QEvent* event) {
  QWidget* focus = active_->focusWidget();
  return QCoreApplication::sendEvent(focus ? focus : active_.data(), event) && event->isAccepted();
}

/// Takes a file or folder before a box would insert its path as text.
bool Form::takeDrop(QDropEvent& event) {
  const std::string path = draggedPath(event);
  if (path.empty() || !acceptDrops() || isBlocked()) return false;
  // The file is read, not moved, whatever the other program proposes.
  event.setDropAction(Qt::CopyAction);
  event.accept();
  if (event.type() != QEvent::Drop) return true;
  // Later, since handlers may open windows, and the other program waits for the end of the drop.
  const auto drop = [this, path, on = QPointer(childAt(event.position().toPoint()))] {
    if (!isBlocked()) Form_Drop(on, path);
  };
  QMetaObject::invokeMethod(this, drop, Qt::QueuedConnection);
  return true;
}

/// Also discards input that was queued before the window was hidden, such as the second half of a
/// double click on its button.
bool Form::eventFilter(QObject* watched, QEvent* event) {
  if (watched != windowHandle()) return false;
  const auto type = event->type();
  if (type == QEvent::DragEnter || type == QEvent::DragMove || type == QEvent::Drop) {
    return takeDrop(static_cast<QDropEvent&>(*event));
  }
  const bool isKey = type == QEvent::KeyPress || type == QEvent::KeyRelease;
  if (isKey && passesKeys()) {
    QCoreApplication::sendEvent(active_->windowHandle(), event);
    return true;
  }
  const bool isInput = type >= QEvent::MouseButtonPress && type <= QEvent::KeyPress;
  return !isVisible() && isInput;
}

void Form::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (!look_.ControlBox || isBlocked()) return;
  isTool() ? hide() : Unload();
}

void Form::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::WindowStateChange && isLoaded_) Form_Resize();
}

void Form::resizeEvent(QResizeEvent* event) {
  QDialog::resizeEvent(event);
  if (isAttached() && event->spontaneous()) keepSize(event->oldSize());
  if (isLoaded_) Form_Resize();
}

/// Some compositors, whenever the focus moves, repeat the size they ordered last, although the
/// window has taken another one since.
void Form::keepSize(const QSize& own) {
  if (std::exchange(orderedSize_, size()) != size()) return;
  QMetaObject::invokeMethod(
      this, [this, own] { resize(own); }, Qt::QueuedConnection);
}

void Form::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == 0;
  auto* focused = dynamic_cast<Button*>(focusWidget());
  if (isEnter && event->isAutoRepeat()) return;
  if (isEnter && isPlain && focused) return focused->click();
  QDialog::keyPressEvent(event);
}

void Form::reject() {
  for (QPushButton* button : findChildren<QPushButton*>()) {
    if (static_cast<Button*>(button)->isCancel) return button->click();
  }
}

Hourglass::Hourglass() : form_(Form::active()) {
  if (form_) form_->beginWait();
}

Hourglass::~Hourglass() {
  if (form_) form_->endWait();
}

QMenu* Form::menu(const char* name, const char* caption) {
  if (!menuBar_) {
    menuBar_ = new QMenuBar(this);
    menuBar_->setNativeMenuBar(false);
    layout()->setMenuBar(menuBar_);
  }
  QMenu* menu = menuBar_->addMenu(QString::fromUtf8(caption));
  menu->setObjectName(QString::fromUtf8(name));
  menu->setFont(windowFont());
  return menu;
}

QAction* Form::menuItem(QMenu* menu, const char* name, const char* caption, const char* shortcut,
                        Handler click, Trait traits) {
  QAction* item = menu->addAction(QString::fromUtf8(caption));
  item->setObjectName(QString::fromUtf8(name));
  item->setShortcut(QKeySequence(QString::fromUtf8(shortcut)));
  item->setEnabled((traits & Disabled) == 0);
  connect(item, &QAction::triggered, this, std::move(click));
  return item;
}

QAction* Form::separator(QMenu* menu, const char* name) {
  QAction* item = menu->addSeparator();
  item->setObjectName(QString::fromUtf8(name));
  return item;
}

}  // namespace forms
