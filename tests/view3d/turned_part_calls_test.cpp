// The calls of OpenGL and GLU against those that tests/data/turned_part promises. This program
// brings its own bodies of them, which only take notes.

#include <GL/glu.h>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include "motion/stock.h"
#include "settings/settings.h"
#include "view3d/turned_part.h"

namespace {

std::string calls;

std::string Text(const GLUquadric* /*quadric*/) {
  return " q";
}

std::string Text(double number) {
  char text[32];
  // The sum makes no difference between the zeros.
  std::snprintf(text, sizeof text, " %.7g", number + 0.0);
  return text;
}

template <class... Arguments>
void Record(const char* name, Arguments... arguments) {
  calls += (std::string(name) + ... + Text(arguments)) + '\n';
}

}  // namespace

#define GL_BODY(name, parameters, ...)        \
  void name parameters {                      \
    Record(#name __VA_OPT__(, ) __VA_ARGS__); \
  }
using F = GLfloat;
using D = GLdouble;
GL_BODY(glCallList, (GLuint list), list)
GL_BODY(glClear, (GLbitfield mask), mask)
GL_BODY(glClearColor, (F red, F green, F blue, F alpha), red, green, blue, alpha)
GL_BODY(glClearDepth, (D depth), depth)
GL_BODY(glColor3f, (F red, F green, F blue), red, green, blue)
GL_BODY(glColorMaterial, (GLenum face, GLenum mode), face, mode)
GL_BODY(glEnable, (GLenum what), what)
GL_BODY(glEndList, ())
GL_BODY(glFinish, ())
GL_BODY(glLoadIdentity, ())
GL_BODY(glMatrixMode, (GLenum mode), mode)
GL_BODY(glNewList, (GLuint list, GLenum mode), list, mode)
GL_BODY(glPopMatrix, ())
GL_BODY(glPushMatrix, ())
GL_BODY(glRotatef, (F angle, F x, F y, F z), angle, x, y, z)
GL_BODY(glTranslatef, (F x, F y, F z), x, y, z)
GL_BODY(glViewport, (GLint x, GLint y, GLsizei width, GLsizei height), x, y, width, height)
GL_BODY(gluCylinder, (GLUquadric * q, D base, D top, D height, GLint slices, GLint stacks), q, base,
        top, height, slices, stacks)
GL_BODY(gluDeleteQuadric, (GLUquadric * q), q)
GL_BODY(gluDisk, (GLUquadric * q, D in, D out, GLint slices, GLint loops), q, in, out, slices,
        loops)
GL_BODY(gluLookAt, (D ex, D ey, D ez, D cx, D cy, D cz, D ux, D uy, D uz), ex, ey, ez, cx, cy, cz,
        ux, uy, uz)
GL_BODY(gluPerspective, (D angle, D aspect, D near, D far), angle, aspect, near, far)
GLUquadric* gluNewQuadric() {
  Record("gluNewQuadric");
  return reinterpret_cast<GLUquadric*>(&calls);
}

namespace {

// Carries out one line of a file.
void Do(const std::string& line, TurnedPart& part) {
  std::istringstream words(line);
  std::string verb;
  words >> verb;
  int width = 0;
  int height = 0;
  if (verb == "axes") part.ShowAxes = kTrue;
  if (verb == "turn") words >> part.RotX >> part.RotY >> part.RotZ;
  if (verb == "draw") part.DrawWorld();
  if (verb == "display") part.Display();
  if (verb == "size" && words >> width >> height) part.OnSize(width, height);
  if (verb == "initialize") {
    EXPECT_FALSE(part.Initialize([] { return false; }));
    EXPECT_TRUE(part.Initialize([] { return Record("makeContext"), true; }));
  }
  if (verb != "profile") return;
  Graphics::StockProfile.clear();
  char sign = 0;
  Graphics::ProfileColumn column;
  while (words >> width >> sign >> column.Radius >> sign >> column.TaperMark) {
    Graphics::StockProfile.insert(Graphics::StockProfile.end(), width, column);
  }
}

TEST(TurnedPartCallsTest, AreThoseOfTheFiles) {
  GlobalVariables::Settings.WorkPieceColor = Rgb(255, 0, 51);
  int files = 0;
  for (const auto& file : std::filesystem::directory_iterator(TURNBAY_CALLS)) {
    Graphics::StockProfile.clear();
    TurnedPart part;
    part.SwapBuffers = [&part] { Record("SwapBuffers"), part.Display(); };
    calls.clear();
    std::string expected;
    std::ifstream lines(file.path());
    for (std::string line; std::getline(lines, line);) {
      line.erase(std::min(line.find('#'), line.size()));
      line.erase(line.find_last_not_of(' ') + 1);
      if (line.starts_with("  ")) {
        expected += line.substr(2) + '\n';
      } else {
        Do(line, part);
      }
    }
    EXPECT_EQ(expected, calls) << file.path();
    ++files;
  }
  EXPECT_EQ(8, files);
}

}  // namespace
