#pragma once

#include <QPixmap>
#include <QWidget>

// A picture along the edge of a window. It is as wide as the picture, or as high when it lies
// level; where the window is longer than the picture, the picture's last pixels go on.
class PictureStrip : public QWidget {
 public:
  PictureStrip(const QString& file, Qt::Orientation along, QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap picture_;
};
