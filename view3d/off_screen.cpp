#include "view3d/off_screen.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <GL/gl.h>
#include <array>
#include <cstdlib>

namespace {

constexpr EGLint kConfig[] = {EGL_SURFACE_TYPE,
                              EGL_PBUFFER_BIT,
                              EGL_RENDERABLE_TYPE,
                              EGL_OPENGL_BIT,
                              EGL_RED_SIZE,
                              8,
                              EGL_GREEN_SIZE,
                              8,
                              EGL_BLUE_SIZE,
                              8,
                              EGL_DEPTH_SIZE,
                              16,
                              EGL_NONE};
constexpr Colour kWithoutAlpha = 0xFFFFFF;

// The first of 24 colour bits: those of 30, which cost more, come first. Null if there is none.
EGLConfig ChooseConfig(EGLDisplay display) {
  std::array<EGLConfig, 64> configs{};
  EGLint count = 0;
  eglChooseConfig(display, kConfig, configs.data(), static_cast<EGLint>(configs.size()), &count);
  for (EGLint i = 0; i < count; ++i) {
    EGLConfig config = configs.at(static_cast<std::size_t>(i));
    EGLint redBits = 0;
    eglGetConfigAttrib(display, config, EGL_RED_SIZE, &redBits);
    if (redBits == 8) return config;
  }
  return nullptr;
}

}  // namespace

bool OffScreen::Create(int width, int height, std::string& reason) {
  setenv("LIBGL_ALWAYS_SOFTWARE", "1", 0);
  display_ = eglGetPlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA, nullptr, nullptr);
  if (eglInitialize(display_, nullptr, nullptr) == EGL_FALSE ||
      eglBindAPI(EGL_OPENGL_API) == EGL_FALSE) {
    reason = "OpenGL without a display isn't available here.";
    return false;
  }
  EGLConfig config = ChooseConfig(display_);
  if (config != nullptr) context_ = eglCreateContext(display_, config, EGL_NO_CONTEXT, nullptr);
  if (context_ == EGL_NO_CONTEXT) {
    reason = "OpenGL has no fixed pipeline here.";
    return false;
  }
  const EGLint size[] = {EGL_WIDTH, width, EGL_HEIGHT, height, EGL_NONE};
  surface_ = eglCreatePbufferSurface(display_, config, size);
  if (surface_ == EGL_NO_SURFACE ||
      eglMakeCurrent(display_, surface_, surface_, context_) == EGL_FALSE) {
    reason = "OpenGL can't draw a picture of " + std::to_string(width) + "x" +
             std::to_string(height) + " pixels here.";
    return false;
  }
  width_ = width;
  height_ = height;
  return true;
}

// The display stays as it is: it belongs to the whole program, and its driver loses memory when it
// is unloaded.
OffScreen::~OffScreen() {
  if (context_ == EGL_NO_CONTEXT) return;
  eglMakeCurrent(display_, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
  if (surface_ != EGL_NO_SURFACE) eglDestroySurface(display_, surface_);
  eglDestroyContext(display_, context_);
}

Raster OffScreen::Read() const {
  Raster picture(width_, height_);
  for (int y = 0; y < height_; ++y) {
    Colour* row = picture.Row(y);
    // OpenGL counts its rows from below; red comes first, as in a Colour.
    glReadPixels(0, height_ - 1 - y, width_, 1, GL_RGBA, GL_UNSIGNED_INT_8_8_8_8_REV, row);
    for (int x = 0; x < width_; ++x) row[x] &= kWithoutAlpha;
  }
  return picture;
}
