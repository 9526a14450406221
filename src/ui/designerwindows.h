// All windows of a designer, each tied to its element.
#pragma once

#include "ui/buttonsettingswindow.h"
#include "ui/canvaswindow.h"
#include "ui/chooserwindow.h"
#include "ui/settingswindow.h"
#include "ui/splashwindow.h"
#include "ui/texturewindow.h"
#include "ui/toolswindow.h"
#include "ui/windowbinding.h"

namespace veneerer {

class DesignerWindows {
public:
  /// The windows come up when their elements are made visible. The designer must outlive them.
  explicit DesignerWindows(Designer& designer);

private:
  WindowBinding* bind(Window& element, QWidget& widget, OnClose onClose);
  WindowBinding* bindBeside(Window& element, QWidget& widget, OnClose onClose);
  void bindCanvas(State& state);
  void placeAll();

  Operator hands_;
  PictureFetcher pictures_;
  Ui ui_;
  SplashWindow splash_;
  ChooserWindow chooser_;
  CanvasWindow canvas_;
  ToolsWindow tools_;
  SettingsWindow settings_;
  TextureWindow textures_;
  ButtonSettingsWindow buttons_;
  bool placed_ = false;
};

}  // namespace veneerer
