#include "motion/stock_surface.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace {

constexpr Colour kBack = Rgb(255, 255, 255);
constexpr Colour kWorkPiece = Rgb(0, 0, 255);

// A tool of random size with a ragged shape and random colours, black among them. Its nominal size
// is that of its picture, or a little off.
struct RandomTool {
  template <class Below>
  explicit RandomTool(Below below) : picture(1 + below(24), 1 + below(24)) {
    for (int i = 0; i < picture.Width() * picture.Height(); ++i) {
      const Colour colour = below(4) == 0 ? 0 : static_cast<Colour>(below(0xFFFFFF));
      picture.SetPixel(i % picture.Width(), i / picture.Width(),
                       below(10) < 6 ? colour : kTransparent);
    }
    image = {Sprite(picture, picture.Width() + below(5) - 2, picture.Height() + below(5) - 2,
                    kTransparent),
             below(8) == 0 ? 0 : kBack};
  }

  Raster picture;
  ToolImage image;
};

// The plain rule: three transparent copies, pixel by pixel.
void MovePlainly(Raster& surface, const RandomTool& tool, PixelPoint from, PixelPoint to,
                 PixelPoint mirror) {
  const Colour cut = tool.image.cutColour;
  const int height = tool.image.sprite.Height();
  const auto forEachOpaque = [&](auto act) {
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < tool.image.sprite.Width(); ++x) {
        const Colour colour = tool.picture.GetPixel(x, y);
        if (colour != kTransparent && colour != kNoColour) act(x, y, colour);
      }
    }
  };
  if (cut != 0) {
    forEachOpaque([&](int x, int y, Colour) { surface.SetPixel(from.x + x, from.y + y, cut); });
    forEachOpaque([&](int x, int y, Colour) {
      surface.SetPixel(mirror.x + x, mirror.y + height - 1 - y, cut);
    });
  }
  forEachOpaque([&](int x, int y, Colour c) { surface.SetPixel(to.x + x, to.y + y, c); });
}

void ExpectSame(const Raster& expected, const Raster& actual) {
  for (int y = 0; y < expected.Height(); ++y) {
    ASSERT_TRUE(std::equal(expected.Row(y), expected.Row(y) + expected.Width(), actual.Row(y)))
        << "row " << y;
  }
}

// Random walks, jumps, tool changes, reads and other drawing on small surfaces: the fast way must
// leave what the plain rule leaves, and everything that changed must be told.
void WalkAndCompare(unsigned seed) {
  std::mt19937 random(seed);
  const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  const int width = 20 + below(60);
  const int height = 20 + below(60);
  const int centre = height / 2;
  Raster plain(width, height);
  StockSurface fast;
  fast.Create(width, height, kBack);
  plain.Fill(plain.Area(), kBack);
  const auto fillBoth = [&](const PixelRect& rect) {
    plain.Fill(rect, kWorkPiece);
    fast.Fill(rect, kWorkPiece);
  };
  fillBoth({0, centre - height / 3, width * 2 / 3, centre + height / 3});
  Raster shown = fast.Read();
  fast.TakeChanged();

  const RandomTool library[] = {RandomTool(below), RandomTool(below), RandomTool(below)};
  const RandomTool* tool = &library[0];
  PixelPoint last{-500, -500};
  int column = width / 2;
  int radius = height / 3;
  for (int step = 0; step < 120; ++step) {
    SCOPED_TRACE(testing::Message() << "seed " << seed << " step " << step);
    const int event = below(24);
    if (event == 0) {
      column = below(3 * width) - width;
      radius = below(2 * height) - height / 2;
    } else if (event == 1) {
      if (below(2) == 0) fast.Forget();
      tool = &library[below(3)];
    } else if (event == 2) {
      fillBoth({below(50), below(50), below(80), below(80)});
    } else {
      column += below(3) - 1;
      radius += below(3) - 1;
    }
    const PixelPoint to{column, centre - radius - tool->image.sprite.Height()};
    const PixelPoint mirror{column, centre + radius};
    MovePlainly(plain, *tool, last, to, mirror);
    fast.MoveTool(tool->image, last, to, mirror);
    last = to;
    if (below(3) != 0) continue;
    const Raster& seen = fast.Read();
    ASSERT_NO_FATAL_FAILURE(ExpectSame(plain, seen));
    const PixelRect changed = fast.TakeChanged();
    for (int y = changed.top; y < changed.bottom; ++y) {
      std::copy(seen.Row(y) + changed.left, seen.Row(y) + changed.right,
                shown.Row(y) + changed.left);
    }
    ASSERT_NO_FATAL_FAILURE(ExpectSame(plain, shown));
  }
}

TEST(StockSurface, LeavesWhatThePlainRuleLeaves) {
  for (unsigned seed = 1; seed <= 600 && !HasFatalFailure(); ++seed) WalkAndCompare(seed);
}

}  // namespace
