#include "platform/forms/dir_tree.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

#include "platform/system/files.h"
#include "platform/system/paths.h"
#include "platform/system/text.h"

namespace forms {

namespace {

QTreeWidgetItem* makeItem(const std::string& name) {
  auto* item = new QTreeWidgetItem({shown(name)});
  item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
  return item;
}

std::string pathOf(const QTreeWidgetItem* item) {
  std::string path = bytesOf(item->text(0));
  while ((item = item->parent())) path = join(bytesOf(item->text(0)), path);
  // The root item is the drive itself, "Z:\".
  if (const std::size_t twice = path.find("\\\\"); twice != std::string::npos) path.erase(twice, 1);
  return path;
}

}  // namespace

std::string parentOf(const std::string& path) {
  const std::size_t end = path.find_last_not_of('\\');
  const std::size_t separator = end == std::string::npos ? end : path.rfind('\\', end);
  if (separator == std::string::npos) return path.substr(0, 2) + "\\";
  return path.substr(0, std::max<std::size_t>(separator, 3));
}

DirTree::DirTree(QWidget* parent) : QTreeWidget(parent) {
  setColumnCount(1);
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setIndentation(12);
  // A long name is read by scrolling, not cut.
  header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  header()->setStretchLastSection(false);
  connect(this, &QTreeWidget::itemExpanded, this, [this](QTreeWidgetItem* item) { fill(item); });
  // What is highlighted stays in sight.
  connect(this, &QTreeWidget::itemCollapsed, this, [this](QTreeWidgetItem* item) {
    for (auto* above = currentItem(); above; above = above->parent()) {
      if (above == item) return setCurrentItem(item);
    }
  });
  connect(this, &QTreeWidget::currentItemChanged, this, [this] { changed(); });
}

std::string DirTree::path() const {
  return currentItem() ? pathOf(currentItem()) : std::string();
}

void DirTree::keyPressEvent(QKeyEvent* event) {
  // Opening everything below would never end where a link leads back.
  if (event->key() != Qt::Key_Asterisk) QTreeWidget::keyPressEvent(event);
}

void DirTree::choose(const std::string& wanted) {
  const std::string before = path();
  {
    // Read anew each time: directories come and go while the dialog is hidden.
    const QSignalBlocker quiet(this);
    clear();
    QTreeWidgetItem* item = makeItem(wanted.substr(0, 2) + "\\");
    addTopLevelItem(item);
    open(item);
    std::string_view rest(wanted);
    rest.remove_prefix(2);
    while (!rest.empty()) {
      const std::size_t end = std::min(rest.find('\\'), rest.size());
      if (end > 0) open(item = child(item, std::string(rest.substr(0, end))));
      rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    setCurrentItem(item);
  }
  scrollTo(currentIndex(), PositionAtCenter);
  if (path() != before) changed();
}

/// Sideways, Qt would show the middle of the widest name. The beginning of this one is what counts,
/// with the directory that it stands in where there is room for both.
void DirTree::scrollTo(const QModelIndex& index, ScrollHint hint) {
  QScrollBar* bar = horizontalScrollBar();
  const int sideways = bar->value();
  QTreeWidget::scrollTo(index, hint);
  bar->setValue(sideways);
  const QRect name = visualRect(index);
  const int right = name.left() + sizeHintForIndex(index).width();
  if (name.left() < 0 || right > viewport()->width()) {
    bar->setValue(sideways + name.left() - 2 * indentation());
  }
}

void DirTree::open(QTreeWidgetItem* item) {
  fill(item);
  item->setExpanded(true);
}

void DirTree::fill(QTreeWidgetItem* item) {
  qDeleteAll(item->takeChildren());
  std::vector<std::string> names = directoriesIn(pathOf(item));
  std::sort(names.begin(), names.end());
  QList<QTreeWidgetItem*> children;
  for (const std::string& name : names) children.append(makeItem(name));
  item->addChildren(children);
  if (children.isEmpty()) {
    item->setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
  }
}

QTreeWidgetItem* DirTree::child(QTreeWidgetItem* item, const std::string& name) {
  for (int i = 0; i < item->childCount(); ++i) {
    if (bytesOf(item->child(i)->text(0)) == name) return item->child(i);
  }
  // A hidden directory, or one that was made since: shown because it was asked for.
  auto* made = makeItem(name);
  item->addChild(made);
  return made;
}

}  // namespace forms
