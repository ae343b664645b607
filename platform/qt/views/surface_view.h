#pragma once

#include <QImage>
#include <QWidget>
#include <functional>

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

  // The part of the surface that is wanted on the screen next.
  void Show(const Raster& surface, const PixelRect& changed);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  PictureBox& box_;
  QImage picture_;
  // Nothing is to be seen until somebody shows the surface again.
  bool cleared_ = false;
};
