#include "motion/tool.h"

#include "platform/host/desktop.h"
#include "platform/host/pictures.h"
#include "settings/settings.h"

namespace Graphics {

std::int16_t ToolWidth;
std::int16_t ToolHeight;
ToolImage ToolDC;
int LastToolX;
int LastToolY;

void LoadTool(const std::string& path, std::int16_t width, std::int16_t height) {
  std::string reason;
  if (const auto picture = LoadPicture(path, reason)) {
    LoadTool(*picture, width, height);
    return;
  }
  FreeToolDCs();
  ToolWidth = width;
  ToolHeight = height;
  Desktop::MessageBox(reason);
}

void LoadTool(const Raster& picture, std::int16_t width, std::int16_t height) {
  FreeToolDCs();
  ToolWidth = width;
  ToolHeight = height;
  ToolDC = {Sprite(picture, width, height, kTransparent), GlobalVariables::Settings.SimBackColor};
}

void FreeToolDCs() {
  StockDC.Forget();
  ToolDC = {};
}

void ResetTool() {
  FreeToolDCs();
  ToolWidth = 0;
  ToolHeight = 0;
  LastToolX = 0;
  LastToolY = 0;
}

}  // namespace Graphics
