// The real world: message boxes, the common dialogs, the settings store and the screen.
#pragma once

#include <functional>
#include <memory>

#include "platform/platform.h"
#include "platform/skinfolder.h"

namespace veneerer {

class ProgressWindow;

class QtDialogs : public Dialogs {
public:
  /// Which Skin is loaded: file dialogs open in its folder, or where a file within it was chosen last. To be
  /// given before the first file dialog.
  void setSkin(std::function<SkinFolder()> skin) { skin_ = std::move(skin); }

  std::optional<Colour> chooseColour(Colour initial) override;
  std::optional<FontChoice> chooseFont(const FontChoice& initial) override;

private:
  void showMessage(const QString& title, const QString& text) override;
  bool showQuestion(const QString& title, const QString& text) override;
  QString showFileDialog(const QString& filter) override;

  std::function<SkinFolder()> skin_;
  QString lastFolder_;
};

/// A small window with a bar, while something takes long. The other windows go on being painted but take no
/// input meanwhile.
class QtProgress : public Progress {
public:
  QtProgress();
  ~QtProgress() override;
  void step(int done, int total, const QString& what) override;

private:
  std::unique_ptr<ProgressWindow> window_;
};

/// One file of the user's configuration folder, "V-Quill 8.ini".
class IniSettings : public Settings {
public:
  QString value(const QString& section, const QString& key, const QString& defaultValue) const override;
};

/// "Image Files|*.bmp;*.jpg" as the toolkit's file dialog takes it: "Image Files (*.bmp *.jpg)".
/// Further pairs of name and patterns become further filters.
QString dialogFilter(const QString& filter);

/// The primary screen's size in device pixels, at 96 dots per logical inch whatever the desktop's scale is:
/// the numbers in the files don't depend on the desktop.
Screen primaryScreen();

}  // namespace veneerer
