// What the lists, boxes and resolution fields of "File Controls/Settings" do to the canvas: each choice shows
// or hides whole families, so that the designer sees what the jukebox will show. Nothing moves, nothing is
// restyled. The loaders set the same controls, so these rules run during a load too.
#pragma once

#include <vector>

#include "forms/state.h"
#include "platform/platform.h"

namespace veneerer {

class SkinProperties {
public:
  SkinProperties(State& state, const Screen& screen);
  SkinProperties(const SkinProperties&) = delete;
  SkinProperties& operator=(const SkinProperties&) = delete;

  /// Combo4's rule for a change of its text. The text itself isn't read: the covers in use are those up to
  /// LastCoverIndex.
  void coverTextChanged();

private:
  using Handler = void (SkinProperties::*)();

  void bind(const Element& element, Property property, Handler handler);

  void tracksShown();
  void genresShown();
  void genreStyle();
  void genreNavigation();
  void jumpToLetter();
  void navigationStyle();
  void playerStyle();
  void otherAlbums();
  void quickjumpNames();
  void dateAndGenre();
  void featuredAlbum();
  void textOnlyList();
  void coverCountChosen();
  void skinWidth();
  void skinHeight();
  void sizeWindow(Axis axis);

  State& state_;
  const Screen screen_;
  std::vector<Attachment> attachments_;
};

}  // namespace veneerer
