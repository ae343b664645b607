#pragma once

#include <string>

#include "platform/raster.h"

// A current OpenGL context of the fixed pipeline without a window or a display, for pictures in
// scripts. It is drawn in software unless LIBGL_ALWAYS_SOFTWARE says otherwise, so that pictures
// don't hang on the graphics card. One at a time.
class OffScreen {
 public:
  OffScreen() = default;
  ~OffScreen();
  OffScreen(const OffScreen&) = delete;
  OffScreen& operator=(const OffScreen&) = delete;

  // Makes the context, `width` by `height` pixels, each at least 1, and makes it current. False,
  // with the reason, where there is no OpenGL or no memory.
  bool Create(int width, int height, std::string& reason);

  // What has been drawn.
  Raster Read() const;

 private:
  int width_ = 0;
  int height_ = 0;
  // EGL's, null before Create.
  void* display_ = nullptr;
  void* context_ = nullptr;
  void* surface_ = nullptr;
};
