// The dialog "New Skin": what a whole new Skin is to be like, with pictures of it that follow every change.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFutureWatcher>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <array>
#include <functional>

#include "looks/glimpse.h"

namespace veneerer {

/// Changes nothing: it only asks. The pictures are drawn on another thread, one set at a time; changes that
/// come meanwhile are drawn together.
class NewSkinDialog : public QDialog {
  Q_OBJECT

public:
  /// Why no Skin can have a name, in one sentence, empty when one can.
  using FaultOfName = std::function<QString(const QString& name)>;

  NewSkinDialog(const QString& name, FaultOfName faultOfName, QWidget* parent);
  ~NewSkinDialog() override;

  QString name() const { return name_->text().trimmed(); }
  looks::Wish wish() const;

Q_SIGNALS:
  /// The pictures show what the fields say.
  void drawn();

private:
  QLayout* makeFields();
  QLayout* makePictures();
  QWidget* makeColours();
  void chooseLook();
  void chooseColour(int which);
  void setColour(int which, const QColor& colour);
  QSize size() const;
  QString fault() const;
  void changed();
  void draw();
  void show(const looks::Glimpse& glimpse);

  static constexpr int kColours = 3;
  static constexpr int kScreens = 4;

  FaultOfName faultOfName_;
  QLineEdit* name_;
  QComboBox* look_;
  QLabel* what_;
  QComboBox* size_;
  QComboBox* font_;
  std::array<QPushButton*, kColours> colourButtons_{};
  std::array<QColor, kColours> colours_;
  std::array<QLabel*, kScreens> pictures_{};
  QLabel* notes_;
  QDialogButtonBox* buttons_;
  QFutureWatcher<looks::Glimpse> drawing_;
  bool isStale_ = false;
};

}  // namespace veneerer
