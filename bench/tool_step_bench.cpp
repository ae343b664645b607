// One step of the tool against the same three transparent copies by SDL2 (colour key with RLE) and
// by QPainter. Every method's final surface is compared with the plain per-pixel rule.

#include <QImage>
#include <QPainter>
#include <SDL2/SDL.h>
#include <benchmark/benchmark.h>
#include <cstddef>
#include <vector>

#include "motion/stock_surface.h"

namespace {

constexpr int kWidth = 1000;
constexpr int kHeight = 640;
constexpr int kCentre = kHeight / 2;
constexpr int kToolWidth = 67;
constexpr int kToolHeight = 101;
constexpr int kPasses = 50;
constexpr int kPointsOfPass = 400;
constexpr Colour kBack = Rgb(255, 255, 255);
constexpr Colour kWorkPiece = Rgb(0, 0, 255);
constexpr PixelRect kBillet{0, kCentre - 200, 500, kCentre + 200};

// About 60 % opaque: a trapezium with its tip in the lower left corner.
Raster MakePicture() {
  Raster picture(kToolWidth, kToolHeight);
  picture.Fill(picture.Area(), kTransparent);
  for (int x = 0; x < kToolWidth; ++x) {
    const int bottom = kToolHeight - x * 80 / kToolWidth;
    for (int y = 0; y < bottom; ++y) picture.SetPixel(x, y, Rgb(90, 90 + y % 100, 120));
  }
  return picture;
}

// Along the billet and, pass by pass, deeper into it.
std::vector<PixelPoint> MakePoints() {
  std::vector<PixelPoint> points;
  for (int pass = 0; pass < kPasses; ++pass) {
    for (int i = 0; i < kPointsOfPass; ++i) {
      const bool isBack = pass % 2 == 1;
      points.push_back({isBack ? 100 + i : 499 - i, 200 - 3 * pass});
    }
  }
  return points;
}

struct Step {
  PixelPoint to;
  PixelPoint mirror;
};

Step StepFor(PixelPoint point) {
  return {{point.x, kCentre - point.y - kToolHeight}, {point.x, kCentre + point.y}};
}

Raster PlainResult() {
  const Raster picture = MakePicture();
  Raster surface(kWidth, kHeight);
  surface.Fill(surface.Area(), kBack);
  surface.Fill(kBillet, kWorkPiece);
  PixelPoint last{-500, -500};
  const auto copy = [&](PixelPoint at, bool flipped, bool shows) {
    for (int y = 0; y < kToolHeight; ++y) {
      for (int x = 0; x < kToolWidth; ++x) {
        const Colour colour = picture.GetPixel(x, flipped ? kToolHeight - 1 - y : y);
        if (colour != kTransparent) surface.SetPixel(at.x + x, at.y + y, shows ? colour : kBack);
      }
    }
  };
  for (const PixelPoint point : MakePoints()) {
    const Step step = StepFor(point);
    copy(last, false, false);
    copy(step.mirror, true, false);
    copy(step.to, false, true);
    last = step.to;
  }
  return surface;
}

template <class PixelAt>
void Compare(benchmark::State& state, PixelAt pixelAt) {
  static const Raster plain = PlainResult();
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      if (plain.GetPixel(x, y) != pixelAt(x, y)) {
        state.SkipWithError("the surface differs from the plain rule");
        return;
      }
    }
  }
}

void CountSteps(benchmark::State& state) {
  state.SetItemsProcessed(state.iterations() * kPasses * kPointsOfPass);
}

// The argument: read the surface after every n-th step; 0: not before the end.
void Turnbay(benchmark::State& state) {
  const ToolImage tool{Sprite(MakePicture(), kToolWidth, kToolHeight, kTransparent), kBack};
  const std::vector<PixelPoint> points = MakePoints();
  const int readEvery = static_cast<int>(state.range(0));
  StockSurface surface;
  for ([[maybe_unused]] auto iteration : state) {
    state.PauseTiming();
    surface.Create(kWidth, kHeight, kBack);
    surface.Fill(kBillet, kWorkPiece);
    state.ResumeTiming();
    PixelPoint last{-500, -500};
    int count = 0;
    for (const PixelPoint point : points) {
      const Step step = StepFor(point);
      surface.MoveTool(tool, last, step.to, step.mirror);
      last = step.to;
      if (readEvery > 0 && ++count % readEvery == 0)
        benchmark::DoNotOptimize(surface.Read().Row(0));
    }
    benchmark::DoNotOptimize(surface.Read().Row(0));
  }
  CountSteps(state);
  Compare(state, [&](int x, int y) { return surface.Read().GetPixel(x, y); });
}
BENCHMARK(Turnbay)->Arg(1)->Arg(10)->Arg(0)->Unit(benchmark::kMillisecond);

QRgb ToQt(Colour colour) {
  return qRgb(RedOf(colour), GreenOf(colour), BlueOf(colour));
}

void Painter(benchmark::State& state) {
  const Raster picture = MakePicture();
  QImage sprite(kToolWidth, kToolHeight, QImage::Format_ARGB32_Premultiplied);
  QImage silhouette(sprite.size(), sprite.format());
  sprite.fill(Qt::transparent);
  silhouette.fill(Qt::transparent);
  for (int y = 0; y < kToolHeight; ++y) {
    for (int x = 0; x < kToolWidth; ++x) {
      if (picture.GetPixel(x, y) == kTransparent) continue;
      sprite.setPixel(x, y, ToQt(picture.GetPixel(x, y)));
      silhouette.setPixel(x, y, ToQt(kBack));
    }
  }
  const QImage flipped = silhouette.mirrored();
  const std::vector<PixelPoint> points = MakePoints();
  QImage surface(kWidth, kHeight, QImage::Format_RGB32);
  for ([[maybe_unused]] auto iteration : state) {
    state.PauseTiming();
    surface.fill(ToQt(kBack));
    QPainter painter(&surface);
    painter.fillRect(QRect(kBillet.left, kBillet.top, kBillet.right, kBillet.bottom - kBillet.top),
                     QColor::fromRgb(ToQt(kWorkPiece)));
    state.ResumeTiming();
    PixelPoint last{-500, -500};
    for (const PixelPoint point : points) {
      const Step step = StepFor(point);
      painter.drawImage(last.x, last.y, silhouette);
      painter.drawImage(step.mirror.x, step.mirror.y, flipped);
      painter.drawImage(step.to.x, step.to.y, sprite);
      last = step.to;
    }
  }
  CountSteps(state);
  Compare(state, [&](int x, int y) {
    const QRgb pixel = surface.pixel(x, y);
    return Rgb(static_cast<std::uint32_t>(qRed(pixel)), static_cast<std::uint32_t>(qGreen(pixel)),
               static_cast<std::uint32_t>(qBlue(pixel)));
  });
}
BENCHMARK(Painter)->Unit(benchmark::kMillisecond);

struct SdlSurface {
  explicit SdlSurface(int width, int height)
      : surface(SDL_CreateRGBSurfaceWithFormat(0, width, height, 32, SDL_PIXELFORMAT_XBGR8888)) {}
  ~SdlSurface() { SDL_FreeSurface(surface); }
  SdlSurface(const SdlSurface&) = delete;
  SdlSurface& operator=(const SdlSurface&) = delete;

  Colour* Row(int y) const {
    return reinterpret_cast<Colour*>(static_cast<std::byte*>(surface->pixels) +
                                     static_cast<std::ptrdiff_t>(y) * surface->pitch);
  }
  void UseKey() const {
    SDL_SetColorKey(surface, SDL_TRUE, kTransparent);
    SDL_SetSurfaceRLE(surface, 1);
  }

  SDL_Surface* surface;
};

void SdlRle(benchmark::State& state) {
  const Raster picture = MakePicture();
  const SdlSurface sprite(kToolWidth, kToolHeight);
  const SdlSurface silhouette(kToolWidth, kToolHeight);
  const SdlSurface flipped(kToolWidth, kToolHeight);
  for (int y = 0; y < kToolHeight; ++y) {
    for (int x = 0; x < kToolWidth; ++x) {
      const Colour colour = picture.GetPixel(x, y);
      const Colour shape = colour == kTransparent ? kTransparent : kBack;
      sprite.Row(y)[x] = colour;
      silhouette.Row(y)[x] = shape;
      flipped.Row(kToolHeight - 1 - y)[x] = shape;
    }
  }
  for (const SdlSurface* keyed : {&sprite, &silhouette, &flipped}) keyed->UseKey();
  const std::vector<PixelPoint> points = MakePoints();
  const SdlSurface surface(kWidth, kHeight);
  const auto blit = [&](const SdlSurface& source, PixelPoint at) {
    SDL_Rect place{at.x, at.y, 0, 0};
    SDL_BlitSurface(source.surface, nullptr, surface.surface, &place);
  };
  for ([[maybe_unused]] auto iteration : state) {
    state.PauseTiming();
    SDL_FillRect(surface.surface, nullptr, kBack);
    const SDL_Rect billet{kBillet.left, kBillet.top, kBillet.right, kBillet.bottom - kBillet.top};
    SDL_FillRect(surface.surface, &billet, kWorkPiece);
    state.ResumeTiming();
    PixelPoint last{-500, -500};
    for (const PixelPoint point : points) {
      const Step step = StepFor(point);
      blit(silhouette, last);
      blit(flipped, step.mirror);
      blit(sprite, step.to);
      last = step.to;
    }
  }
  CountSteps(state);
  Compare(state, [&](int x, int y) { return surface.Row(y)[x] & 0xFFFFFF; });
}
BENCHMARK(SdlRle)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
