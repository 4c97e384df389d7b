#include "platform/forms/gesture_list.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>

#include <utility>

#include "platform/forms/plain_text.h"

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

/// Other buttons don't select. Off the rows there is only something to clear.
bool GestureList::begins(const QMouseEvent& event) const {
  const bool onRow = indexAt(event.position().toPoint()).isValid();
  return event.button() == Qt::LeftButton && (onRow || selectionMode() != SingleSelection);
}

void GestureList::mousePressEvent(QMouseEvent* event) {
  if (!begins(*event)) return;
  gesture_ = Gesture::Click;
  QListView::mousePressEvent(event);
}

void GestureList::mouseMoveEvent(QMouseEvent* event) {
  if (gesture_ != Gesture::None) QListView::mouseMoveEvent(event);
}

void GestureList::mouseDoubleClickEvent(QMouseEvent* event) {
  if (!begins(*event)) return;
  gesture_ = Gesture::DoubleClick;
  QListView::mouseDoubleClickEvent(event);  // off the rows, it is another press
}

void GestureList::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  QListView::mouseReleaseEvent(event);
  // Handlers may open windows, so they run after the gesture. A click counts even if it changes
  // nothing.
  const Gesture gesture = std::exchange(gesture_, Gesture::None);
  if (gesture == Gesture::DoubleClick) dblClick_();
  if (gesture == Gesture::Click) click_();
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

bool GestureList::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QListView::viewportEvent(event);
  const auto& help = static_cast<QHelpEvent&>(*event);
  const QModelIndex at = indexAt(help.pos());
  const bool isCut = at.isValid() && sizeHintForIndex(at).width() > viewport()->width();
  if (!isCut) return QListView::viewportEvent(event);
  QToolTip::showText(help.globalPos(), plainToolTip(at.data().toString()), viewport());
  return true;
}

}  // namespace forms
