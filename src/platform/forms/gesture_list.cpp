#include "platform/forms/gesture_list.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace forms {

GestureList::GestureList(QWidget* parent, SelectionMode mode, std::function<void()> click,
                         std::function<void()> dblClick)
    : QListView(parent),
      click_(click ? std::move(click) : [] {}),
      dblClick_(dblClick ? std::move(dblClick) : [] {}) {
  setModel(&texts_);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(mode);
  const auto change = [this] { isChanged_ = true; };
  connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, change);
  connect(selectionModel(), &QItemSelectionModel::currentChanged, this, change);
}

QString GestureList::chosenText() const {
  const QItemSelection selection = selectionModel()->selection();
  if (selection.isEmpty()) return {};
  const QModelIndex current = currentIndex();
  const bool isOne = selection.size() == 1 && selection.first().height() == 1;
  const bool isTakenOut = isOne && !selection.contains(current);
  const QModelIndex chosen =
      isTakenOut || !current.isValid() ? QModelIndex(selection.first().topLeft()) : current;
  return chosen.data().toString();
}

void GestureList::mousePressEvent(QMouseEvent* event) {
  // Other buttons don't select.
  if (event->button() != Qt::LeftButton) return;
  gesture_ = indexAt(event->position().toPoint()).isValid() ? Gesture::OnRow : Gesture::OffRows;
  QListView::mousePressEvent(event);
}

void GestureList::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const bool onRow = indexAt(event->position().toPoint()).isValid();
  gesture_ = onRow ? Gesture::DoubleClick : Gesture::OffRows;
  QListView::mouseDoubleClickEvent(event);
}

void GestureList::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  QListView::mouseReleaseEvent(event);
  // Handlers may open windows, so they run after the gesture. A click on a row counts even if it
  // changes nothing, and so does one that clears the selection.
  const Gesture gesture = std::exchange(gesture_, Gesture::None);
  if (gesture == Gesture::DoubleClick) return dblClick_();
  const bool meansNone = gesture == Gesture::OffRows && selectionMode() == ExtendedSelection;
  if (gesture == Gesture::OnRow || meansNone) click_();
}

void GestureList::keyPressEvent(QKeyEvent* event) {
  isChanged_ = false;
  const bool steps = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
  const bool isFirst = !selectionModel()->hasSelection() && currentIndex().isValid();
  if (steps && isFirst && event->modifiers() == Qt::NoModifier) {
    // The first arrow key selects the current row instead of skipping it.
    selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
  } else {
    QListView::keyPressEvent(event);
  }
  if (isChanged_) click_();
}

}  // namespace forms
