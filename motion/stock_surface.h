#pragma once

#include "platform/raster.h"
#include "platform/sprite.h"
#include "platform/sprite_edges.h"

// A loaded tool: its sprite, and the colour with which its shape cuts. 0 cuts nothing.
struct ToolImage {
  Sprite sprite;
  Colour cutColour = 0;
};

// The bitmap that a run draws on. What it holds after each step is what three transparent copies
// would leave (the shape over the old place, the flipped shape at the mirror place, the sprite at
// the new place), but a tool that moves by one pixel writes only the edge that the move uncovers,
// and the sprite is painted only when somebody reads the surface.
class StockSurface {
 public:
  // A new surface of one colour.
  void Create(int width, int height, Colour colour);

  int Width() const { return raster_.Width(); }
  int Height() const { return raster_.Height(); }

  void Fill(const PixelRect& rect, Colour colour);
  void SetPixel(int x, int y, Colour colour);

  // One step of the tool: erases its shape at `from`, cuts the flipped shape at `mirror`, shows the
  // sprite at `to`; each is the pixel of a top left corner. The tool must outlive the surface's use
  // of it: see Forget.
  void MoveTool(const ToolImage& tool, PixelPoint from, PixelPoint to, PixelPoint mirror);

  // Paints a tool that is still to be shown; call before the tool changes.
  void Forget();

  // The surface as it is to be seen. Valid until the next change.
  const Raster& Read();

  // What has changed since the last call.
  PixelRect TakeChanged();

 private:
  void PaintPending();
  void MarkChanged(const PixelRect& rect) { changed_ = Union(changed_, rect); }
  bool FollowsLastStep(const ToolImage& tool, PixelPoint from, PixelPoint to,
                       PixelPoint mirror) const;

  Raster raster_;
  PixelRect changed_;
  // The tool of the last step, null when something else has been drawn since. While it is set,
  // every pixel of the flipped shape at lastMirror_ has been cut, and the pixels under the shape at
  // last_ are of no account: the sprite covers them, or leaving them cuts them.
  const ToolImage* lastTool_ = nullptr;
  SpriteEdges edges_;
  PixelPoint last_;
  PixelPoint lastMirror_;
  bool spritePending_ = false;
};

namespace Graphics {

// SimWidth by SimHeight pixels, billet at the left edge.
extern StockSurface StockDC;

}  // namespace Graphics
