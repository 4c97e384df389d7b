#include "platform/forms/file_controls.h"

#include <QComboBox>
#include <QSignalBlocker>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <utility>

#include "platform/forms/calm_combo_box.h"
#include "platform/forms/dir_tree.h"
#include "platform/forms/file_view.h"
#include "platform/system/files.h"
#include "platform/system/paths.h"
#include "platform/system/text.h"

namespace forms {

namespace {

/// The path with an upper-case drive and with its "." and ".." worked out.
std::string withoutDots(std::string path) {
  if (path.size() < 2) return path;
  path[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(path[0])));
  std::replace(path.begin(), path.end(), '\\', '/');
  std::filesystem::path rest("/");
  rest += path.substr(2);
  path.resize(2);
  return path.append(drivePath(rest.lexically_normal().string()), 2, std::string::npos);
}

}  // namespace

DriveListBox::DriveListBox(Container& parent, const char* name, const Rect& place, Handler change)
    : Control(parent, name, new CalmComboBox(parent.host()), place) {
  auto* box = as<QComboBox>();
  box->setAccessibleName(QStringLiteral("Drive"));
  readDrives();
  box->setCurrentText(QStringLiteral("Z:"));
  QObject::connect(box, &QComboBox::currentIndexChanged,
                   [this, change = std::move(change)] { change(form_); });
}

/// Drives come and go; the present one stays where it is still there.
void DriveListBox::readDrives() {
  auto* box = as<QComboBox>();
  const QSignalBlocker quiet(box);
  const QString present = box->currentText();
  box->clear();
  for (const std::string& drive : drives()) box->addItem(shown(drive));
  box->setCurrentText(present);
}

std::string DriveListBox::Drive() const {
  return bytesOf(as<QComboBox>()->currentText());
}

void DriveListBox::setDrive(const std::string& drive) {
  readDrives();
  auto* box = as<QComboBox>();
  const int index = box->findText(shown(drive), Qt::MatchFixedString);
  if (index >= 0) box->setCurrentIndex(index);
}

DirListBox::DirListBox(Container& parent, const char* name, const Rect& place, Handler change)
    : Control(parent, name, new DirTree(parent.host()), place) {
  auto* tree = as<DirTree>();
  tree->setAccessibleName(QStringLiteral("Directory"));
  tree->choose("Z:\\");
  tree->changed = [this, change = std::move(change)] { change(form_); };
}

std::string DirListBox::Path() const {
  std::string path = as<DirTree>()->path();
  while (!isDirectory(path) && path.size() > 3) path = parentOf(path);
  return path;
}

void DirListBox::setPath(const std::string& path) {
  std::string wanted = withoutDots(drivePath(path));
  if (!isDirectory(wanted.substr(0, 2))) return;
  while (!isDirectory(wanted) && wanted != parentOf(wanted)) wanted = parentOf(wanted);
  as<DirTree>()->choose(wanted);
}

FileListBox::FileListBox(Container& parent, const char* name, const Rect& place,
                         const char* pattern, MultiSelect multi, Handler click, Handler dblClick)
    : Control(parent, name, new FileView(parent.host(), multi == MultiSelect::Extended), place),
      pattern_(pattern) {
  auto* view = as<FileView>();
  view->setAccessibleName(QStringLiteral("Files"));
  view->clicked = [this, click = std::move(click)] { click(form_); };
  view->doubleClicked = [this, dblClick = std::move(dblClick)] { dblClick(form_); };
}

void FileListBox::setPath(const std::string& path) {
  path_ = drivePath(path);
  reload();
}

void FileListBox::setPattern(const std::string& pattern) {
  pattern_ = pattern;
  reload();
}

void FileListBox::reload() {
  std::vector<std::string> names = filesIn(path_, pattern_);
  const auto lower = [](char c) { return std::tolower(static_cast<unsigned char>(c)); };
  std::sort(names.begin(), names.end(), [&](const std::string& a, const std::string& b) {
    const auto [atA, atB] = std::mismatch(a.begin(), a.end(), b.begin(), b.end(),
                                          [&](char x, char y) { return lower(x) == lower(y); });
    if (atA == a.end() && atB == b.end()) return a < b;
    if (atA == a.end() || atB == b.end()) return atA == a.end();
    return lower(*atA) < lower(*atB);
  });
  as<FileView>()->setNames(std::move(names));
}

int FileListBox::ListCount() const {
  return static_cast<int>(as<FileView>()->names().size());
}

const std::string& FileListBox::List(int index) const {
  return as<FileView>()->names()[static_cast<std::size_t>(index)];
}

bool FileListBox::Selected(int index) const {
  return as<FileView>()->isSelected(index);
}

std::string FileListBox::FileName() const {
  const int row = as<FileView>()->chosenRow();
  return row < 0 ? std::string() : List(row);
}

}  // namespace forms
