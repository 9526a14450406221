// The operator's hands: the one way from the windows into the designer.
#pragma once

#include <QObject>
#include <QTimer>
#include <functional>
#include <optional>

#include "designer/designer.h"
#include "skin/recordplaces.h"

namespace veneerer {

/// Passes on what the operator does to elements and tells the windows when it has been done.
class Operator : public QObject {
  Q_OBJECT

public:
  explicit Operator(Designer& designer);
  ~Operator() override;

  State& state() { return designer_.state(); }
  History& history() { return designer_.history(); }
  /// Where a save writes the properties of the elements as they are.
  const RecordPlaces& places();
  SkinFolder skinFolder() const { return designer_.skinFolder(); }
  Dialogs& dialogs() { return designer_.platform().dialogs; }
  const Platform& platform() const { return designer_.platform(); }
  Disk& disk() { return designer_.platform().disk; }
  const Screen& screen() const { return designer_.platform().screen; }

  /// Runs what changes nothing of the Skin but may take long: no action begins meanwhile.
  void run(const std::function<void()>& command);

  /// What is taken in hand by it isn't to be mistaken for what is selected: nothing is selected any more.
  void click(Element& element);
  /// x and y in twips in the element's own coordinates. With the left button nothing is selected any more.
  void press(Element& element, float x, float y, MouseButton button);
  /// As press; the button is the one held down.
  void move(Element& element, float x, float y, MouseButton button);
  /// The button was released: what comes next is another gesture.
  void release() { designer_.history().settle(); }
  /// An arrow key moves the elements by so many pixels.
  void nudge(const std::vector<Element*>& elements, int dxPixels, int dyPixels);
  /// A handle gives the element in hand its size; twips.
  void sizeInHand(std::optional<float> width, std::optional<float> height);
  /// A handle gives the canvas window its size; twips.
  void resizeCanvas(float width, float height);
  void type(Element& field, const QString& text);
  void choose(RowList& list, int row);
  /// The second event of the cover list, on that row.
  void chooseTwice(RowList& list, int row);
  void tick(CheckBox& box, int value);
  /// Sets a property of all these elements.
  void set(const std::vector<Element*>& elements, Property property, const Value& value);
  void recolour(const Dress& dress);
  void pasteLook(const CopiedLook& look, const std::vector<Element*>& to);
  void giveColour(Element& swatch, Colour colour);
  void takeLook(const QString& skinName, LookPart part);
  void align(AlignTo line);
  void distribute(Along along);
  void makeSameSize(Sides sides);
  void apply(const Remedy& remedy);
  bool takesPicture(Element& element, const QString& path) { return designer_.takesPicture(element, path); }
  /// A picture file is dropped on the element.
  void drop(Element& element, const QString& path);
  /// Other programs wrote these files.
  void readAnew(const QSet<QString>& paths);
  /// Reads the record files of the Skin in hand again.
  void reload();
  /// What leaves the sight with its screen leaves the selection as well.
  OverlaySelection& overlay() { return designer_.overlay(); }
  /// The next press on the canvas picks the colour that is seen there, and is no press.
  void pickColour(std::function<void(Colour)> picked) { Q_EMIT pickingColour(std::move(picked)); }

  /// While an action is under way, which may show dialogs or wait for a picture, no other one is to begin.
  bool isActing() const { return isActing_; }
  /// Loads another Skin of the program's folder.
  void openSkin(const QString& name);
  /// The picture of a file, a null image where it can't be decoded; the windows stay alive meanwhile.
  QImage decoded(const QString& path);
  /// Lists the Skins as they are on the disk now.
  void listSkins();
  void goOnWithCopy(const QString& skinName);
  /// Fills the list of fonts; slow.
  void fillFonts();

Q_SIGNALS:
  /// An action has ended: the element in hand may be another one.
  void acted();
  /// Something else is selected, or locked, on the overlay.
  void selected();
  void pickingColour(std::function<void(veneerer::Colour)> picked);

private:
  template <class Action>
  void act(Action action);

  Designer& designer_;
  std::optional<RecordPlaces>
      places_;  ///< nothing until it is asked for; they move with the number of covers
  Attachment coversWatching_;
  QTimer rest_;  ///< ends a burst of typing
  bool isActing_ = false;
};

}  // namespace veneerer
