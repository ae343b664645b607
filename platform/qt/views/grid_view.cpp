#include "platform/qt/views/grid_view.h"

#include <QHeaderView>
#include <QIcon>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTextDocument>
#include <algorithm>

#include "platform/code_page.h"
#include "platform/qt/views/colours.h"
#include "platform/qt/views/grid_model.h"

namespace {

constexpr Colour kLineColour = Rgb(192, 192, 192);
constexpr Colour kEmptyAreaColour = Rgb(68, 102, 166);
constexpr QSize kPictureSize(19, 18);
// Pixels between the edge of a cell and its text.
constexpr int kTextMargin = 2;

int Pixels(int twips) {
  return std::max(twips / kTwipsPerPixel, 0);
}

QFont FontOf(const GridTable& table, int row, int column, QFont font) {
  const CellFormat& format = table.Format(row, column);
  const std::string& name = table.FontNameOf(format);
  if (!name.empty()) font.setFamilies({QString::fromStdString(name)});
  if (format.FontSize > 0) font.setPointSize(format.FontSize);
  font.setBold(format.FontBold);
  return font;
}

// Of the border that shows the focus, in pixels.
constexpr int kFocusWidth = 2;

void DrawFocus(QWidget& widget, const QPalette& colours, const QRect& place) {
  QPainter painter(&widget);
  painter.setPen(QPen(colours.color(QPalette::Highlight), kFocusWidth));
  painter.drawRect(place.adjusted(1, 1, -1, -1));
}

// Along the right and the lower edge.
void DrawLines(QPainter& painter, const QRect& cell) {
  painter.setPen(ToQColor(kLineColour));
  painter.drawLine(cell.topRight(), cell.bottomRight());
  painter.drawLine(cell.bottomLeft(), cell.bottomRight());
}

class CellPainter : public QStyledItemDelegate {
 public:
  CellPainter(const GridTable& table, const QString& pictureFolder, QObject* parent)
      : QStyledItemDelegate(parent), table_(table) {
    for (const GridPicture picture : {GridPicture::Step, GridPicture::Break, GridPicture::Both}) {
      pictures_[static_cast<std::size_t>(picture)] =
          QIcon(pictureFolder + '/' + PictureName(picture) + ".png");
    }
  }

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    const CellFormat& format = table_.Format(index.row(), index.column());
    painter->fillRect(option.rect, ToQColor(format.BackColor));
    if (table_.GridLines() != 0) DrawLines(*painter, option.rect);
    DrawPicture(*painter, option.rect, format);
    painter->setPen(ToQColor(format.ForeColor));
    painter->setFont(FontOf(table_, index.row(), index.column(), option.font));
    painter->drawText(option.rect.adjusted(kTextMargin, 0, -kTextMargin, 0),
                      Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                      CellText(table_, index.row(), index.column()));
  }

 private:
  void DrawPicture(QPainter& painter, const QRect& cell, const CellFormat& format) const {
    if (format.Picture == GridPicture::None) return;
    constexpr std::uint8_t kCentred = 4;
    QRect place(cell.topLeft(), kPictureSize);
    if (format.PictureAlignment == kCentred) place.moveCenter(cell.center());
    pictures_[static_cast<std::size_t>(format.Picture)].paint(&painter, place);
  }

  const GridTable& table_;
  // By GridPicture.
  std::array<QIcon, 4> pictures_;
};

// The fixed column.
class LineNumbers : public QHeaderView {
 public:
  LineNumbers(const GridTable& table, GridView* parent)
      : QHeaderView(Qt::Vertical, parent), table_(table), grid_(*parent) {
    setSectionResizeMode(QHeaderView::Fixed);
    setMinimumSectionSize(1);
  }

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int row) const override {
    const bool isCurrent = grid_.FocusRow() == row;
    painter->fillRect(rect, isCurrent ? palette().highlight() : palette().button());
    if (table_.GridLines() != 0) DrawLines(*painter, rect);
    const QString number = CellText(table_, row, 0);
    const QRect space = rect.adjusted(kTextMargin, 0, -kTextMargin, 0);
    QFont numberFont = FontOf(table_, row, 0, font());
    const int width = QFontMetrics(numberFont).horizontalAdvance(number);
    // A long number stays whole in a narrow column.
    if (width > space.width()) {
      numberFont.setPointSizeF(std::max(numberFont.pointSizeF() * space.width() / width, 1.0));
    }
    painter->setFont(numberFont);
    painter->setPen(palette().color(isCurrent ? QPalette::HighlightedText : QPalette::ButtonText));
    painter->drawText(space, Qt::AlignVCenter | Qt::AlignRight, number);
  }
  void paintEvent(QPaintEvent* event) override {
    QHeaderView::paintEvent(event);
    const int end = length() - offset();
    if (end >= viewport()->height()) return;
    QPainter(viewport())
        .fillRect(0, end, width(), viewport()->height() - end, ToQColor(kEmptyAreaColour));
  }
  // A header keeps the pixels beside a border for sizing, also where rows have fixed sizes.
  void mousePressEvent(QMouseEvent* event) override {
    const int row = logicalIndexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton && row >= 0) emit sectionPressed(row);
  }

 private:
  const GridTable& table_;
  const GridView& grid_;
};

// The fixed row.
class Head : public QHeaderView {
 public:
  Head(const GridTable& table, QWidget* parent)
      : QHeaderView(Qt::Horizontal, parent), table_(table) {
    setMinimumSectionSize(1);
  }

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int /*column*/) const override {
    painter->fillRect(rect, palette().button());
    if (table_.GridLines() != 0) DrawLines(*painter, rect);
  }

 private:
  const GridTable& table_;
};

}  // namespace

GridView::GridView(GridTable& table, const QString& pictureFolder, QWidget* parent)
    : QTableView(parent), table_(table), model_(new GridModel(table, this)) {
  setVerticalHeader(new LineNumbers(table_, this));
  horizontalHeader()->hide();
  horizontalHeader()->setMinimumSectionSize(1);
  setModel(model_);
  setItemDelegate(new CellPainter(table_, pictureFolder, this));
  setFrameShape(QFrame::NoFrame);
  setShowGrid(false);
  setSelectionMode(QAbstractItemView::NoSelection);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  setTabKeyNavigation(false);
  QPalette colours = palette();
  colours.setColor(QPalette::Base, ToQColor(kEmptyAreaColour));
  setPalette(colours);

  table_.Watch([this](const GridChange& change) { FollowTable(change); });
  table_.TopRow.Watch([this](int) {
    if (!applying_) ApplyTopRow();
  });
  table_.ToolTipText.Watch([this](const std::string& text) {
    const QString plain = QString::fromStdString(CodePageToUtf8(text));
    setToolTip(Qt::mightBeRichText(plain) ? Qt::convertFromPlainText(plain) : plain);
  });
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int row) {
    if (applying_ || !isVisible()) return;
    const QScopedValueRollback applying(applying_, true);
    table_.TopRow = row;
  });
  connect(verticalHeader(), &QHeaderView::sectionPressed, this, [this](int row) {
    table_.MouseRow = row;
    table_.MouseCol = 0;
    MakeCurrent(row);
    if (Click) Click();
  });
  connect(verticalHeader(), &QHeaderView::sectionDoubleClicked, this, [this](int row) {
    table_.MouseRow = row;
    table_.MouseCol = 0;
    if (DblClick) DblClick();
  });
}

GridView::~GridView() {
  table_.Watch({});
  table_.TopRow.Watch({});
  table_.ToolTipText.Watch({});
}

void GridView::FixFirstRow() {
  hasFixedRow_ = true;
  setHorizontalHeader(new Head(table_, this));
  ApplyLayout();
}

void GridView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  TellMouseCell(event->position().toPoint());
  MakeCurrent(table_.MouseRow);
  if (Click) Click();
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  TellMouseCell(event->position().toPoint());
  if (DblClick) DblClick();
}

// Keys that a control over the grid has left arrive here as well.
void GridView::keyPressEvent(QKeyEvent* event) {
  const int row = FocusRow();
  const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == 0;
  const auto act = [&](int column, const std::function<void()>& handler) {
    table_.MouseRow = row;
    table_.MouseCol = column;
    if (handler) handler();
  };
  switch (isPlain && row >= 0 ? event->key() : Qt::Key_unknown) {
    case Qt::Key_Space:
      return act(kMarkColumn, Click);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
      return act(kTextColumn, DblClick);
    default:
      QTableView::keyPressEvent(event);
  }
}

void GridView::focusInEvent(QFocusEvent* event) {
  QTableView::focusInEvent(event);
  if (!currentIndex().isValid()) MakeCurrent(table_.TopRow);
  ShowFocus();
}

void GridView::focusOutEvent(QFocusEvent* event) {
  QTableView::focusOutEvent(event);
  ShowFocus();
}

void GridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  ShowFocus();
}

void GridView::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (!hasFocus()) return;
  const int row = FocusRow();
  const QRect whole = viewport()->rect();
  DrawFocus(*viewport(), palette(),
            row < 0 ? whole : QRect(0, rowViewportPosition(row), whole.width(), rowHeight(row)));
}

// The row in which the keys act; it is brought into view by them alone.
void GridView::MakeCurrent(int row) {
  if (!Click) return;
  setAutoScroll(false);
  setCurrentIndex(model_->index(row, kTextColumn));
  setAutoScroll(true);
}

void GridView::ShowFocus() {
  viewport()->update();
  verticalHeader()->viewport()->update();
}

// Rows come into view, columns stay where they are: the marks are in the first.
void GridView::scrollTo(const QModelIndex& index, ScrollHint hint) {
  const int left = horizontalScrollBar()->value();
  QTableView::scrollTo(index, hint);
  horizontalScrollBar()->setValue(left);
}

// There is nothing to select or drag.
void GridView::mouseMoveEvent(QMouseEvent* /*event*/) {}
void GridView::mouseReleaseEvent(QMouseEvent* /*event*/) {}

void GridView::showEvent(QShowEvent* event) {
  QTableView::showEvent(event);
  ApplyFont();
  ApplyTopRow();
}

void GridView::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  if (dy != 0) AlignTopRow();
  if (hasFocus()) ShowFocus();
}

void GridView::updateGeometries() {
  QTableView::updateGeometries();
  AlignTopRow();
}

void GridView::FollowTable(const GridChange& change) {
  const QScopedValueRollback applying(applying_, true);
  if (change.All) {
    const int row = currentIndex().row();
    model_->TellOfAll();
    MakeCurrent(std::max(row, 0));
  } else {
    model_->TellOfRows(change.First, change.Last);
  }
  if (change.All || change.First != change.Last) {
    ApplyLayout();
  } else if (rowHeight(change.First) != Pixels(table_.RowHeight(change.First))) {
    setRowHeight(change.First, Pixels(table_.RowHeight(change.First)));
  }
}

void GridView::ApplyLayout() {
  const int numbersWidth = Pixels(table_.ColWidth(kLineNumberColumn));
  verticalHeader()->setFixedWidth(numbersWidth);
  verticalHeader()->setVisible(numbersWidth > 0);
  setColumnHidden(kLineNumberColumn, true);
  for (int column = kMarkColumn; column < GridTable::kColumns; ++column) {
    const int width = Pixels(table_.ColWidth(column));
    setColumnHidden(column, width == 0);
    if (width > 0) setColumnWidth(column, width);
  }
  // Nearly always all rows have one height.
  const int height = table_.Rows() > 0 ? Pixels(table_.RowHeight(0)) : 1;
  verticalHeader()->setDefaultSectionSize(std::max(height, 1));
  for (int row = 1; row < table_.Rows(); ++row) {
    const int own = Pixels(table_.RowHeight(row));
    if (own != height || own != rowHeight(row)) setRowHeight(row, own);
  }
  if (hasFixedRow_) {
    horizontalHeader()->setFixedHeight(Pixels(table_.RowHeight(0)));
    setRowHidden(0, true);
  }
  if (isVisible()) ApplyFont();
  ApplyTopRow();
}

// To look a font up takes long: a grid that is hidden at the start does without.
void GridView::ApplyFont() {
  if (table_.FontName().empty()) return;
  QFont own = font();
  own.setFamilies({QString::fromStdString(table_.FontName())});
  setFont(own);
}

// A hidden grid doesn't know how far it can be scrolled, so it takes no part in it.
void GridView::ApplyTopRow() {
  const QScopedValueRollback applying(applying_, true);
  GridView::updateGeometries();
  verticalScrollBar()->setValue(table_.TopRow);
  if (isVisible()) table_.TopRow = verticalScrollBar()->value();
}

// Scrolled to its end, a Qt table shows its last row whole and cuts the first; places of cells
// count from a whole first row.
void GridView::AlignTopRow() {
  verticalHeader()->setOffsetToSectionPosition(verticalScrollBar()->value());
  viewport()->update();
}

void GridView::TellMouseCell(const QPoint& place) {
  table_.MouseRow = rowAt(place.y());
  table_.MouseCol = columnAt(place.x());
}
