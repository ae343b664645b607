#include "motion/stock_surface.h"

#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <vector>

namespace {

constexpr Colour kBack = Rgb(255, 255, 255);
constexpr Colour kWorkPiece = Rgb(0, 0, 255);

// The plain rule: three transparent copies, pixel by pixel.
class PlainSurface {
 public:
  PlainSurface(int width, int height) : raster_(width, height) {}

  void MoveTool(const Raster& picture, int width, int height, Colour cut, PixelPoint from,
                PixelPoint to, PixelPoint mirror) {
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        if (IsOpaque(picture, x, y) && cut != 0) raster_.SetPixel(from.x + x, from.y + y, cut);
      }
    }
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        if (IsOpaque(picture, x, height - 1 - y) && cut != 0) {
          raster_.SetPixel(mirror.x + x, mirror.y + y, cut);
        }
      }
    }
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) {
        if (IsOpaque(picture, x, y)) {
          raster_.SetPixel(to.x + x, to.y + y, picture.GetPixel(x, y));
        }
      }
    }
  }
  Raster& Pixels() { return raster_; }

 private:
  static bool IsOpaque(const Raster& picture, int x, int y) {
    const Colour colour = picture.GetPixel(x, y);
    return colour != kTransparent && colour != kNoColour;
  }
  Raster raster_;
};

// A tool of random size with a ragged shape and random colours, black among them.
struct RandomTool {
  Raster picture;
  int width = 0;
  int height = 0;
  ToolImage image;

  explicit RandomTool(std::mt19937& random) {
    const auto below = [&](unsigned n) { return static_cast<int>(random() % n); };
    picture = Raster(1 + below(24), 1 + below(24));
    for (int y = 0; y < picture.Height(); ++y) {
      for (int x = 0; x < picture.Width(); ++x) {
        const bool isOpaque = below(10) < 6;
        const Colour colour = below(4) == 0 ? 0 : static_cast<Colour>(below(0xFFFFFF));
        picture.SetPixel(x, y, isOpaque ? colour : kTransparent);
      }
    }
    width = picture.Width() + below(5) - 2;
    height = picture.Height() + below(5) - 2;
    image = {Sprite(picture, width, height, kTransparent), below(8) == 0 ? 0 : kBack};
    width = image.sprite.Width();
    height = image.sprite.Height();
  }
};

void ExpectSame(const Raster& expected, const Raster& actual, unsigned seed, int step) {
  for (int y = 0; y < expected.Height(); ++y) {
    for (int x = 0; x < expected.Width(); ++x) {
      ASSERT_EQ(expected.GetPixel(x, y), actual.GetPixel(x, y))
          << "seed " << seed << " step " << step << " at " << x << ',' << y;
    }
  }
}

// Random walks, jumps, tool changes, reads and other drawing on small surfaces: the fast way must
// leave what the plain rule leaves, and everything that changed must be told.
void WalkAndCompare(unsigned seed) {
  std::mt19937 random(seed);
  const auto below = [&](unsigned n) { return static_cast<int>(random() % n); };
  const int width = 20 + below(60);
  const int height = 20 + below(60);
  const int centre = height / 2;
  PlainSurface plain(width, height);
  StockSurface fast;
  fast.Create(width, height, kBack);
  plain.Pixels().Fill(plain.Pixels().Area(), kBack);
  const PixelRect billet{0, centre - height / 3, width * 2 / 3, centre + height / 3};
  plain.Pixels().Fill(billet, kWorkPiece);
  fast.Fill(billet, kWorkPiece);
  Raster shown = fast.Read();
  fast.TakeChanged();

  std::vector<std::unique_ptr<RandomTool>> library;
  for (int i = 0; i < 3; ++i) library.push_back(std::make_unique<RandomTool>(random));
  const RandomTool* tool = library[0].get();
  PixelPoint last{-500, -500};
  int column = width / 2;
  int radius = height / 3;
  for (int step = 0; step < 120; ++step) {
    switch (below(24)) {
      case 0:
        column = below(static_cast<unsigned>(3 * width)) - width;
        radius = below(static_cast<unsigned>(2 * height)) - height / 2;
        break;
      case 1:
        fast.Forget();
        tool = library[static_cast<std::size_t>(below(3))].get();
        break;
      case 2: {
        const PixelRect patch{below(50), below(50), below(80), below(80)};
        plain.Pixels().Fill(patch, kWorkPiece);
        fast.Fill(patch, kWorkPiece);
        break;
      }
      default:
        column += below(3) - 1;
        radius += below(3) - 1;
        break;
    }
    const PixelPoint to{column, centre - radius - tool->height};
    const PixelPoint mirror{column, centre + radius};
    plain.MoveTool(tool->picture, tool->width, tool->height, tool->image.cutColour, last, to,
                   mirror);
    fast.MoveTool(tool->image, last, to, mirror);
    last = to;
    if (below(3) == 0) {
      const Raster& seen = fast.Read();
      ExpectSame(plain.Pixels(), seen, seed, step);
      const PixelRect changed = fast.TakeChanged();
      for (int y = changed.top; y < changed.bottom; ++y) {
        for (int x = changed.left; x < changed.right; ++x)
          shown.SetPixel(x, y, seen.GetPixel(x, y));
      }
      ExpectSame(plain.Pixels(), shown, seed, step);
    }
    if (testing::Test::HasFatalFailure()) return;
  }
  ExpectSame(plain.Pixels(), fast.Read(), seed, 1000);
}

TEST(StockSurface, LeavesWhatThePlainRuleLeaves) {
  for (unsigned seed = 1; seed <= 600 && !testing::Test::HasFatalFailure(); ++seed) {
    WalkAndCompare(seed);
  }
}

}  // namespace
