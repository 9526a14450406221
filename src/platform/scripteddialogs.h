// Dialogs without a display: what has been queued ahead answers them.
#pragma once

#include <QList>
#include <QQueue>
#include <QStringList>
#include <stdexcept>

#include "platform/platform.h"

namespace veneerer {

/// A question or a dialog found no answer queued, or an action of a script can't be played.
class ScriptError : public std::runtime_error {
public:
  explicit ScriptError(const QString& what) : std::runtime_error(what.toStdString()) {}
};

class ScriptedDialogs : public Dialogs {
public:
  struct Message {
    QString title;
    QString text;
    QString answer;  ///< "ok" or "cancel"
  };

  /// What a question gets for which nothing is queued. A dialog that chooses something is cancelled by both
  /// Cancel and Agree; Fail throws ScriptError.
  enum class Unexpected { Cancel, Agree, Fail };

  explicit ScriptedDialogs(Unexpected unexpected = Unexpected::Cancel) : unexpected_(unexpected) {}

  QQueue<bool> answers;
  QQueue<QString> files;  ///< an empty name cancels
  QQueue<std::optional<Colour>> colours;
  QQueue<std::optional<FontChoice>> fonts;

  QList<Message> messages;  ///< every box shown, questions included
  QStringList filters;      ///< of the file dialogs that were opened

  std::optional<Colour> chooseColour(Colour initial) override;
  std::optional<FontChoice> chooseFont(const FontChoice& initial) override;

private:
  void showMessage(const QString& title, const QString& text) override;
  bool showQuestion(const QString& title, const QString& text) override;
  QString showFileDialog(const QString& filter) override;

  template <class T>
  T taken(QQueue<T>& queue, const T& otherwise, const QString& what);

  Unexpected unexpected_;
};

}  // namespace veneerer
