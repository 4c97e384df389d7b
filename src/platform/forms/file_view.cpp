#include "platform/forms/file_view.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

#include "platform/system/text.h"

namespace forms {

void NameModel::setNames(std::vector<std::string> names) {
  beginResetModel();
  names_ = std::move(names);
  endResetModel();
}

void NameModel::addName(std::string name) {
  const int row = rowCount();
  beginInsertRows({}, row, row);
  names_.push_back(std::move(name));
  endInsertRows();
}

int NameModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(names_.size());
}

QVariant NameModel::data(const QModelIndex& index, int role) const {
  // Asked without an index for what to copy from an empty list.
  if (role != Qt::DisplayRole || !index.isValid()) return {};
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

void FileView::addName(std::string name) {
  model_.addName(std::move(name));
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
  return current < 0 || (one && !isSelected(current)) ? selection.first().top() : current;
}

void FileView::mousePressEvent(QMouseEvent* event) {
  // The other buttons select nothing.
  if (event->button() != Qt::LeftButton) return;
  gesture_ = indexAt(event->position().toPoint()).isValid() ? Gesture::OnItem : Gesture::OffItems;
  QListView::mousePressEvent(event);
}

void FileView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const bool onItem = indexAt(event->position().toPoint()).isValid();
  gesture_ = onItem ? Gesture::DoubleClick : Gesture::OffItems;
  QListView::mouseDoubleClickEvent(event);
}

void FileView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  QListView::mouseReleaseEvent(event);
  // The handlers may open windows, so they run when the gesture is over. A click on a file counts
  // even where it changes nothing, and so does one that means no file.
  const Gesture gesture = std::exchange(gesture_, Gesture::None);
  if (gesture == Gesture::DoubleClick) return doubleClicked();
  const bool meansNone = gesture == Gesture::OffItems && selectionMode() == ExtendedSelection;
  if (gesture == Gesture::OnItem || meansNone) clicked();
}

void FileView::keyPressEvent(QKeyEvent* event) {
  changed_ = false;
  const bool steps = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
  const bool isFirst = !selectionModel()->hasSelection() && currentIndex().isValid();
  if (steps && isFirst && event->modifiers() == Qt::NoModifier) {
    // It leads to the file that the focus came to, not to the one behind.
    selectionModel()->select(currentIndex(), QItemSelectionModel::ClearAndSelect);
  } else {
    QListView::keyPressEvent(event);
  }
  if (changed_) clicked();
}

}  // namespace forms
