// A designer on a root of Skins in a temporary folder.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <memory>

#include "designer/designer.h"
#include "support/files.h"
#include "support/scriptedplatform.h"

namespace veneerer::test {

class SkinFixture : public testing::Test {
protected:
  SkinFixture() {
    world.platform.folder.path = root.path();
    makeSkin("S");
    world.settings.values.insert("Settings/Skin", "S");
    designer = std::make_unique<Designer>(world.platform);
  }

  void makeSkin(const QString& name) { QDir(root.path()).mkpath("Skins/" + name + "/images"); }
  QString path(const QString& name) const { return root.path() + "/Skins/S/" + name; }
  void write(const QString& name, const QByteArray& bytes) { writeBytes(path(name), bytes); }
  QByteArray bytes(const QString& name) const { return bytesOf(path(name)); }
  QStringList files() const { return QDir(path({})).entryList(QDir::Files); }

  /// Starts on the Skin S and loads it.
  void start() {
    world.dialogs.answers.enqueue(true);
    ASSERT_TRUE(designer->startUp());
  }
  State& state() { return designer->state(); }
  Form1& form1() { return designer->state().form1; }
  Form4& form4() { return designer->state().form4; }
  Form6& form6() { return designer->state().form6; }

  QTemporaryDir root;
  ScriptedPlatform world;
  std::unique_ptr<Designer> designer;
};

}  // namespace veneerer::test
