// The line that tells the element in hand.
#pragma once

#include <QLabel>
#include <QPushButton>

#include "ui/bindings.h"

namespace veneerer {

class InHandLine : public QWidget {
public:
  explicit InHandLine(const Ui& ui);

  QSize minimumSizeHint() const override { return QSize(200, sizeHint().height()); }

protected:
  void resizeEvent(QResizeEvent* event) override;

private:
  void tell();
  void showText();
  void showColours(const Element* element);

  Operator& hands_;
  Attachment watching_;
  QString text_;
  QLabel* what_;
  QList<QLabel*> chips_;
  QLabel* elsewhere_;
  QPushButton* goThere_;
  QTimer telling_;
};

}  // namespace veneerer
