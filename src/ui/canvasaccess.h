// The canvas for assistive tools, with its elements as children.
#pragma once

namespace veneerer {

class CanvasWidget;

/// From now on each canvas tells assistive tools its elements: name, kind, place, whether they are seen, and
/// a press that is the element's click. May be called again.
void exposeCanvases();

/// Tells assistive tools that another element of the canvas is selected.
void tellSelected(CanvasWidget& canvas);

}  // namespace veneerer
