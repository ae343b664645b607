// The calls of OpenGL and GLU that draw a profile against those that tests/data/turned_part
// promises. This program brings its own bodies of them, which only take notes.

#include <GL/glu.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include "motion/stock.h"
#include "settings/settings.h"
#include "view3d/turned_part.h"

static std::ostringstream calls;

static void Record(const char* name, auto... arguments) {
  calls << '\n' << name;
  ((calls << ' ' << arguments), ...);
}

#define GL_BODY(name, parameters, ...)        \
  void name parameters {                      \
    Record(#name __VA_OPT__(, ) __VA_ARGS__); \
  }
using Q = GLUquadric*;
GL_BODY(glColor3f, (float red, float green, float blue), red, green, blue)
GL_BODY(glEndList, ())
GL_BODY(glNewList, (GLuint list, GLenum mode), list, mode)
GL_BODY(glPopMatrix, ())
GL_BODY(glPushMatrix, ())
GL_BODY(glRotatef, (float angle, float x, float y, float z), angle, x, y, z)
GL_BODY(glTranslatef, (float x, float y, float z), x, y, z)
GL_BODY(gluCylinder, (Q q, double b, double t, double h, int s, int k), q, b, t, h, s, k)
GL_BODY(gluDeleteQuadric, (Q q), q)
GL_BODY(gluDisk, (Q q, double i, double o, int s, int k), q, i, o, s, k)
Q gluNewQuadric() {
  Record("gluNewQuadric");
  return reinterpret_cast<Q>(1);
}

TEST(TurnedPartCallsTest, AreThoseOfTheFiles) {
  GlobalVariables::Settings.WorkPieceColor = Rgb(255, 0, 51);
  int files = 0;
  for (const auto& file : std::filesystem::directory_iterator(TURNBAY_CALLS)) {
    ++files;
    calls.str("");
    std::string expected;
    std::ifstream lines(file.path());
    for (std::string line; std::getline(lines, line);) {
      if (line.starts_with("  ")) expected += '\n' + line.substr(2, line.find(" #") - 2);
      if (!line.starts_with("draw ")) continue;
      std::istringstream words(line.substr(5));
      TurnedPart part;
      words >> part.ShowAxes >> part.RotX >> part.RotY >> part.RotZ;
      Graphics::StockProfile.clear();
      Graphics::ProfileColumn column;
      char sign = 0;
      for (int i = 0; words >> i >> sign >> column.Radius >> sign >> column.TaperMark;) {
        while (i-- > 0) Graphics::StockProfile.push_back(column);
      }
      part.DrawWorld();
    }
    EXPECT_NE("", expected) << file.path();
    EXPECT_EQ(expected, calls.str()) << file.path();
  }
  EXPECT_LT(0, files);
}
