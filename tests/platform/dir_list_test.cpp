#include <QTest>
#include <QTreeWidget>

#include "platform/file_controls.h"
#include "platform/form.h"
#include "support/windows.h"

namespace mill {
namespace {

class TreeForm final : public forms::Form {
 public:
  TreeForm()
      : Form({.Name = "frmTree",
              .Caption = "",
              .BorderStyle = forms::Border::FixedSingle,
              .Client = {3000, 6000}}) {}

  int changes = 0;
  void change() { ++changes; }

  forms::DirListBox Dir1{*this, "Dir1", {0, 0, 3000, 6000}, &TreeForm::change};
};

forms::Global<TreeForm> frmTree;

class DirList : public test::WindowTest {
 protected:
  DirList() {
    for (const char* name : {"a/deep/er", "b"}) folder.makeFolder(name);
    frmTree->Show();
  }
  ~DirList() override { frmTree->Unload(); }

  forms::DirListBox& tree() { return frmTree->Dir1; }
  std::vector<std::string> childrenOfCurrent() {
    std::vector<std::string> names;
    const auto* item = test::control<QTreeWidget>("frmTree", "Dir1")->currentItem();
    for (int i = 0; i < item->childCount(); ++i) {
      names.push_back(item->child(i)->text(0).toStdString());
    }
    return names;
  }
};

TEST_F(DirList, ShowsDirectoriesThatHaveComeAndNotThoseThatHaveGone) {
  tree().setPath(folder.drive());
  EXPECT_EQ(childrenOfCurrent(), (std::vector<std::string>{"a", "b"}));
  folder.makeFolder("new");
  std::filesystem::remove(folder.path("b"));
  tree().setPath(folder.drive());
  EXPECT_EQ(childrenOfCurrent(), (std::vector<std::string>{"a", "new"}));
  EXPECT_EQ(frmTree->changes, 1);
}

TEST_F(DirList, GivesTheNearestDirectoryThatExists) {
  const std::string root = folder.drive();
  const std::pair<std::string, std::string> cases[] = {
      {root + "\\a\\deep", root + "\\a\\deep"},
      {root + "\\a\\gone\\on", root + "\\a"},
      {root + "\\a\\deep\\..", root + "\\a"},
      {folder.path("a").string() + "/", root + "\\a"},
      {"z:/" + root.substr(3), root},
      {"Q:\\x", root},
      {"relative", root},
      {"Z:\\gone", "Z:\\"}};
  for (const auto& [path, expected] : cases) {
    tree().setPath(path);
    EXPECT_EQ(tree().Path(), expected) << path;
  }
  tree().setPath(folder.drive("a/deep/er"));
  std::filesystem::remove(folder.path("a/deep/er"));
  EXPECT_EQ(tree().Path(), folder.drive("a/deep"));
}

TEST_F(DirList, AnArrowKeyChooses) {
  tree().setPath(folder.drive("a"));
  QTest::keyClick(test::control("frmTree", "Dir1"), Qt::Key_Down);
  EXPECT_EQ(tree().Path(), folder.drive("a/deep"));
  EXPECT_EQ(frmTree->changes, 2);
}

}  // namespace
}  // namespace mill
