// Small steps that every window's layout is made of.
#pragma once

#include <QColor>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPalette>

namespace veneerer {

/// A titled frame around a layout, named by its title, or by that name where the title is translated.
QGroupBox* makeFrame(const QString& title, QLayout* content, const QString& name = {});

/// A label that leads to the control beside it.
QLabel* makeLabel(const QString& text, QWidget* control);

/// A label and its control in two cells of a row.
void addField(QGridLayout* grid, int row, int column, const QString& label, QWidget* control);

/// Narrow margins and gaps, so that a window fits beside the canvas.
template <class L>
L* compact(L* layout) {
  layout->setContentsMargins(6, 4, 6, 6);
  layout->setSpacing(4);
  return layout;
}

/// The ink of hints in fields and of what matters less: a dark theme may leave that of the toolkit black.
QColor hintInk(const QPalette& colours);

/// Where the inside of a dialog of that window can lie with its frame on the window's screen.
QRect roomForDialog(const QWidget& owner);

/// Gives a window its content, which scrolls where the window has less room than it needs.
void setContent(QWidget& window, QLayout* content);

/// Gives each label, box and button of a window without a mnemonic one of its own, as far as the letters go.
/// The first letters of words go first; those of the menus in the menu bar are left out.
void assignMnemonics(QWidget& window);

}  // namespace veneerer
