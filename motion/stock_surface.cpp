#include "motion/stock_surface.h"

#include <cstdlib>

void StockSurface::Create(int width, int height, Colour colour) {
  Forget();
  // A window is laid out several times at one size.
  if (raster_.Width() != width || raster_.Height() != height) raster_ = Raster(width, height);
  Fill(raster_.Area(), colour);
}

void StockSurface::Fill(const PixelRect& rect, Colour colour) {
  Forget();
  raster_.Fill(rect, colour);
  MarkChanged(Intersection(rect, raster_.Area()));
}

void StockSurface::SetPixel(int x, int y, Colour colour) {
  Fill({x, y, x + 1, y + 1}, colour);
}

bool StockSurface::FollowsLastStep(const ToolImage& tool, PixelPoint from, PixelPoint to,
                                   PixelPoint mirror) const {
  if (lastTool_ != &tool || from != last_) return false;
  const int dx = to.x - from.x;
  const int dy = to.y - from.y;
  return std::abs(dx) <= 1 && std::abs(dy) <= 1 && mirror.x - lastMirror_.x == dx &&
         mirror.y - lastMirror_.y == -dy;
}

void StockSurface::MoveTool(const ToolImage& tool, PixelPoint from, PixelPoint to,
                            PixelPoint mirror) {
  const Sprite& sprite = tool.sprite;
  if (tool.cutColour == 0) {
    // A shape that cuts nothing leaves every sprite where it was painted.
    Forget();
    sprite.Paint(raster_, to.x, to.y);
  } else {
    if (FollowsLastStep(tool, from, to, mirror)) {
      const int dx = to.x - from.x;
      const int dy = to.y - from.y;
      edges_.FillUncovered(raster_, from, dx, dy, tool.cutColour);
      edges_.FillNewlyCoveredFlipped(raster_, mirror, dx, dy, tool.cutColour);
    } else {
      PaintPending();
      if (lastTool_ != &tool) edges_ = SpriteEdges(sprite, raster_.Pitch());
      sprite.FillShape(raster_, from.x, from.y, tool.cutColour);
      sprite.FillShapeFlipped(raster_, mirror.x, mirror.y, tool.cutColour);
    }
    lastTool_ = &tool;
    last_ = to;
    lastMirror_ = mirror;
    spritePending_ = true;
  }
  MarkChanged(sprite.AreaAt(from.x, from.y));
  MarkChanged(sprite.AreaAt(to.x, to.y));
  MarkChanged(sprite.AreaAt(mirror.x, mirror.y));
}

void StockSurface::PaintPending() {
  if (!spritePending_) return;
  lastTool_->sprite.Paint(raster_, last_.x, last_.y);
  spritePending_ = false;
}

void StockSurface::Forget() {
  PaintPending();
  lastTool_ = nullptr;
}

const Raster& StockSurface::Read() {
  PaintPending();
  return raster_;
}

PixelRect StockSurface::TakeChanged() {
  const PixelRect changed = Intersection(changed_, raster_.Area());
  changed_ = {};
  return changed.IsEmpty() ? PixelRect{} : changed;
}

namespace Graphics {

StockSurface StockDC;

}  // namespace Graphics
