// A language of a few texts.
#pragma once

#include <QCoreApplication>
#include <QHash>
#include <QTranslator>

namespace veneerer::test {

/// The program speaks it for as long as it lives; all other texts stay English.
class Translated : public QTranslator {
public:
  explicit Translated(const QHash<QString, QString>& texts) : texts_(texts) {
    QCoreApplication::installTranslator(this);
  }
  ~Translated() override { QCoreApplication::removeTranslator(this); }
  Translated(const Translated&) = delete;
  Translated& operator=(const Translated&) = delete;

  bool isEmpty() const override { return false; }
  QString translate(const char*, const char* source, const char*, int) const override {
    return texts_.value(QString::fromUtf8(source));
  }

private:
  QHash<QString, QString> texts_;
};

}  // namespace veneerer::test
