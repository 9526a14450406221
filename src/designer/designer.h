// The whole program without its windows: the state, everything that acts on it, and the one way in for what
// an operator does. The windows and the batch tool are two thin shells around it.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "canvas/mousebutton.h"
#include "forms/state.h"
#include "platform/platform.h"

namespace veneerer {

class Designer {
public:
  /// Makes every element, on the built-in design, and fills the lists. The platform must outlive the
  /// designer.
  explicit Designer(Platform& platform);
  ~Designer();

  State& state();
  const Platform& platform() const;

  /// Start-up: the splash's progress texts, the current Skin's name from the settings, the question whether
  /// to load it. True when it was answered OK and the Skin has been loaded; on false the chooser Form3 is
  /// visible. Throws RecordError for a malformed file.
  bool startUp();

  /// Full load of the Skin named by Form4.Combo3. Throws RecordError.
  void load();
  /// Save Skin, with its questions. Throws RecordError when a file can't be written.
  void save();

  // What an operator does. Typing, ticking and choosing are changes of the elements themselves
  // (TextBox::setText, CheckBox::setValue, OptionButton::select, RowList::select), which act by their
  // notices.

  /// The click event of an element of the canvas, a command button, a thumbnail or a sample.
  void click(Element& element);
  /// The press event; x and y in twips in the element's own coordinates.
  void press(Element& element, float x, float y, MouseButton button);
  /// The move event; the button is the one held down.
  void move(Element& element, float x, float y, MouseButton button);
  /// The second event of the cover list Form4.File1, on its chosen row.
  void doubleClick(Element& element);
  /// The operator sizes the canvas window; twips.
  void resizeCanvas(float width, float height);

  /// Which windows stand open is the state's business: a window is shown while its element is Visible.

private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace veneerer
