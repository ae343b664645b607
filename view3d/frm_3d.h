#pragma once

#include <QOpenGLContext>
#include <QSize>
#include <QWindow>
#include <cstdint>
#include <memory>

#include "view3d/turned_part.h"

namespace frm3D {

// The turned part, borderless over the whole screen, turned and zoomed from the keyboard.
class TurnedPartWindow : public QWindow {
 public:
  TurnedPartWindow();

  // Makes the context and the part as StockProfile stands. Where there is no OpenGL a message box
  // says so, and the window shows nothing.
  void Form_Load();

  const TurnedPart& Part() const { return part_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void exposeEvent(QExposeEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  bool MakeContext();
  // False when there is no context.
  bool UseContext();
  void Form_KeyDown(int keyCode);
  void Zoom(double degrees);
  // Returns when Spinning is no longer set, be it by the window's end or the program's.
  void Spin();
  void DrawAnew();

  TurnedPart part_;
  std::unique_ptr<QOpenGLContext> context_;
  // Flag: the part spins.
  std::int16_t Spinning = 0;
  bool spinLoopRuns_ = false;
  // At the previous resize, in pixels of the screen.
  QSize lastSize_{0, 0};
};

}  // namespace frm3D

// In a library of its own, for OpenGL.
extern "C" void Show3DWindow();

namespace frmMain {

// Shows frm3D, which it loads if it isn't loaded.
void mnuView3DWindow_Click();

}  // namespace frmMain
