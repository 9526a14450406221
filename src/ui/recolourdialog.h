// The dialog "Recolour": other colours for the Skin in hand, seen on the canvas as they are chosen.
#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "recolouring/recolouredcopy.h"
#include "ui/colourlist.h"
#include "ui/recolourpreview.h"
#include "ui/turnsliders.h"

namespace veneerer {

/// Stays open beside the canvas, on which everything can go on meanwhile. OK is one step, or makes a new
/// Skin; until then nothing changes. Another Skin in hand ends it.
class RecolourDialog : public QDialog {
public:
  RecolourDialog(const Ui& ui, CanvasWidget& canvas, QWidget& owner);

  void accept() override;

private:
  QLayout* makeColours();
  QLayout* makeScope();
  QLayout* makeFaint();
  QLayout* makeButtons();
  void replaceChosen();
  void keepChosen();
  void enableKeys();
  void reset();
  void mapChanged();
  void picturesTicked();
  void tellFaint(bool isAll);
  void goTo(const QListWidgetItem* row);
  void recolourInHand();
  bool copyAsNewSkin();

  Operator& hands_;
  QWidget& owner_;
  QString skin_;  ///< the path of the folder of the Skin that it is about
  RecolourPreview preview_;
  ColourMap map_;
  ColourList* colours_;
  QPushButton* replace_;
  QPushButton* keep_;
  TurnSliders* sliders_;
  QRadioButton* wholeSkin_;
  QRadioButton* thisScreen_;
  QCheckBox* pictures_;
  QLabel* told_;
  QListWidget* faint_;
  QPushButton* ok_;
};

/// Appends the command "Recolour...". Its dialog belongs to the owner; the canvas must outlive the menu.
void addRecolourCommand(QMenu& menu, const Ui& ui, CanvasWidget& canvas, QWidget& owner);

}  // namespace veneerer
