#include "platform/forms/swatches.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>

#include <utility>

namespace forms {

namespace {

constexpr int kSide = 16;

/// "Entry 108: 200, 10, 30 (#C80A1E)".
QString inWords(int index, const QColor& colour) {
  return QStringLiteral("Entry %1: %2, %3, %4 (%5)")
      .arg(index)
      .arg(colour.red())
      .arg(colour.green())
      .arg(colour.blue())
      .arg(colour.name().toUpper());
}

/// Paints one swatch with the lines around it.
class SwatchDelegate final : public QStyledItemDelegate {
 public:
  SwatchDelegate(Swatches* view, bool marksAlways)
      : QStyledItemDelegate(view), view_(view), marksAlways_(marksAlways) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const QVariant colour = index.data(Qt::BackgroundRole);
    painter->setPen(option.palette.color(QPalette::Dark));
    painter->setBrush(colour.isValid() ? colour.value<QColor>()
                                       : option.palette.color(QPalette::Window));
    painter->drawRect(option.rect);
    if (index != view_->currentIndex() || !(marksAlways_ || view_->hasFocus())) return;
    // One of the two is visible on any colour.
    painter->setBrush(Qt::NoBrush);
    painter->setPen(Qt::white);
    painter->drawRect(option.rect.adjusted(1, 1, -1, -1));
    painter->setPen(Qt::black);
    painter->drawRect(option.rect.adjusted(2, 2, -2, -2));
  }

 private:
  const Swatches* view_;
  const bool marksAlways_;
};

}  // namespace

/// The colours by row and column; empty until they are set.
class SwatchModel final : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void setColours(const mill::ColourTable& colours) {
    if (std::exchange(isSet_, true) && colours == colours_) return;
    colours_ = colours;
    Q_EMIT dataChanged(index(0, 0), index(kSide - 1, kSide - 1));
  }

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : kSide;
  }
  int columnCount(const QModelIndex& parent = {}) const override { return rowCount(parent); }

  QVariant data(const QModelIndex& at, int role) const override {
    if (!at.isValid()) return {};
    const int index = kSide * at.row() + at.column();
    if (!isSet_ && role == Qt::AccessibleTextRole) return QStringLiteral("Entry %1").arg(index);
    if (!isSet_) return {};
    const mill::ColourEntry& entry = colours_[static_cast<std::size_t>(index)];
    const QColor colour(entry.Red, entry.Green, entry.Blue);
    switch (role) {
      case Qt::BackgroundRole:
        return colour;
      case Qt::ToolTipRole:
      case Qt::AccessibleTextRole:
        return inWords(index, colour);
      default:
        return {};
    }
  }

 private:
  mill::ColourTable colours_{};
  bool isSet_ = false;
};

Swatches::Swatches(QWidget* parent, std::function<void(int)> choose)
    : QTableView(parent), model_(new SwatchModel(this)), choose_(std::move(choose)) {
  setAccessibleName(QStringLiteral("Palette"));
  setModel(model_);
  setItemDelegate(new SwatchDelegate(this, choose_ != nullptr));
  setFrameStyle(NoFrame);
  setShowGrid(false);
  setSelectionMode(NoSelection);
  setTabKeyNavigation(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  for (QHeaderView* header : {horizontalHeader(), verticalHeader()}) {
    header->hide();
    header->setMinimumSectionSize(1);
    header->setSectionResizeMode(QHeaderView::Fixed);
  }
}

void Swatches::setColours(const mill::ColourTable& colours) {
  model_->setColours(colours);
}

void Swatches::setCurrent(int index) {
  setCurrentIndex(model_->index(index / kSide, index % kSide));
}

bool Swatches::choose() {
  const QModelIndex at = currentIndex();
  if (!choose_ || !at.isValid()) return false;
  choose_(kSide * at.row() + at.column());
  return true;
}

/// The closing line at the right and bottom belongs to no swatch.
void Swatches::resizeEvent(QResizeEvent* event) {
  horizontalHeader()->setDefaultSectionSize((width() - 1) / kSide);
  verticalHeader()->setDefaultSectionSize((height() - 1) / kSide);
  QTableView::resizeEvent(event);
}

void Swatches::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) QTableView::mousePressEvent(event);
}

/// The mark follows the mouse until the button is released; that swatch is chosen.
void Swatches::mouseReleaseEvent(QMouseEvent* event) {
  QTableView::mouseReleaseEvent(event);
  if (event->button() == Qt::LeftButton) choose();
}

void Swatches::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!choose()) event->ignore();
      return;
    default:
      QTableView::keyPressEvent(event);
  }
}

}  // namespace forms
