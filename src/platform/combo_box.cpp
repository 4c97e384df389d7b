#include "platform/combo_box.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <utility>

#include "platform/text.h"

namespace forms {

namespace {

/// A wheel that turns over a closed box scrolls nothing away under the user's hand.
class CalmComboBox final : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void wheelEvent(QWheelEvent* event) override {
    if (hasFocus() && view()->isVisible()) return QComboBox::wheelEvent(event);
    event->ignore();
  }
};

}  // namespace

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
  as<QComboBox>()->setEditText(shown(text));
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
