#include "view3d/turned_part.h"

#include <GL/gl.h>
#include <GL/glu.h>
#include <algorithm>
#include <cstddef>
#include <memory>

#include "motion/stock.h"
#include "settings/settings.h"

namespace {

using Graphics::ProfileColumn;
using Graphics::StockProfile;

constexpr GLuint kPartList = 1'000'000;
constexpr double kUnitsPerGl = 50.0;
constexpr int kSlices = 64;
// A shoulder behind a stretch of at most so many columns gets no disk.
constexpr int kShortColumns = 5;
constexpr double kLighter = 0.1;

// A stretch of columns that becomes one cylinder or cone. Its length is counted in columns, as sums
// of 0.02 would drift.
struct Segment {
  int columns = 0;
  // Stock units, at the right and the left end.
  std::int16_t startRadius = 0;
  std::int16_t endRadius = 0;
};

// The last column stands for those behind it: a very short billet lacks columns that the walk asks.
const ProfileColumn& ColumnAt(int i) {
  return StockProfile[std::min(static_cast<std::size_t>(i), StockProfile.size() - 1)];
}

// The colour of the work piece, with `lighter` added to each component and no cap.
void SetColour(double lighter) {
  const Colour colour = GlobalVariables::Settings.WorkPieceColor;
  glColor3f(static_cast<GLfloat>(RedOf(colour) / 255.0 + lighter),
            static_cast<GLfloat>(GreenOf(colour) / 255.0 + lighter),
            static_cast<GLfloat>(BlueOf(colour) / 255.0 + lighter));
}

void DrawDisk(GLUquadric* quadric, std::int16_t radius) {
  gluDisk(quadric, 0.0, radius / kUnitsPerGl, kSlices, kSlices);
}

void DrawEndFace(GLUquadric* quadric, std::int16_t radius) {
  SetColour(kLighter);
  DrawDisk(quadric, radius);
}

// Walks down the part by the segment's length; the cylinder grows back up to where it began.
void Emit(GLUquadric* quadric, const Segment& segment) {
  const double length = segment.columns / kUnitsPerGl;
  glTranslatef(0, 0, static_cast<GLfloat>(-length));
  gluCylinder(quadric, segment.endRadius / kUnitsPerGl, segment.startRadius / kUnitsPerGl, length,
              kSlices, 1);
}

void DrawRod(GLUquadric* quadric, GLfloat red, GLfloat green, GLfloat blue) {
  glColor3f(red, green, blue);
  gluCylinder(quadric, 0.02, 0.02, 10.0, 6, 6);
}

// Leaves the matrix as it was.
void DrawAxes(GLUquadric* quadric) {
  DrawRod(quadric, 0, 0, 1);
  glRotatef(90, 0, 1, 0);
  DrawRod(quadric, 1, 0, 0);
  glRotatef(-90, 1, 0, 0);
  DrawRod(quadric, 0, 1, 0);
  glRotatef(90, 1, 0, 0);
  glRotatef(-90, 0, 1, 0);
}

// Everything between the end faces, from right to left; returns the radius of the left one. A
// marked stretch is one cone from end to end whatever its radii do; elsewhere each change of the
// radius is a step.
std::int16_t DrawColumns(GLUquadric* quadric) {
  const int last = static_cast<int>(StockProfile.size()) - 1;
  Segment segment{0, ColumnAt(1).Radius, ColumnAt(0).Radius};
  int i = 0;
  while (i < last) {
    const ProfileColumn& column = ColumnAt(i);
    const ProfileColumn& next = ColumnAt(i + 1);
    if (column.TaperMark != next.TaperMark) {
      Emit(quadric, segment);
      if (i == 0) i = 2;
      segment.startRadius = ColumnAt(i - 1).Radius;
      segment.columns = 0;
    } else if (column.Radius != next.Radius && column.TaperMark == 0) {
      Emit(quadric, segment);
      segment.startRadius = next.Radius;
      if (segment.columns > kShortColumns) DrawDisk(quadric, next.Radius);
      segment.columns = 0;
    }
    segment.endRadius = ColumnAt(i).Radius;
    ++segment.columns;
    ++i;
  }
  Emit(quadric, segment);
  return segment.endRadius;
}

// Along the Z axis, its middle at the origin.
void DrawPart(GLUquadric* quadric) {
  const double length = static_cast<double>(StockProfile.size() - 1) / kUnitsPerGl;
  glTranslatef(0, 0, static_cast<GLfloat>(length / 2));
  DrawEndFace(quadric, ColumnAt(0).Radius);
  SetColour(0);
  DrawEndFace(quadric, DrawColumns(quadric));
}

}  // namespace

bool TurnedPart::Initialize(const std::function<bool()>& makeContext) {
  RotX = RotY = RotZ = 0;
  if (!makeContext()) return false;
  glClearColor(0, 0, 0, 1);
  glClearDepth(1.0);
  glEnable(GL_DEPTH_TEST);
  glEnable(GL_COLOR_MATERIAL);
  glColorMaterial(GL_FRONT_AND_BACK, GL_AMBIENT_AND_DIFFUSE);
  glEnable(GL_LIGHTING);
  glEnable(GL_LIGHT0);
  FieldOfView = 30.0;
  ZNear = 0.5;
  ZFar = 200.0;
  AspectRatio = 1.0;
  DrawWorld();
  return true;
}

void TurnedPart::DrawWorld() {
  glPushMatrix();
  glNewList(kPartList, GL_COMPILE);
  const std::unique_ptr<GLUquadric, decltype(&gluDeleteQuadric)> quadric(gluNewQuadric(),
                                                                         &gluDeleteQuadric);
  // Before the rotation: the axes stay while the part turns.
  if (ShowAxes == kTrue) DrawAxes(quadric.get());
  glRotatef(static_cast<GLfloat>(RotX), 1, 0, 0);
  glRotatef(static_cast<GLfloat>(RotY), 0, 1, 0);
  glRotatef(static_cast<GLfloat>(RotZ), 0, 0, 1);
  // The quadric's Z axis becomes the X axis of the world.
  glRotatef(90, 0, 1, 0);
  if (!StockProfile.empty()) DrawPart(quadric.get());
  glEndList();
  glPopMatrix();
}

void TurnedPart::Display() {
  if (DisplayBusy != kFalse) return;
  DisplayBusy = kTrue;
  glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
  glPushMatrix();
  gluLookAt(10.0, 10.0, 10.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0);
  glCallList(kPartList);
  glPopMatrix();
  glFinish();
  if (SwapBuffers) SwapBuffers();
  DisplayBusy = kFalse;
}

void TurnedPart::OnSize(std::int32_t width, std::int32_t height) {
  if (height == 0) height = 1;
  AspectRatio = static_cast<double>(width) / height;
  glViewport(0, 0, width, height);
  SetPerspective();
}

void TurnedPart::SetPerspective() {
  glMatrixMode(GL_PROJECTION);
  glLoadIdentity();
  gluPerspective(FieldOfView, AspectRatio, ZNear, ZFar);
  glMatrixMode(GL_MODELVIEW);
  glLoadIdentity();
}
