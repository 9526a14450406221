// The whole program without its windows: the state, everything that acts on it, and the one way in for what
// an operator does. The windows and the batch tool are two thin shells around it.
#pragma once

#include <QSet>
#include <memory>
#include <optional>

#include "canvas/mousebutton.h"
#include "designer/takenlook.h"
#include "editing/arranging.h"
#include "editing/overlayselection.h"
#include "editing/setting.h"
#include "elements/controls.h"
#include "elements/dress.h"
#include "forms/state.h"
#include "history/history.h"
#include "platform/platform.h"
#include "platform/skinfolder.h"
#include "problems/remedy.h"

namespace veneerer {

class Designer {
public:
  /// Makes every element, on the built-in design. The platform must outlive the designer.
  explicit Designer(Platform& platform);
  ~Designer();
  Designer(const Designer&) = delete;
  Designer& operator=(const Designer&) = delete;

  State& state();
  const Platform& platform() const;
  /// The folder of the current Skin, whether or not it is there.
  SkinFolder skinFolder() const;

  // The calls below, and a change of an element that stands for an operator's choice, throw RecordError when
  // a file is malformed or can't be written. Such an error is fatal: the shell shows it and ends the program.

  /// Start-up: the splash's progress texts, the lists, the current Skin's name from the settings, the
  /// question whether to load it. True when it was answered OK and the Skin has been loaded; on false the
  /// chooser Form3 is visible, in which a choice runs the full load. The Skin of a given name is loaded
  /// without a question.
  bool startUp(const QString& skinName = {});

  /// Takes another Skin of the same root in hand, as a choice in Form3 does: lists the Skins in Form4.Combo3
  /// and runs the full load. One that can't be read at all is told in a box, and the Skin in hand stays.
  void openSkin(const QString& skinName);

  /// Lists the Skins of the root in Form4.Combo3 as they are now, which is no step.
  void listSkins();

  /// Picks another Skin of the same root, as a choice in Form4.Combo3 does: runs the reload.
  void reload(const QString& skinName);

  /// Goes on with a copy of the Skin in hand, of that name and the same root: as reload(), but what no reload
  /// reads comes along, and the pictures shown are the copy's own.
  void goOnWithCopy(const QString& skinName);

  /// Save Skin into the Skin's own folder, with its questions. What stands against writing is told in a box,
  /// and nothing has changed.
  void save();
  /// Save Skin into another folder. What stands against writing is thrown as WriteRefused.
  void saveTo(const SkinFolder& folder);

  /// Fills the list of fonts, Form6.List1; from then on it follows the Skin that is loaded. It grows slow
  /// with the user's fonts, so a shell asks for it when its first paint is done or the list is needed.
  void fillFonts();

  // What an operator does. Each call is an action that can be undone; a press, the moves behind it and the
  // click that ends them are one step, and so are the texts typed into one field one after the other.

  /// The click event of an element of the canvas, a command button, a thumbnail or a sample.
  void click(Element& element);
  /// The press event; x and y in twips in the element's own coordinates.
  void press(Element& element, float x, float y, MouseButton button);
  /// The move event; the button is the one held down.
  void move(Element& element, float x, float y, MouseButton button);
  /// An arrow key moves an element of the canvas by so many pixels: a left press at its corner and a move.
  /// Nudges of one element one directly behind the other are one step.
  void nudge(Element& element, int dxPixels, int dyPixels);
  /// The same for several at once, as one step. One that stands within another of them moves with that.
  void nudge(const std::vector<Element*>& elements, int dxPixels, int dyPixels);
  /// A handle gives the element in hand its size, each in twips: what Form6 has fields for is typed there,
  /// the height ahead of the width. Does nothing where the fields don't serve its Section. Sizes one directly
  /// behind the other are one step.
  void sizeInHand(std::optional<float> width, std::optional<float> height);
  /// Types a text into a text or combo box, which may be one letter more than before.
  void type(Element& field, const QString& text);
  /// Picks a row. False when the list has no such row.
  bool choose(RowList& list, int row);
  /// The second event of the cover list Form4.File1 on that row, without the question of the first.
  void chooseTwice(RowList& list, int row);
  /// Sets a check box, to 0 or 1.
  void tick(CheckBox& box, int value);
  void select(OptionButton& option);
  /// The operator sizes the canvas window; twips. The elements keep their places. Sizes one directly behind
  /// the other are one step.
  void resizeCanvas(float width, float height);

  // The designer's own hands: no Section takes part, and none of the tools' exceptions and limits.

  /// Sets one property of all these elements that have it.
  void setProperty(const std::vector<Element*>& elements, Property property, const Value& value);
  /// Gives the elements the colours of that dress, as one step.
  void recolour(const Dress& dress);
  /// Gives these elements what they can have of that look.
  void pasteLook(const CopiedLook& look, const std::vector<Element*>& to);
  /// The click on one of the two swatches of Form6 that ask for a colour, its dialog answered with that one.
  void giveColour(Element& swatch, Colour colour);
  /// Gives the screen that is shown the look that it has in another Skin of the root, as one step; pictures
  /// are copied. See lookToTake. What stands against it is told in a box, and nothing has changed.
  void takeLook(const QString& skinName, LookPart part);
  /// Puts what is selected on the overlay in line with its first element.
  void align(AlignTo line);
  void distribute(Along along);
  void makeSameSize(Sides sides);
  /// Does what the remedy of a finding says, files included, which no undo brings back. What stands against
  /// writing is told in a box, and nothing has changed.
  void apply(const Remedy& remedy);
  /// Whether drop() would do something with that file.
  bool takesPicture(Element& element, const QString& path);
  /// A picture file is dropped on an element of the canvas or a thumbnail: the file dialog of the button,
  /// panel or screen there is answered so. One step.
  void drop(Element& element, const QString& path);
  /// Other programs wrote these files: what shows one shows what it holds now. No step.
  void readAnew(const QSet<QString>& paths);
  /// What is selected on the overlay.
  OverlaySelection& overlay();

  /// What was done, for undo and redo. It begins behind start-up.
  History& history();

private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace veneerer
