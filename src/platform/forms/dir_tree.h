#pragma once

#include <QTreeWidget>

#include <functional>
#include <string>

namespace forms {

/// The parent directory of a path in drive form; a drive's root is its own parent.
std::string parentOf(const std::string& path);

/// The directories of one drive. Each level is read whenever it is opened.
class DirTree final : public QTreeWidget {
 public:
  explicit DirTree(QWidget* parent);

  /// The highlighted directory, in drive form.
  std::string path() const;
  /// Opens the tree down to an existing directory and highlights it.
  void choose(const std::string& path);

  /// Called when another directory is highlighted, by the user or by `choose`.
  std::function<void()> changed = [] {};

  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void open(QTreeWidgetItem* item);
  void fill(QTreeWidgetItem* item);
  QTreeWidgetItem* child(QTreeWidgetItem* item, const std::string& name);
};

}  // namespace forms
