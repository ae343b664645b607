#include "apps/turned_part_picture.h"

#include "view3d/off_screen.h"
#include "view3d/turned_part.h"

bool DrawTurnedPart(int width, int height, Raster& picture, std::string& reason) {
  OffScreen screen;
  TurnedPart part;
  if (!part.Initialize([&] { return screen.Create(width, height, reason); })) return false;
  part.OnSize(width, height);
  part.Display();
  picture = screen.Read();
  return true;
}
