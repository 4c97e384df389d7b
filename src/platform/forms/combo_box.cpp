#include "platform/forms/combo_box.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <utility>

#include "platform/system/paths.h"
#include "platform/system/text.h"

namespace forms {

void CalmComboBox::wheelEvent(QWheelEvent* event) {
  if (hasFocus() && view()->isVisible()) return QComboBox::wheelEvent(event);
  event->ignore();
}

void CalmComboBox::keyPressEvent(QKeyEvent* event) {
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  isEnter && !isEditable() ? event->ignore() : QComboBox::keyPressEvent(event);
}

ComboBox::ComboBox(QWidget* parent, std::function<void()> change, std::function<void()> click)
    : CalmComboBox(parent), change_(change ? std::move(change) : [] {}) {
  setEditable(true);
  setInsertPolicy(NoInsert);
  setCompleter(nullptr);
  // Qt would report typing an entry's text as picking it.
  disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
  connect(lineEdit(), &QLineEdit::textEdited, this, change_);
  connect(this, &QComboBox::activated, this, click ? std::move(click) : change_);
}

std::string ComboBox::Text() const {
  return sys::bytesOf(currentText());
}

void ComboBox::setText(const std::string& text) {
  if (text == Text()) return;
  const QString wanted = sys::shown(text);
  setCurrentIndex(findText(wanted, Qt::MatchExactly | Qt::MatchCaseSensitive));
  setEditText(wanted);
  change_();
}

void ComboBox::AddItem(const std::string& entry) {
  // Qt would make the first entry the current text.
  const QSignalBlocker quiet(this);
  const QString text = currentText();
  const int index = currentIndex();
  addItem(sys::shown(entry));
  setCurrentIndex(index);
  setEditText(text);
}

void ComboBox::pick(const std::string& entry) {
  if (findText(sys::shown(entry), Qt::MatchExactly | Qt::MatchCaseSensitive) < 0) AddItem(entry);
  setText(entry);
}

DriveBox::DriveBox(QWidget* parent, std::function<void()> change) : CalmComboBox(parent) {
  setAccessibleName(QStringLiteral("Drive"));
  readDrives();
  if (change) connect(this, &QComboBox::currentIndexChanged, this, std::move(change));
}

/// Drives may have changed; the current one is kept if it still exists.
void DriveBox::readDrives() {
  const QString present = currentText();
  {
    const QSignalBlocker quiet(this);
    clear();
    for (const std::string& drive : sys::drives()) addItem(sys::shown(drive));
    setCurrentIndex(findText(present));
  }
  if (currentIndex() < 0) setCurrentText(QStringLiteral("Z:"));
}

std::string DriveBox::Drive() const {
  return sys::bytesOf(currentText());
}

void DriveBox::setDrive(const std::string& drive) {
  readDrives();
  const int index = findText(sys::shown(drive), Qt::MatchFixedString);
  if (index >= 0) setCurrentIndex(index);
}

}  // namespace forms
