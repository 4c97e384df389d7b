#include "platform/forms/dir_tree.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string_view>
#include <utility>

#include "platform/system/files.h"
#include "platform/system/paths.h"
#include "platform/system/text.h"

namespace forms {

namespace {

QTreeWidgetItem* makeItem(const std::string& name) {
  auto* item = new QTreeWidgetItem({sys::shown(name)});
  item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
  return item;
}

std::string pathOf(const QTreeWidgetItem* item) {
  std::string path = sys::bytesOf(item->text(0));
  while ((item = item->parent())) path = sys::join(sys::bytesOf(item->text(0)), path);
  // The root item is the drive itself, "Z:\".
  if (const std::size_t twice = path.find("\\\\"); twice != std::string::npos) path.erase(twice, 1);
  return path;
}

/// A drive's root is its own parent.
std::string parentOf(const std::string& path) {
  const std::size_t end = path.find_last_not_of('\\');
  const std::size_t separator = end == std::string::npos ? end : path.rfind('\\', end);
  if (separator == std::string::npos) return path.substr(0, 2) + "\\";
  return path.substr(0, std::max<std::size_t>(separator, 3));
}

/// The path with an upper-case drive and without "." and "..".
std::string withoutDots(std::string path) {
  if (path.size() < 2) return path;
  path[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(path[0])));
  std::replace(path.begin(), path.end(), '\\', '/');
  std::filesystem::path rest("/");
  rest += path.substr(2);
  path.resize(2);
  return path.append(sys::drivePath(rest.lexically_normal().string()), 2, std::string::npos);
}

}  // namespace

DirTree::DirTree(QWidget* parent, std::function<void()> change)
    : QTreeWidget(parent), change_([this, change = std::move(change)] {
        setToolTip({});  // which was about another directory
        if (change) change();
      }) {
  setAccessibleName(QStringLiteral("Directory"));
  setColumnCount(1);
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setIndentation(12);
  // Long names can be scrolled to instead of being cut off.
  header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  header()->setStretchLastSection(false);
  connect(this, &QTreeWidget::itemExpanded, this, &DirTree::fill);
  connect(this, &QTreeWidget::itemCollapsed, this, &DirTree::stayInSight);
  highlight("Z:\\");
  connect(this, &QTreeWidget::currentItemChanged, this, change_);
}

std::string DirTree::Path() const {
  std::string path = highlighted();
  while (!sys::isDirectory(path) && path.size() > 3) path = parentOf(path);
  return sys::isDirectory(path) ? path : "Z:\\";
}

std::string DirTree::highlighted() const {
  return currentItem() ? pathOf(currentItem()) : std::string();
}

void DirTree::setPath(const std::string& path) {
  std::string wanted = withoutDots(sys::drivePath(path));
  if (!sys::isDirectory(wanted.substr(0, 2))) return;
  while (!sys::isDirectory(wanted) && wanted != parentOf(wanted)) wanted = parentOf(wanted);
  const std::string before = highlighted();
  highlight(wanted);
  if (highlighted() != before) change_();
}

/// Reads the tree again down to an existing directory, since directories may have changed while the
/// dialog was hidden.
void DirTree::highlight(const std::string& directory) {
  const QSignalBlocker quiet(this);
  clear();
  QTreeWidgetItem* item = makeItem(directory.substr(0, 2) + "\\");
  addTopLevelItem(item);
  open(item);
  std::string_view rest(directory);
  rest.remove_prefix(2);
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\\'), rest.size());
    if (end > 0) open(item = child(item, std::string(rest.substr(0, end))));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  setCurrentItem(item);
  scrollTo(currentIndex(), PositionAtCenter);
}

void DirTree::keyPressEvent(QKeyEvent* event) {
  // Expanding everything would never end if a link leads back up.
  if (event->key() != Qt::Key_Asterisk) QTreeWidget::keyPressEvent(event);
}

/// Qt would scroll sideways to the middle of the widest name. Show the beginning of this name, and
/// of its parent if both fit.
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

void DirTree::stayInSight(const QTreeWidgetItem* collapsed) {
  for (auto* above = currentItem(); above; above = above->parent()) {
    if (above == collapsed) return setCurrentItem(above);
  }
}

void DirTree::open(QTreeWidgetItem* item) {
  fill(item);
  item->setExpanded(true);
}

void DirTree::fill(QTreeWidgetItem* item) {
  qDeleteAll(item->takeChildren());
  std::vector<std::string> names = sys::directoriesIn(pathOf(item));
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
    if (sys::bytesOf(item->child(i)->text(0)) == name) return item->child(i);
  }
  // A hidden or new directory: shown because it was requested.
  auto* made = makeItem(name);
  item->addChild(made);
  return made;
}

}  // namespace forms
