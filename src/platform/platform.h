// The world outside the core: dialogs, the screen, the settings store, the disk and the program's own folder.
// The windows give the real ones, the batch tool and the tests scripted ones.
#pragma once

#include <QString>
#include <cstdint>
#include <functional>
#include <optional>

#include "elements/axis.h"
#include "elements/label.h"
#include "files/disk.h"
#include "images/picture.h"

namespace veneerer {

/// Message boxes and the common dialogs. Of the texts of a box shownText() is shown, whoever shows it.
class Dialogs {
public:
  virtual ~Dialogs() = default;

  /// A box that only informs.
  void inform(const QString& title, const QString& text);
  /// A box with OK and Cancel; true for OK.
  bool ask(const QString& title, const QString& text);
  /// A file dialog. The filter reads "Image Files|*.bmp;*.jpg". The full name of the chosen file, empty on
  /// cancel.
  QString chooseFile(const QString& filter);
  /// That file answers the next file dialog, which isn't shown; an empty name takes it back.
  void giveFile(const QString& path) { givenFile_ = path; }
  /// A colour dialog that opens on that plain colour (0x00BBGGRR); nothing on cancel. The table of custom
  /// colours lasts as long as the program runs.
  virtual std::optional<Colour> chooseColour(Colour initial) = 0;
  /// A font dialog with effects; nothing on cancel.
  virtual std::optional<FontChoice> chooseFont(const FontChoice& initial) = 0;

private:
  virtual void showMessage(const QString& title, const QString& text) = 0;
  virtual bool showQuestion(const QString& title, const QString& text) = 0;
  virtual QString showFileDialog(const QString& filter) = 0;

  QString givenFile_;
};

/// Whether the file's name has an ending of that filter, in any case.
bool fitsFilter(const QString& filter, const QString& path);

/// The screen that the program stands on.
struct Screen {
  int width = 1024;  ///< device pixels
  int height = 768;  ///< device pixels
  double dpiX = 96;  ///< dots per logical inch, across
  double dpiY = 96;  ///< dots per logical inch, down

  double twipsPerPixelX() const { return 1440 / dpiX; }
  double twipsPerPixelY() const { return 1440 / dpiY; }
};

/// The user's settings, which the program reads and never writes.
class Settings {
public:
  virtual ~Settings() = default;
  /// The setting of that key, or the default when there is none.
  virtual QString value(const QString& section, const QString& key, const QString& defaultValue) const = 0;
};

/// Told of progress by whatever takes long, so that a window can show it and stay alive.
class Progress {
public:
  virtual ~Progress() = default;
  /// Step done of total (0 of total at the start, total of total at the end), with what is being worked on. A
  /// step that takes long is told again and again.
  virtual void step(int done, int total, const QString& what) = 0;
};

/// Runs what takes long and touches no element, so that windows can stay alive meanwhile.
class Background {
public:
  virtual ~Background() = default;
  /// Returns when the work is done, and throws what it throws. No action of an operator begins meanwhile.
  virtual void run(const std::function<void()>& work) = 0;
};

/// Where the program stands.
struct ProgramFolder {
  QString path;            ///< holds "Skins" and "images"
  QString skinsRoot = {};  ///< the folder of the Skins where it isn't "Skins" beside the program; else empty
};

/// Everything of the world that the core needs, given when a designer is made. It must outlive the designer.
struct Platform {
  Dialogs& dialogs;
  Settings& settings;
  Disk& disk;  ///< everything that is written goes through it
  Screen screen;
  ProgramFolder folder;
  Progress* progress = nullptr;      ///< told of what takes long; may be null
  Background* background = nullptr;  ///< runs what takes long; where it is null, that is run on the spot

  /// See Background::run.
  void runAside(const std::function<void()>& work) const;
};

/// The decoded picture, a null image where it can't be decoded; the windows stay alive meanwhile.
QImage decodeAside(const Platform& platform, const Picture& picture);

/// Pixels in twips by the screen's dots per logical inch, rounded to the nearest whole number, halves to
/// even. Nothing when the result is beyond 32 bits.
std::optional<std::int32_t> PixelsToTwips(const Screen& screen, double pixels, Axis axis);

}  // namespace veneerer
