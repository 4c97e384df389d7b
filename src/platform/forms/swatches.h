#pragma once

#include <QTableView>

#include <functional>

#include "formats/picture_record.h"

namespace forms {

class SwatchModel;

/// A palette as 16 × 16 swatches, row by row, that neighbours share the lines between. The arrow
/// keys move, a click, Enter or Space chooses; a tool tip tells of each swatch.
class Swatches final : public QTableView {
 public:
  /// Without `choose` there is nothing to choose, and the current swatch is marked only while the
  /// view has the focus.
  explicit Swatches(QWidget* parent, std::function<void(int index)> choose = {});

  /// All colours together cost one repaint, and none where nothing changes.
  void setColours(const mill::ColourTable& colours);
  /// Makes a swatch the current one; it chooses nothing.
  void setCurrent(int index);

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void choose();

  SwatchModel* model_;
  std::function<void(int)> choose_;
};

}  // namespace forms
