// A world for tests: dialogs with answers queued ahead, settings from a map, a disk that can fail, a screen
// and a folder of choice.
#pragma once

#include <QMap>
#include <QQueue>
#include <QStringList>

#include "platform/platform.h"
#include "support/failingdisk.h"

namespace veneerer::test {

class ScriptedDialogs : public Dialogs {
public:
  struct Message {
    QString title;
    QString text;
  };
  QList<Message> messages;  ///< every box shown, questions included
  QQueue<bool> answers;     ///< an unexpected question is answered Cancel
  QQueue<QString> files;
  QQueue<std::optional<std::int32_t>> colours;
  QQueue<std::optional<FontChoice>> fonts;
  QStringList filters;  ///< of the file dialogs that were opened

  void inform(const QString& title, const QString& text) override { messages.append({title, text}); }
  bool ask(const QString& title, const QString& text) override {
    messages.append({title, text});
    return !answers.isEmpty() && answers.dequeue();
  }
  QString chooseFile(const QString& filter) override {
    filters.append(filter);
    return files.isEmpty() ? QString() : files.dequeue();
  }
  std::optional<Colour> chooseColour(Colour) override {
    return colours.isEmpty() ? std::nullopt : colours.dequeue();
  }
  std::optional<FontChoice> chooseFont(const FontChoice&) override {
    return fonts.isEmpty() ? std::nullopt : fonts.dequeue();
  }
};

class MapSettings : public Settings {
public:
  QMap<QString, QString> values;  ///< by "section/key"
  QString value(const QString& section, const QString& key, const QString& defaultValue) const override {
    return values.value(section + QLatin1Char('/') + key, defaultValue);
  }
};

struct ScriptedPlatform {
  ScriptedDialogs dialogs;
  MapSettings settings;
  FailingDisk disk;
  Platform platform{dialogs, settings, disk, Screen(), ProgramFolder()};
};

}  // namespace veneerer::test
