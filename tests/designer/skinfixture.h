// A designer on a root of Skins in a temporary folder.
#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <memory>

#include "designer/designer.h"
#include "support/scriptedplatform.h"

namespace veneerer::test {

class SkinFixture : public testing::Test {
protected:
  SkinFixture() {
    world.platform.folder.path = root.path();
    makeSkin(QStringLiteral("S"));
    world.settings.values.insert(QStringLiteral("Settings/Skin"), QStringLiteral("S"));
    designer = std::make_unique<Designer>(world.platform);
  }

  void makeSkin(const QString& name) {
    QDir(root.path()).mkpath(QStringLiteral("Skins/") + name + QStringLiteral("/images"));
  }
  QString path(const QString& name) const { return root.path() + QStringLiteral("/Skins/S/") + name; }

  void write(const QString& name, const QByteArray& bytes) {
    QFile file(path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QByteArray bytes(const QString& name) const {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
  }
  QStringList files() const { return QDir(root.path() + QStringLiteral("/Skins/S")).entryList(QDir::Files); }

  /// Starts on the Skin S and loads it.
  void start() {
    world.dialogs.answers.enqueue(true);
    ASSERT_TRUE(designer->startUp());
  }
  State& state() { return designer->state(); }
  Form1& form1() { return designer->state().form1; }
  Form4& form4() { return designer->state().form4; }

  QTemporaryDir root;
  ScriptedPlatform world;
  std::unique_ptr<Designer> designer;
};

}  // namespace veneerer::test
