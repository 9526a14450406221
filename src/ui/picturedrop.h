// Picture files dropped on widgets.
#pragma once

#include <QWidget>
#include <functional>

#include "ui/operator.h"

namespace veneerer {

/// From now on the widget takes a picture file that is dropped where the function finds an element which has
/// a use for it; any other drop goes to the widget's parent. Both must outlive the widget.
void takePictures(QWidget& widget, Operator& hands, std::function<Element*(QPointF place)> elementAt);

}  // namespace veneerer
