#include "platform/qt/views/picture_strip.h"

#include <QPainter>

PictureStrip::PictureStrip(const QString& file, Qt::Orientation along, QWidget* parent)
    : QWidget(parent), picture_(file) {
  const QSize size = picture_.deviceIndependentSize().toSize();
  if (along == Qt::Vertical) {
    setFixedWidth(size.width());
  } else {
    setFixedHeight(size.height());
  }
}

void PictureStrip::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QSize shown = picture_.deviceIndependentSize().toSize();
  const QRect lastRow(0, picture_.height() - 1, picture_.width(), 1);
  const QRect lastColumn(picture_.width() - 1, 0, 1, picture_.height());
  painter.drawPixmap(QRect(0, shown.height(), shown.width(), height()), picture_, lastRow);
  painter.drawPixmap(QRect(shown.width(), 0, width(), shown.height()), picture_, lastColumn);
  painter.drawPixmap(0, 0, picture_);
}
