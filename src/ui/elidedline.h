// One line of text, cut with dots where it doesn't fit.
#pragma once

#include <QLabel>

namespace veneerer {

/// A label's own text lays out the whole window anew whenever it changes; this one is only painted, and never
/// asks for more width. The whole text is the tool tip.
class ElidedLine : public QLabel {
public:
  ElidedLine();

  void setLine(const QString& text);

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  QString line_;
};

}  // namespace veneerer
