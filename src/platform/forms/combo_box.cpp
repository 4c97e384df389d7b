#include "platform/forms/combo_box.h"

#include <QLineEdit>
#include <QSignalBlocker>

#include <utility>

#include "platform/forms/calm_combo_box.h"
#include "platform/system/text.h"

namespace forms {

ComboBox::ComboBox(Container& parent, const char* name, const Rect& place, Handler change,
                   Handler click)
    : Control(parent, name, new CalmComboBox(parent.host()), place), change_(std::move(change)) {
  borrowLabel(parent);
  auto* box = as<QComboBox>();
  box->setEditable(true);
  box->setInsertPolicy(QComboBox::NoInsert);
  box->setCompleter(nullptr);
  box->lineEdit()->setAccessibleName(box->accessibleName());
  // When the typing ends on an entry's text, Qt would report that as a pick.
  QObject::disconnect(box->lineEdit(), &QLineEdit::editingFinished, box, nullptr);
  QObject::connect(box->lineEdit(), &QLineEdit::textEdited, [this] { change_(form_); });
  QObject::connect(box, &QComboBox::activated, [this, click = std::move(click)] { click(form_); });
}

std::string ComboBox::Text() const {
  return bytesOf(as<QComboBox>()->currentText());
}

void ComboBox::setText(const std::string& text) {
  if (text == Text()) return;
  auto* box = as<QComboBox>();
  box->setCurrentIndex(box->findText(shown(text), Qt::MatchExactly | Qt::MatchCaseSensitive));
  box->setEditText(shown(text));
  change_(form_);
}

void ComboBox::AddItem(const std::string& entry) {
  // A first entry would become the current one and the text.
  auto* box = as<QComboBox>();
  const QSignalBlocker quiet(box);
  const QString text = box->currentText();
  const int index = box->currentIndex();
  box->addItem(shown(entry));
  box->setCurrentIndex(index);
  box->setEditText(text);
}

void ComboBox::pick(const std::string& entry) {
  int index = 0;
  while (index < ListCount() && List(index) != entry) ++index;
  if (index == ListCount()) AddItem(entry);
  setText(entry);
}

int ComboBox::ListCount() const {
  return as<QComboBox>()->count();
}

std::string ComboBox::List(int index) const {
  return bytesOf(as<QComboBox>()->itemText(index));
}

}  // namespace forms
