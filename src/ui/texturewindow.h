// Form5, "Texture Viewer": the picture of each screen above its caption.
#pragma once

#include <QWidget>

#include "ui/bindings.h"

namespace veneerer {

class TextureWindow : public QWidget {
public:
  explicit TextureWindow(const Ui& ui);
};

}  // namespace veneerer
