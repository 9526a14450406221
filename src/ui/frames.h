// The frames of the controls that paint themselves.
#pragma once

#include <QAbstractButton>
#include <QPainter>

namespace veneerer {

/// The frame around a control's whole area: a quiet line, a line in the colour of text under the pointer, and
/// a thick one in the colour of selections where the keys go.
void paintFrame(QPainter& painter, const QAbstractButton& control);

}  // namespace veneerer
