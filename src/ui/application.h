// The toolkit's application, with the one place where a failure ends the program.
#pragma once

#include <QApplication>

namespace veneerer {

/// The exit status after a file that could not be read or written.
inline constexpr int kFailureStatus = 1;

class Application : public QApplication {
public:
  Application(int& argc, char** argv);

  /// Errors leave an event handler here and nowhere else.
  bool notify(QObject* receiver, QEvent* event) override;

private:
  /// The report begins with the message.
  void fail(const QString& message, const QString& report);

  bool failed_ = false;
};

}  // namespace veneerer
