// A turn of the part in the 3D window by Mesa's software renderer: building the display list and
// drawing a frame of 800x600. The peer draws as many rings by GLU alone.

#include <GL/glu.h>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <cmath>
#include <string>
#include <vector>

#include "motion/stock.h"
#include "settings/settings.h"
#include "view3d/off_screen.h"
#include "view3d/turned_part.h"

namespace {

constexpr int kWidth = 800;
constexpr int kHeight = 600;
constexpr std::int16_t kRadius = 100;

enum Shape : std::int16_t { kStraight, kArcs };

// Balls side by side: every column differs from the next, so that each becomes a ring.
std::int16_t ArcRadius(int column) {
  return static_cast<std::int16_t>(kRadius + std::lround(30 * std::sin(column / 30.0)) +
                                   column % 2);
}

void MakeProfile(const benchmark::State& state) {
  const auto columns = static_cast<int>(state.range(0));
  Graphics::StockProfile.clear();
  for (int i = 0; i <= columns; ++i) {
    const std::int16_t radius = state.range(1) == kArcs ? ArcRadius(i) : kRadius;
    Graphics::StockProfile.push_back({radius, 0});
  }
}

// Ready to draw, or skips the measurement with the reason. The first frame is behind it: there the
// renderer compiles its shaders.
class Bench {
 public:
  explicit Bench(benchmark::State& state) {
    MakeProfile(state);
    GlobalVariables::Settings.WorkPieceColor = Rgb(0, 0, 255);
    std::string reason;
    if (!part.Initialize([&] { return screen_.Create(kWidth, kHeight, reason); })) {
      state.SkipWithError(reason.c_str());
      return;
    }
    part.OnSize(kWidth, kHeight);
    part.Display();
  }

  TurnedPart part;

 private:
  OffScreen screen_;
};

void Turn(benchmark::State& state) {
  Bench bench(state);
  for ([[maybe_unused]] auto iteration : state) {
    bench.part.RotY -= 1;
    bench.part.DrawWorld();
    bench.part.Display();
  }
}

void DrawWorld(benchmark::State& state) {
  Bench bench(state);
  for ([[maybe_unused]] auto iteration : state) bench.part.DrawWorld();
}

void Display(benchmark::State& state) {
  Bench bench(state);
  for ([[maybe_unused]] auto iteration : state) bench.part.Display();
}

void RingsByGluAlone(benchmark::State& state) {
  const Bench bench(state);
  GLUquadric* quadric = gluNewQuadric();
  for ([[maybe_unused]] auto iteration : state) {
    glNewList(1, GL_COMPILE);
    for (int i = 0; i < state.range(0); ++i) {
      glTranslatef(0, 0, -0.02F);
      gluCylinder(quadric, 2.0, 2.0, 0.02, 64, 1);
    }
    glEndList();
  }
  gluDeleteQuadric(quadric);
}

// Of several repetitions the least disturbed one: work of others on the same cores only ever adds.
double Least(const std::vector<double>& times) {
  return *std::ranges::min_element(times);
}

// The renderer's threads count as well.
void Sizes(benchmark::internal::Benchmark* bench) {
  bench->ArgsProduct({{400, 3'200, 32'000}, {kStraight, kArcs}})
      ->ArgNames({"columns", "arcs"})
      ->MeasureProcessCPUTime()
      ->ComputeStatistics("least", Least)
      ->Unit(benchmark::kMillisecond);
}

BENCHMARK(Turn)->Apply(Sizes);
BENCHMARK(DrawWorld)->Apply(Sizes);
BENCHMARK(Display)->Apply(Sizes);
BENCHMARK(RingsByGluAlone)->Apply(Sizes);

}  // namespace

BENCHMARK_MAIN();
