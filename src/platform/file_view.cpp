#include "platform/file_view.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

#include "platform/text.h"

namespace forms {

void NameModel::setNames(std::vector<std::string> names) {
  beginResetModel();
  names_ = std::move(names);
  endResetModel();
}

int NameModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(names_.size());
}

QVariant NameModel::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole) return {};
  return shown(names_[static_cast<std::size_t>(index.row())]);
}

FileView::FileView(QWidget* parent, bool extended) : QListView(parent) {
  setModel(&model_);
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(extended ? ExtendedSelection : SingleSelection);
  connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    changed_ = true;
    selectedIsStale_ = true;
  });
  connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this] { changed_ = true; });
}

void FileView::setNames(std::vector<std::string> names) {
  model_.setNames(std::move(names));
  selectedIsStale_ = true;
}

bool FileView::isSelected(int row) const {
  if (std::exchange(selectedIsStale_, false)) {
    selected_.assign(names().size(), false);
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
      for (int at = range.top(); at <= range.bottom(); ++at) {
        selected_[static_cast<std::size_t>(at)] = true;
      }
    }
  }
  return selected_[static_cast<std::size_t>(row)];
}

int FileView::chosenRow() const {
  const QItemSelection selection = selectionModel()->selection();
  if (selection.isEmpty()) return -1;
  const int current = currentIndex().row();
  const bool one = selection.size() == 1 && selection.first().height() == 1;
  return one && !isSelected(current) ? selection.first().top() : current;
}

void FileView::mousePressEvent(QMouseEvent* event) {
  changed_ = false;
  gesture_ = event->button() == Qt::LeftButton ? Gesture::Click : Gesture::None;
  QListView::mousePressEvent(event);
  // A press on no item selects nothing unless it takes a selection away.
  if (!indexAt(event->position().toPoint()).isValid() && !changed_) gesture_ = Gesture::None;
}

void FileView::mouseDoubleClickEvent(QMouseEvent* event) {
  const bool onItem = indexAt(event->position().toPoint()).isValid();
  gesture_ = event->button() == Qt::LeftButton && onItem ? Gesture::DoubleClick : Gesture::None;
  QListView::mouseDoubleClickEvent(event);
}

void FileView::mouseReleaseEvent(QMouseEvent* event) {
  QListView::mouseReleaseEvent(event);
  // The handlers may open windows, so they run when the gesture is over.
  switch (std::exchange(gesture_, Gesture::None)) {
    case Gesture::Click:
      clicked();
      break;
    case Gesture::DoubleClick:
      doubleClicked();
      break;
    case Gesture::None:
      break;
  }
}

void FileView::keyPressEvent(QKeyEvent* event) {
  changed_ = false;
  QListView::keyPressEvent(event);
  if (changed_) clicked();
}

void FileView::focusInEvent(QFocusEvent* event) {
  const bool hadCurrent = currentIndex().isValid();
  QListView::focusInEvent(event);
  // Coming here by Tab chooses no file yet.
  if (!hadCurrent) selectionModel()->clearCurrentIndex();
}

}  // namespace forms
