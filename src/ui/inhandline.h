// The line that tells the element in hand.
#pragma once

#include <QLabel>
#include <QPushButton>

#include "ui/bindings.h"
#include "ui/elidedline.h"

namespace veneerer {

class InHandLine : public QWidget {
public:
  explicit InHandLine(const Ui& ui);

  QSize minimumSizeHint() const override { return QSize(200, sizeHint().height()); }

private:
  void tell();
  void showColours(const Element* element);

  Operator& hands_;
  Attachment watching_;
  ElidedLine* what_;
  QList<QLabel*> chips_;
  QLabel* elsewhere_;
  QPushButton* goThere_;
  QTimer telling_;
};

}  // namespace veneerer
