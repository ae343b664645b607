#include "platform/qt/views/grid_model.h"

#include "platform/code_page.h"

QString CellText(const GridTable& table, int row, int column) {
  return QString::fromStdString(CodePageToUtf8(table.TextMatrix(row, column)));
}

QString PictureName(GridPicture picture) {
  switch (picture) {
    case GridPicture::Break:
      return "Break";
    case GridPicture::Step:
      return "Step";
    case GridPicture::Both:
      return "Both";
    case GridPicture::None:
      break;
  }
  return {};
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : table_.Rows();
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : GridTable::kColumns;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= table_.Rows()) return {};
  if (role == Qt::DisplayRole) return CellText(table_, index.row(), index.column());
  const GridPicture picture = table_.Format(index.row(), index.column()).Picture;
  if (role == Qt::AccessibleTextRole && picture != GridPicture::None) return PictureName(picture);
  return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const bool isNumber = orientation == Qt::Vertical && role == Qt::DisplayRole;
  return isNumber && section < table_.Rows() ? CellText(table_, section, 0) : QVariant();
}

void GridModel::TellOfRows(int first, int last) {
  emit dataChanged(index(first, 0), index(last, GridTable::kColumns - 1));
  emit headerDataChanged(Qt::Vertical, first, last);
}

void GridModel::TellOfAll() {
  beginResetModel();
  endResetModel();
}
