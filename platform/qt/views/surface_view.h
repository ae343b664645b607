#pragma once

#include <QImage>
#include <QLabel>
#include <QWidget>
#include <functional>
#include <string>

#include "platform/controls.h"

// Shows the simulation area: a copy of the surface at its top left corner, one pixel of it a
// logical pixel at every scale of the screen, and the picture box's back colour beside it. Takes
// the picture box's Blt and Cls and watches its BackColor.
class SurfaceView : public QWidget {
 public:
  explicit SurfaceView(PictureBox& box, QWidget* parent = nullptr);
  ~SurfaceView() override;

  // Called in front of each paint, for what the surface has that was never copied.
  std::function<void()> Paint;
  // Tells what lies at a pixel of the surface, in UTF-8. It stands beside the pointer; empty for
  // nothing to be told.
  std::function<std::string(int column, int row)> Measure;

  // The part of the surface that is wanted on the screen next.
  void Show(const Raster& surface, const PixelRect& changed);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

 private:
  void ShowMeasure(const QPoint& pointer);

  PictureBox& box_;
  QImage picture_;
  // Nothing is to be seen until somebody shows the surface again.
  bool cleared_ = false;
  // Hidden unless the pointer is over the area and there is something to tell.
  QLabel measure_{this};
};
