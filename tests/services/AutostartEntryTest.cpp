#include "companion/services/GeneralSettings.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include "companion/runtime/PluginHost.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "tests/kit/FromPlugin.h"

namespace {

class AutostartEntryTest : public testing::Test {
 protected:
  // A program that notes its arguments.
  QString writeProgram(const QString& name) {
    const QString path = folder.filePath(name);
    QFile program(path);
    EXPECT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\nprintf '%s|' \"$@\" > '" + folder.filePath("started").toUtf8() + "'\n");
    program.close();
    program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
  }

  QByteArray startedWith() {
    QFile started(folder.filePath("started"));
    return started.open(QIODevice::ReadOnly) ? started.readAll() : QByteArray();
  }

  const QTemporaryDir folder;
};

TEST_F(AutostartEntryTest, WhatItWritesStartsTheProgram) {
  if (QStandardPaths::findExecutable("gio").isEmpty()) GTEST_SKIP() << "gio is missing";
  for (const char* name : {"a $HOME `ls` \"q\" \\ 'program'", "100 % of %u, %% = 'all'"}) {
    const AutostartEntry entry(folder.filePath("made/autostart"), writeProgram(name),
                               {"--state", "/a b/$c\\%u"});
    ASSERT_EQ(entry.write(), QString());
    QFile::remove(folder.filePath("started"));
    EXPECT_EQ(QProcess::execute("gio", {"launch", entry.path()}), 0) << name;
    EXPECT_TRUE(QTest::qWaitFor([this] { return !startedWith().isEmpty(); }, 5000)) << name;
    EXPECT_EQ(startedWith().toStdString(), "--state|/a b/$c\\%u|") << name;
  }
}

TEST_F(AutostartEntryTest, IsWrittenOnlyWhenItDiffersAndRemoved) {
  const AutostartEntry entry(folder.filePath("autostart"), "/usr/bin/companion");
  ASSERT_EQ(entry.write(), QString());
  QFile file(entry.path());
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  const QDateTime old = QDateTime::currentDateTime().addDays(-1);
  ASSERT_TRUE(file.setFileTime(old, QFileDevice::FileModificationTime));
  EXPECT_EQ(entry.write(), QString());
  EXPECT_EQ(QFileInfo(entry.path()).lastModified().toSecsSinceEpoch(), old.toSecsSinceEpoch());
  file.write("#");
  file.close();
  EXPECT_EQ(entry.write(), QString());
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), entry.content());
  EXPECT_EQ(entry.remove(), QString());
  EXPECT_EQ(entry.remove(), QString());
  EXPECT_FALSE(QFile::exists(entry.path()));
}

TEST_F(AutostartEntryTest, FollowsTheUsersChoiceAlone) {
  PluginHost host;
  const AutostartEntry entry(folder.filePath("autostart"), "/usr/bin/companion");
  GeneralSettings settings(&host, entry);
  QStringList notices;
  QObject::connect(&settings, &GeneralSettings::message, &settings,
                   [&notices](const QString& text) { notices.append(text); });
  const auto choose = [&host](bool isOn) {
    sendFromPlugin(host, KZCommand::KZCmdUpdateGeneralSetting, Dictionary{{kLaunchAtLogin, isOn}});
  };
  settings.apply();
  EXPECT_FALSE(QFile::exists(entry.path())) << "nobody has chosen";
  choose(true);
  EXPECT_TRUE(QFile::exists(entry.path()));
  choose(false);
  EXPECT_FALSE(QFile::exists(entry.path()));
  KZPlistFileHandle::sharedInstance().setLaunchAtLogin(true);
  settings.apply();
  EXPECT_TRUE(QFile::exists(entry.path()));
  EXPECT_EQ(notices.size(), 2);
  KZPlistFileHandle::sharedInstance().close();

  QFile inTheWay(folder.filePath("file"));
  ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
  GeneralSettings stuck(&host, AutostartEntry(folder.filePath("file"), "/usr/bin/companion"));
  QObject::connect(&stuck, &GeneralSettings::message, &stuck,
                   [&notices](const QString& text) { notices.append(text); });
  choose(true);
  EXPECT_TRUE(notices.last().contains("Make its folder writable")) << notices.last().toStdString();
}

}  // namespace
