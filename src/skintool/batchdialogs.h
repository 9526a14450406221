// Dialogs without a display: what a script has queued ahead answers them.
#pragma once

#include <QList>
#include <QQueue>
#include <stdexcept>

#include "platform/platform.h"

namespace veneerer {

/// A question or a dialog found no answer queued, or an action can't be played.
class ScriptError : public std::runtime_error {
public:
  explicit ScriptError(const QString& what) : std::runtime_error(what.toStdString()) {}
};

class BatchDialogs : public Dialogs {
public:
  struct Message {
    QString title;
    QString text;
    QString answer;  ///< "ok" or "cancel"
  };

  QQueue<bool> answers;
  QQueue<QString> files;  ///< an empty name cancels
  QQueue<std::optional<std::int32_t>> colours;
  QQueue<std::optional<FontChoice>> fonts;

  const QList<Message>& messages() const { return messages_; }

  void inform(const QString& title, const QString& text) override;
  // These throw ScriptError when nothing is queued for them.
  bool ask(const QString& title, const QString& text) override;
  QString chooseFile(const QString& filter) override;
  std::optional<Colour> chooseColour(Colour initial) override;
  std::optional<FontChoice> chooseFont(const FontChoice& initial) override;

private:
  QList<Message> messages_;
};

}  // namespace veneerer
