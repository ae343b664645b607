#pragma once

#include <QAbstractTableModel>

#include "platform/grid_table.h"

// Offers a grid table to a view and to assistive tools.
class GridModel : public QAbstractTableModel {
 public:
  GridModel(const GridTable& table, QObject* parent) : QAbstractTableModel(parent), table_(table) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  // Rows `first` to `last` look different.
  void TellOfRows(int first, int last);
  void TellOfAll();

 private:
  const GridTable& table_;
};

// Text of a cell, whose bytes are those of the code page.
QString CellText(const GridTable& table, int row, int column);
// Empty for no picture.
QString PictureName(GridPicture picture);
