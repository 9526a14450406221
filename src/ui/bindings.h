// One binding for each kind of control, and the functions that make a control with its binding. What the
// operator does goes to the element; what the element becomes, by whatever hand, comes back by its notices.
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>

#include "elements/controls.h"
#include "elements/label.h"
#include "ui/binding.h"
#include "ui/controls.h"
#include "ui/operator.h"
#include "ui/picturefetcher.h"
#include "ui/plaintext.h"

namespace veneerer {

class DiskFollower;

/// What every window is made with.
struct Ui {
  Operator& hands;
  PictureFetcher& pictures;
  DiskFollower& disk;
};

// The caption of a window's control shows "&&" as "&". Element captions are never rich text.

QLineEdit* makeField(const Ui& ui, TextBox& element);
TextCombo* makeCombo(const Ui& ui, ComboBox& element);
/// A combo box that can be typed into.
TextCombo* makeEditableCombo(const Ui& ui, ComboBox& element);
/// A list whose single choice is a click.
RowListView* makeList(const Ui& ui, RowList& element);
/// The list of cover files: a double click is an event of its own and spares the operator the click's
/// question.
RowListView* makeFileList(const Ui& ui, FileList& element);
QCheckBox* makeCheck(const Ui& ui, CheckBox& element);
QRadioButton* makeOption(const Ui& ui, OptionButton& element);
QPushButton* makeCommand(const Ui& ui, CommandButton& element);
QLabel* makeCaption(const Ui& ui, Label& element);

/// Gives the widget the tool tip that its element has in the state, else what it does for what is in hand.
void showTip(State& state, const Element& element, QWidget& widget);

/// For a control that paints its element itself: it is painted anew after each change and when its picture
/// has been fetched, takes the focus by the tabulator, and a click on it is the click event of the element.
void bindPainted(const Ui& ui, Element& element, QAbstractButton& widget);

}  // namespace veneerer
