// The tables of image references: what a record file said about a picture, kept so that the saver can write
// it back unchanged, whether or not the picture was there.
#pragma once

#include <QHash>
#include <memory>
#include <vector>

#include "forms/form1.h"

namespace veneerer {

/// An image reference that a record file tells, whether or not the picture is there.
class ImageSlot : public Element {
public:
  ImageSlot(Window& window, Family* family, int index) : Element(Kind::ImageSlot, window, family, index) {}

  const StoredValue& value() const { return as<StoredValue>(Property::Name); }
  QString text() const { return value().text(); }
  bool isEmpty() const { return value().isEmpty(); }
  void setValue(const StoredValue& value) { set(Property::Name, value); }
};

using ImageTable = Array<ImageSlot>;
using ImageNameSlot = Single<ImageSlot>;

/// The names are a window's families like all that can change; no window shows them.
class ImageNames : public Window {
public:
  ImageNames(Switchboard& board, Form1& form1);

  ImageTable ImageName{*this, "ImageName", 16};            ///< the backdrops; skin.ini stores 0 to 14
  ImageTable AlbumFrameName{*this, "AlbumFrameName", 28};  ///< the animated frame of each album cover

  // One name for each further screen, stored in that screen's own record file.
  ImageNameSlot SearchChoiceName{*this, "SearchChoiceName"};
  ImageNameSlot SearchResultsName{*this, "SearchResultsName"};
  ImageNameSlot JumpToLetterName{*this, "JumpToLetterName"};
  ImageNameSlot GenreName{*this, "GenreName"};
  ImageNameSlot PlayOptionsName{*this, "PlayOptionsName"};
  ImageNameSlot PinScreenName{*this, "PinScreenName"};
  ImageNameSlot DecadesYearName{*this, "DecadesYearName"};
  ImageNameSlot DecadesSelectorName{*this, "DecadesSelectorName"};
  ImageNameSlot DecadesMonthName{*this, "DecadesMonthName"};
  ImageNameSlot PlaylistLoadName{*this, "PlaylistLoadName"};
  ImageNameSlot PlaylistSaveName{*this, "PlaylistSaveName"};
  ImageNameSlot NoSearchName{*this, "NoSearchName"};
  ImageNameSlot RequestName{*this, "RequestName"};
  ImageNameSlot LoginName{*this, "LoginName"};
  ImageNameSlot MemberHomeName{*this, "MemberHomeName"};
  ImageNameSlot CollectionsName{*this, "CollectionsName"};
  ImageNameSlot ConfirmationName{*this, "ConfirmationName"};
  ImageNameSlot FreeCreditName{*this, "FreeCreditName"};
  ImageNameSlot FilterName{*this, "FilterName"};

  // Names without a slot in the texture viewer.
  ImageNameSlot MainPanelName{*this, "MainPanelName"};              ///< main.ini, shown in Picture2(12)
  ImageNameSlot NowPlayingPanelName{*this, "NowPlayingPanelName"};  ///< now_playing.ini, shown in Picture17
  ImageNameSlot FeedPanelName{*this, "FeedPanelName"};              ///< tracklist.ini, shown in Picture2(15)
  ImageNameSlot NavName{*this, "NavName"};                          ///< nav.ini, kept and written back
  ImageNameSlot Nav2Name{*this, "Nav2Name"};                        ///< nav2.ini, kept and written back
  ImageNameSlot PlayOptionsKeyboardName{*this, "PlayOptionsKeyboardName"};  ///< play_options.ini, kept
  ImageNameSlot MemberKeyboardName{*this, "MemberKeyboardName"};            ///< myvquill.ini, kept

  /// The table of a button family's pictures, by the button's index.
  ImageTable& ofButtons(const Family& family);

  /// Where the name of a button's or a panel's own picture is kept, null when it has none.
  ImageSlot* of(const Element& element);

private:
  Form1& form1_;
  std::vector<std::unique_ptr<ImageTable>> buttonTables_;
  QHash<const Family*, ImageTable*> byFamily_;
};

}  // namespace veneerer
