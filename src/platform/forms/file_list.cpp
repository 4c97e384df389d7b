#include "platform/forms/file_list.h"

#include <QScrollBar>

#include <algorithm>
#include <cctype>
#include <utility>

#include "platform/system/files.h"
#include "platform/system/paths.h"
#include "platform/system/text.h"

namespace forms {

namespace {

/// Ignores case unless names differ in nothing else.
bool comesBefore(const std::string& a, const std::string& b) {
  const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
  const auto [atA, atB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
                                        [&](char x, char y) { return lower(x) == lower(y); });
  if (atA == a.end() && atB == b.end()) return a < b;
  if (atA == a.end() || atB == b.end()) return atA == a.end();
  return lower(*atA) < lower(*atB);
}

}  // namespace

FileList::FileList(QWidget* parent, std::string pattern, SelectionMode mode,
                   std::function<void()> click, std::function<void()> dblClick)
    : GestureList(parent, mode, std::move(click), std::move(dblClick)),
      pattern_(std::move(pattern)) {
  setAccessibleName(QStringLiteral("Files"));
}

void FileList::setPath(const std::string& path) {
  path_ = sys::drivePath(path);
  reload();
}

void FileList::setPattern(const std::string& pattern) {
  pattern_ = pattern;
  reload();
}

void FileList::refresh() {
  const std::vector<std::string> kept = selectedNames();
  const std::string current = sys::bytesOf(currentIndex().data().toString());
  const int top = verticalScrollBar()->value();
  reload();
  QItemSelection selection;
  QModelIndex at;
  int begin = -1;  // of a range of selected rows
  for (int row = 0; row <= model()->rowCount(); ++row) {
    const QModelIndex index = model()->index(row, 0);
    const std::string name = sys::bytesOf(index.data().toString());
    if (index.isValid() && name == current) at = index;
    const bool isKept =
        index.isValid() && std::binary_search(kept.begin(), kept.end(), name, comesBefore);
    if (isKept && begin < 0) begin = row;
    if (isKept || begin < 0) continue;
    selection.select(model()->index(std::exchange(begin, -1), 0), model()->index(row - 1, 0));
  }
  selectionModel()->setCurrentIndex(at, QItemSelectionModel::NoUpdate);
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  verticalScrollBar()->setValue(top);
}

bool FileList::isStale() const {
  return sys::stampOf(path_) != stamp_;
}

void FileList::reload() {
  stamp_ = sys::stampOf(path_);
  std::vector<std::string> names = sys::filesIn(path_, pattern_);
  std::sort(names.begin(), names.end(), comesBefore);
  QStringList texts;
  texts.reserve(static_cast<qsizetype>(names.size()));
  for (const std::string& name : names) texts.append(sys::shown(name));
  setTexts(texts);
}

void FileList::select(const std::string& name) {
  const auto row = static_cast<int>(texts().indexOf(sys::shown(name)));
  clearSelection();
  setCurrentIndex(model()->index(row, 0));
}

std::vector<std::string> FileList::selectedNames() const {
  const QStringList all = texts();
  std::vector<bool> isSelected(static_cast<std::size_t>(all.size()));
  // Read by range: asking row by row takes seconds for a scattered selection.
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); row <= range.bottom(); ++row) {
      isSelected[static_cast<std::size_t>(row)] = true;
    }
  }
  std::vector<std::string> names;
  for (qsizetype row = 0; row < all.size(); ++row) {
    if (isSelected[static_cast<std::size_t>(row)]) names.push_back(sys::bytesOf(all[row]));
  }
  return names;
}

std::string FileList::FileName() const {
  return sys::bytesOf(chosenText());
}

}  // namespace forms
