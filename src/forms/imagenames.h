// The tables of image references: what a record file said about a picture, kept so that the saver can write
// it back unchanged, whether or not the picture was there.
#pragma once

#include <QHash>
#include <QString>
#include <memory>
#include <variant>
#include <vector>

#include "forms/form1.h"

namespace veneerer {

/// A value that a loader kept as it was read: nothing, a text, or a number.
class StoredValue {
public:
  StoredValue() = default;
  StoredValue(const QString& text) : value_(text) {}  // NOLINT(google-explicit-constructor): names are texts
  explicit StoredValue(double number) : value_(number) {}

  bool isNumber() const { return std::holds_alternative<double>(value_); }
  double number() const { return std::get<double>(value_); }
  /// The value as a text; a number in its plain form.
  QString text() const;
  bool isEmpty() const { return !isNumber() && std::get<QString>(value_).isEmpty(); }

  bool operator==(const StoredValue&) const = default;

private:
  std::variant<QString, double> value_;
};

/// A table of image references, or a single one.
class ImageTable {
public:
  ImageTable(const char* name, int count, bool isArray = true)
      : name_(QString::fromLatin1(name)), entries_(static_cast<std::size_t>(count)), isArray_(isArray) {}

  const QString& name() const { return name_; }
  bool isArray() const { return isArray_; }
  int count() const { return static_cast<int>(entries_.size()); }
  StoredValue& operator[](int index) { return entries_.at(static_cast<std::size_t>(index)); }
  const StoredValue& operator[](int index) const { return entries_.at(static_cast<std::size_t>(index)); }

private:
  QString name_;
  std::vector<StoredValue> entries_;
  bool isArray_;
};

/// One image reference under a name of its own.
class ImageNameSlot : public ImageTable {
public:
  explicit ImageNameSlot(const char* name) : ImageTable(name, 1, false) {}
  StoredValue& value() { return (*this)[0]; }
  void operator=(const QString& name) { value() = name; }
};

class ImageNames {
public:
  explicit ImageNames(Form1& form1);
  ImageNames(const ImageNames&) = delete;
  ImageNames& operator=(const ImageNames&) = delete;

  ImageTable ImageName{"ImageName", 16};            ///< the backdrops; skin.ini stores 0 to 14
  ImageTable AlbumFrameName{"AlbumFrameName", 28};  ///< the animated frame of each album cover

  // One name for each further screen, stored in that screen's own record file.
  ImageNameSlot SearchChoiceName{"SearchChoiceName"};
  ImageNameSlot SearchResultsName{"SearchResultsName"};
  ImageNameSlot JumpToLetterName{"JumpToLetterName"};
  ImageNameSlot GenreName{"GenreName"};
  ImageNameSlot PlayOptionsName{"PlayOptionsName"};
  ImageNameSlot PinScreenName{"PinScreenName"};
  ImageNameSlot DecadesYearName{"DecadesYearName"};
  ImageNameSlot DecadesSelectorName{"DecadesSelectorName"};
  ImageNameSlot DecadesMonthName{"DecadesMonthName"};
  ImageNameSlot PlaylistLoadName{"PlaylistLoadName"};
  ImageNameSlot PlaylistSaveName{"PlaylistSaveName"};
  ImageNameSlot NoSearchName{"NoSearchName"};
  ImageNameSlot RequestName{"RequestName"};
  ImageNameSlot LoginName{"LoginName"};
  ImageNameSlot MemberHomeName{"MemberHomeName"};
  ImageNameSlot CollectionsName{"CollectionsName"};
  ImageNameSlot ConfirmationName{"ConfirmationName"};
  ImageNameSlot FreeCreditName{"FreeCreditName"};
  ImageNameSlot FilterName{"FilterName"};

  // Names without a slot in the texture viewer.
  ImageNameSlot MainPanelName{"MainPanelName"};                      ///< main.ini, shown in Picture2(12)
  ImageNameSlot NowPlayingPanelName{"NowPlayingPanelName"};          ///< now_playing.ini, shown in Picture17
  ImageNameSlot FeedPanelName{"FeedPanelName"};                      ///< tracklist.ini, shown in Picture2(15)
  ImageNameSlot NavName{"NavName"};                                  ///< nav.ini, kept and written back
  ImageNameSlot Nav2Name{"Nav2Name"};                                ///< nav2.ini, kept and written back
  ImageNameSlot PlayOptionsKeyboardName{"PlayOptionsKeyboardName"};  ///< play_options.ini, kept
  ImageNameSlot MemberKeyboardName{"MemberKeyboardName"};            ///< myvquill.ini, kept

  /// The table of a button family's pictures, by the button's index.
  ImageTable& ofButtons(const Family& family);

  /// Where the name of a button's or a panel's own picture is kept, null when it has none.
  StoredValue* of(const Element& element);

  /// Every table, in the order above, the button tables last.
  const std::vector<ImageTable*>& all() const { return all_; }

private:
  Form1& form1_;
  std::vector<std::unique_ptr<ImageTable>> buttonTables_;
  QHash<const Family*, ImageTable*> byFamily_;
  std::vector<ImageTable*> all_;
};

}  // namespace veneerer
