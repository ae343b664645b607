#pragma once

#include <cstdint>
#include <functional>

#include "interpreter/machine.h"

// The turned part as a solid of revolution, made of StockProfile and WorkPieceColor alone and drawn
// on whatever OpenGL context is current; it must have the fixed pipeline. Every routine but
// Initialize needs the context that Initialize was given.
// 50 stock units are one GL unit. The part lies along the X axis, centred on the origin.
class TurnedPart {
 public:
  // Rotation of the part about the three axes, in degrees.
  double RotX = 0;
  double RotY = 0;
  double RotZ = 0;
  // Flag: draws the axes.
  std::int16_t ShowAxes = kFalse;
  // The projection: angle of view from top to bottom in degrees, not bounded; the near and the far
  // plane in GL units; width over height.
  double FieldOfView = 30.0;
  double ZNear = 0.5;
  double ZFar = 200.0;
  double AspectRatio = 1.0;
  // Brings a finished frame to the screen; may stay empty.
  std::function<void()> SwapBuffers;

  // Makes a context current by `makeContext` and prepares it; the part is turned back and its list
  // built. False, with no call of OpenGL, when `makeContext` returns false.
  bool Initialize(const std::function<bool()>& makeContext);

  // Rebuilds the display list, rotation and colour included. Without a StockProfile there is
  // nothing but the axes.
  void DrawWorld();

  // Draws a frame. A call from within one returns at once.
  void Display();

  // Sets viewport and projection; pixels of the screen.
  void OnSize(std::int32_t width, std::int32_t height);

  // Loads the projection matrix.
  void SetPerspective();

 private:
  // Flag: a frame is being drawn.
  std::int16_t DisplayBusy = kFalse;
};
