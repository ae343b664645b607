#include "motion/tool.h"

#include "platform/host/desktop.h"
#include "platform/host/pictures.h"
#include "settings/settings.h"

namespace Graphics {

std::int16_t ToolWidth = 0;
std::int16_t ToolHeight = 0;
ToolImage ToolDC;
int LastToolX = 0;
int LastToolY = 0;

void LoadTool(const std::string& path, std::int16_t width, std::int16_t height) {
  FreeToolDCs();
  ToolWidth = width;
  ToolHeight = height;
  std::string reason;
  const auto picture = LoadPicture(path, reason);
  if (!picture) {
    Desktop::MessageBox(reason);
    return;
  }
  LoadTool(*picture, width, height);
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
