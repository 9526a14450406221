// The line at the foot of the main window.
#pragma once

#include <QLabel>
#include <QTimer>

namespace veneerer {

/// Tells what is under the pointer, and notes, which go first: a note stays for some seconds or until the
/// operator presses the next key or mouse button. Both are plain text.
class StatusLine : public QLabel {
public:
  explicit StatusLine(QWidget* parent = nullptr);

  /// What is under the pointer; it waits while a note stands.
  void describe(const QString& text);
  /// Notes that one action says stand side by side.
  void tell(const QString& note);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void show(const QString& text, bool isNote);
  void endNote();

  QString description_;
  QStringList notes_;  ///< that stand now
  QTimer fresh_;       ///< runs until the action that said them has ended
  QTimer reading_;     ///< runs while they stand
};

}  // namespace veneerer
