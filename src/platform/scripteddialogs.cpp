#include "platform/scripteddialogs.h"

namespace veneerer {

template <class T>
T ScriptedDialogs::taken(QQueue<T>& queue, const T& otherwise, const QString& what) {
  if (!queue.isEmpty()) return queue.dequeue();
  if (unexpected_ == Unexpected::Fail) throw ScriptError(what);
  return otherwise;
}

void ScriptedDialogs::showMessage(const QString& title, const QString& text) {
  messages.append({title, text, QStringLiteral("ok")});
}

bool ScriptedDialogs::showQuestion(const QString& title, const QString& text) {
  const bool isOk = taken(answers, unexpected_ == Unexpected::Agree,
                          QStringLiteral("the question \"%1\" finds no answer").arg(text));
  messages.append({title, text, isOk ? QStringLiteral("ok") : QStringLiteral("cancel")});
  return isOk;
}

QString ScriptedDialogs::showFileDialog(const QString& filter) {
  filters.append(filter);
  return taken(files, QString(), QStringLiteral("the file dialog finds no answer"));
}

std::optional<Colour> ScriptedDialogs::chooseColour(Colour) {
  return taken(colours, std::optional<Colour>(), QStringLiteral("the colour dialog finds no answer"));
}

std::optional<FontChoice> ScriptedDialogs::chooseFont(const FontChoice&) {
  return taken(fonts, std::optional<FontChoice>(), QStringLiteral("the font dialog finds no answer"));
}

}  // namespace veneerer
