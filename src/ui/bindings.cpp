#include "ui/bindings.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QStyleHints>

#include "elements/printable.h"
#include "tools/service.h"
#include "ui/keys.h"
#include "ui/paintedaccess.h"

namespace veneerer {

namespace {

// Leaves the keys of undo and redo to the history.
class NoUndoOfItsOwn : public QObject {
public:
  using QObject::QObject;

protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::ShortcutOverride) return false;
    const QKeySequence keys(static_cast<QKeyEvent*>(event)->keyCombination());
    return kUndoKeys.contains(keys) || kRedoKeys.contains(keys);
  }
};

// Each letter is told at once. The burst that is one step ends with Enter, the loss of the focus or a rest;
// the field's own undo would undo half of it.
void bindTyping(const Ui& ui, Element& element, QLineEdit& field, QObject& owner) {
  Operator& hands = ui.hands;
  QObject::connect(&field, &QLineEdit::textEdited, &owner,
                   [&](const QString& text) { hands.type(element, text); });
  QObject::connect(&field, &QLineEdit::editingFinished, &owner, [&] { hands.release(); });
  field.installEventFilter(new NoUndoOfItsOwn(&owner));
}

class FieldBinding : public Binding {
public:
  FieldBinding(const Ui& ui, TextBox& box, QLineEdit& widget)
      : Binding(box, widget), box_(box), widget_(widget) {
    bindTyping(ui, box, widget, *this);
    show(Property::Text);
  }
  void show(Property) override {
    // Setting the text that stands there already would move the operator's cursor.
    if (widget_.text() != box_.text()) widget_.setText(box_.text());
  }

private:
  TextBox& box_;
  QLineEdit& widget_;
};

class ComboBinding : public Binding {
public:
  ComboBinding(const Ui& ui, ComboBox& box, TextCombo& widget)
      : Binding(box, widget), hands_(ui.hands), box_(box), widget_(widget) {
    connect(&widget, &QComboBox::activated, this, &ComboBinding::choose);
    if (widget.isEditable()) bindTyping(ui, box, *widget.lineEdit(), *this);
    show(Property::List);
  }
  void show(Property) override { widget_.present(box_.list(), box_.listIndex(), box_.text()); }

private:
  void choose(int row) {
    hands_.choose(box_, row);
    show(Property::ListIndex);
  }
  Operator& hands_;
  ComboBox& box_;
  TextCombo& widget_;
};

class ListBinding : public Binding {
public:
  ListBinding(const Ui& ui, RowList& list, RowListView& widget)
      : Binding(list, widget), hands_(ui.hands), list_(list), widget_(widget) {
    connect(&widget, &RowListView::chosen, this, &ListBinding::chosen);
    ListBinding::show(Property::List);
  }
  void show(Property) override { widget_.present(list_.list(), list_.listIndex()); }

protected:
  virtual void chosen(int row) { choose(row); }
  void choose(int row) {
    hands_.choose(list_, row);
    show(Property::ListIndex);
  }
  Operator& hands_;
  RowList& list_;
  RowListView& widget_;
};

// A click asks a question, a double click asks none: so a click waits for as long as it may still become the
// first half of a double click.
class FileListBinding : public ListBinding {
public:
  FileListBinding(const Ui& ui, FileList& list, RowListView& widget) : ListBinding(ui, list, widget) {
    wait_.setSingleShot(true);
    connect(&wait_, &QTimer::timeout, this, &FileListBinding::chooseAtLast);
    connect(&widget, &RowListView::choseTwice, this, &FileListBinding::choseTwice);
  }

private:
  void chosen(int row) override {
    row_ = row;
    wait_.start(QGuiApplication::styleHints()->mouseDoubleClickInterval());
  }
  // The list may have been filled anew meanwhile.
  void chooseAtLast() {
    if (hands_.isActing())
      wait_.start();
    else if (list_.hasRow(row_))
      choose(row_);
  }
  void choseTwice(int row) {
    wait_.stop();
    if (row >= 0 && list_.hasRow(row)) hands_.chooseTwice(list_, row);
    show(Property::ListIndex);
  }
  QTimer wait_;
  int row_ = -1;
};

class CheckBinding : public Binding {
public:
  CheckBinding(const Ui& ui, CheckBox& box, QCheckBox& widget)
      : Binding(box, widget), box_(box), widget_(widget) {
    connect(&widget, &QCheckBox::clicked, this, [this, &hands = ui.hands] {
      hands.tick(box_, box_.isTicked() ? 0 : 1);
      show(Property::Value);
    });
    show(Property::Caption);
    show(Property::Value);
  }
  void show(Property changed) override {
    if (changed == Property::Caption) return widget_.setText(box_.caption());
    constexpr Qt::CheckState kStates[] = {Qt::Unchecked, Qt::Checked, Qt::PartiallyChecked};
    widget_.setCheckState(kStates[box_.value()]);
  }

private:
  CheckBox& box_;
  QCheckBox& widget_;
};

class OptionBinding : public Binding {
public:
  OptionBinding(const Ui& ui, OptionButton& option, QRadioButton& widget)
      : Binding(option, widget), option_(option), widget_(widget) {
    connect(&widget, &QRadioButton::clicked, this, [this, &hands = ui.hands] {
      hands.click(option_);
      show(Property::Value);
    });
    show(Property::Caption);
    show(Property::Value);
  }
  void show(Property changed) override {
    if (changed == Property::Caption) return widget_.setText(option_.caption());
    // An exclusive widget refuses to be released while no other of its group is chosen.
    widget_.setAutoExclusive(false);
    widget_.setChecked(option_.isSelected());
    widget_.setAutoExclusive(true);
  }

private:
  OptionButton& option_;
  QRadioButton& widget_;
};

class CommandBinding : public Binding {
public:
  CommandBinding(const Ui& ui, CommandButton& command, QPushButton& widget)
      : Binding(command, widget), command_(command), widget_(widget) {
    connect(&widget, &QPushButton::clicked, this, [this, &hands = ui.hands] { hands.click(command_); });
    show(Property::Caption);
  }
  void show(Property) override { widget_.setText(command_.caption()); }

private:
  CommandButton& command_;
  QPushButton& widget_;
};

class CaptionBinding : public Binding {
public:
  CaptionBinding(const Ui&, Label& label, QLabel& widget)
      : Binding(label, widget), label_(label), widget_(widget) {
    widget.setTextFormat(Qt::PlainText);
    show(Property::Caption);
  }
  void show(Property) override { widget_.setText(shownText(label_.caption())); }

private:
  Label& label_;
  QLabel& widget_;
};

class PaintedBinding : public Binding {
public:
  PaintedBinding(const Ui& ui, Element& element, QAbstractButton& widget)
      : Binding(element, widget), widget_(widget) {
    exposePaintedControls();
    show(Property::Caption);
    connect(&widget, &QAbstractButton::clicked, this,
            [&element, &hands = ui.hands] { hands.click(element); });
  }
  void show(Property changed) override {
    if (changed == Property::Width || changed == Property::Height) widget_.updateGeometry();
    if (changed == Property::Caption && element().has(Property::Caption))
      widget_.setAccessibleName(shownText(element().as<QString>(Property::Caption)));
    widget_.update();
  }

private:
  QAbstractButton& widget_;
};

template <class B, class W, class E>
W* bound(const Ui& ui, E& element, W* widget) {
  new B(ui, element, *widget);
  showTip(ui.hands.state(), element, *widget);
  return widget;
}

}  // namespace

void showTip(State& state, const Element& element, QWidget& widget) {
  const QString& own = element.toolTipText();
  QStringList lines;
  for (const QString& line : own.isEmpty() ? toolTipOf(state, element).split(u'\n') : QStringList{own})
    lines.append(plainToolTip(line));
  widget.setToolTip(lines.join(u'\n'));
}

QLineEdit* makeField(const Ui& ui, TextBox& element) {
  return bound<FieldBinding>(ui, element, new QLineEdit);
}

TextCombo* makeCombo(const Ui& ui, ComboBox& element) {
  return bound<ComboBinding>(ui, element, new TextCombo);
}

TextCombo* makeEditableCombo(const Ui& ui, ComboBox& element) {
  auto* combo = new TextCombo;
  combo->setEditable(true);
  combo->setCompleter(nullptr);
  return bound<ComboBinding>(ui, element, combo);
}

RowListView* makeList(const Ui& ui, RowList& element) {
  return bound<ListBinding>(ui, element, new RowListView);
}

RowListView* makeFileList(const Ui& ui, FileList& element) {
  return bound<FileListBinding>(ui, element, new RowListView);
}

QCheckBox* makeCheck(const Ui& ui, CheckBox& element) {
  return bound<CheckBinding>(ui, element, new QCheckBox);
}

QRadioButton* makeOption(const Ui& ui, OptionButton& element) {
  return bound<OptionBinding>(ui, element, new QRadioButton);
}

QPushButton* makeCommand(const Ui& ui, CommandButton& element) {
  QPushButton* button = bound<CommandBinding>(ui, element, new TightButton);
  button->setAutoDefault(false);
  return button;
}

QLabel* makeCaption(const Ui& ui, Label& element) {
  return bound<CaptionBinding>(ui, element, new QLabel);
}

void bindPainted(const Ui& ui, Element& element, QAbstractButton& widget) {
  widget.setFocusPolicy(Qt::TabFocus);
  widget.setCursor(Qt::PointingHandCursor);
  new PaintedBinding(ui, element, widget);
  showTip(ui.hands.state(), element, widget);
  if (!element.has(Property::Picture)) return;
  QObject::connect(&ui.pictures, &PictureFetcher::fetched, &widget, [&](const Picture& picture) {
    if (element.as<Picture>(Property::Picture) == picture) widget.update();
  });
}

}  // namespace veneerer
