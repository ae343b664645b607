// Pictures of the software renderer against rays traced through the profile.

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <vector>

#include "motion/stock.h"
#include "settings/settings.h"
#include "view3d/off_screen.h"
#include "view3d/turned_part.h"

namespace {

constexpr int kSide = 240;
constexpr int kLength = 200;

double Radians(double degrees) {
  return degrees * std::numbers::pi / 180;
}

// Half of what the picture shows at a distance of 1.
double HalfView(const TurnedPart& part) {
  return std::tan(Radians(part.FieldOfView / 2));
}

// Whether the part, turned about the Y axis alone, lies behind the middle of a pixel. The eye is at
// (10, 10, 10) and looks at the origin.
bool IsPart(const TurnedPart& part, int column, int row) {
  const double right = HalfView(part) * ((2 * column + 1.0) / kSide - 1) / std::sqrt(2);
  const double up = HalfView(part) * (1 - (2 * row + 1.0) / kSide) / std::sqrt(6);
  const double cosine = std::cos(Radians(part.RotY));
  const double sine = std::sin(Radians(part.RotY));
  for (double depth = 10; depth < 25; depth += 0.01) {
    const double x = 10 + depth * (right - up - 1 / std::sqrt(3));
    const double y = 10 + depth * (2 * up - 1 / std::sqrt(3));
    const double z = 10 + depth * (-right - up - 1 / std::sqrt(3));
    // Columns from the right end face.
    const double i = kLength / 2.0 - 50 * (x * cosine - z * sine);
    if (i < 0 || i >= kLength) continue;
    const double radius = Graphics::StockProfile[static_cast<std::size_t>(i) + 1].Radius / 50.0;
    if (std::hypot(y, x * sine + z * cosine) < radius) return true;
  }
  return false;
}

// Compares all pixels but those along the edges of the part.
void ExpectSilhouette(const TurnedPart& part, const Raster& picture) {
  std::vector<int> pixels;
  for (int k = 0; k < kSide * kSide; ++k) pixels.push_back(IsPart(part, k % kSide, k / kSide));
  int wrong = 0;
  for (int row = 1; row < kSide - 1; ++row) {
    for (int column = 1; column < kSide - 1; ++column) {
      int around = 0;
      for (int k = 0; k < 9; ++k) around += pixels[(row + k / 3 - 1) * kSide + column + k % 3 - 1];
      if (around % 9 == 0) wrong += (picture.GetPixel(column, row) != 0) != (around == 9);
    }
  }
  EXPECT_EQ(0, wrong) << "turned by " << part.RotY << ", field of view " << part.FieldOfView;
}

TEST(TurnedPartPictureTest, ShowsTheProfileInTheColoursOfItsFaces) {
  GlobalVariables::Settings.WorkPieceColor = Rgb(200, 100, 50);
  Graphics::StockProfile.assign(kLength + 1, {80, 0});
  for (int i = 0; i <= 100; ++i) Graphics::StockProfile[i].Radius = 40;
  OffScreen screen;
  std::string reason;
  TurnedPart part;
  ASSERT_TRUE(part.Initialize([&] { return screen.Create(kSide, kSide, reason); })) << reason;
  part.OnSize(kSide, kSide);
  part.Display();
  const Raster first = screen.Read();
  ExpectSilhouette(part, first);

  // Faces to the right get 0.2 of their colour from all around and cos 54.7 degrees from the light.
  const double light = 255 * (0.2 + 1 / std::sqrt(3));
  const auto expectColour = [&](double x, double y, double lighter) {
    const double depth = std::sqrt(3) * 10 - (x + y) / std::sqrt(3);
    const double scale = kSide / 2.0 / HalfView(part) / depth;
    const Colour colour =
        first.GetPixel(static_cast<int>(kSide / 2.0 + scale * x / std::sqrt(2)),
                       static_cast<int>(kSide / 2.0 - scale * (2 * y - x) / std::sqrt(6)));
    EXPECT_NEAR(light * (200 / 255.0 + lighter), RedOf(colour), 1);
    EXPECT_NEAR(light * (100 / 255.0 + lighter), GreenOf(colour), 1);
    EXPECT_NEAR(light * (50 / 255.0 + lighter), BlueOf(colour), 1);
  };
  expectColour(2, 0, 0.1);
  expectColour(0, 1.2, 0);

  part.FieldOfView = 45;
  part.RotY = 30;
  part.SetPerspective();
  part.DrawWorld();
  part.Display();
  ExpectSilhouette(part, screen.Read());
}

}  // namespace
