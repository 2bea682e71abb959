#include "companion/services/TelemetryService.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "companion/runtime/PluginHost.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "tests/kit/FromPlugin.h"

namespace {

class TelemetryServiceTest : public testing::Test {
 protected:
  void SetUp() override {
    QObject::connect(&service, &TelemetryService::message, &service,
                     [this](const QString& text) { notices.append(text); });
  }
  void TearDown() override { KZPlistFileHandle::sharedInstance().close(); }

  void choose(const QString& feature, const Dictionary& more = {}) {
    Dictionary values = more;
    values.insert(TelemetryKey_FeatureName, feature);
    sendFromPlugin(host, KZCommand::KZCmdWriteTelemetry,
                   Dictionary{{TelemetryKey_MetricName, "metric"}, {TelemetryKey_Values, values}});
  }

  QStringList features() const {
    QStringList names;
    for (const TelemetryRecord& record : service.newest(1000)) names.append(record.feature);
    return names;
  }

  const QTemporaryDir folder;
  const QString data = folder.filePath("made/telemetry");
  PluginHost host;
  TelemetryService service{&host, data, 1000};
  QStringList notices;
};

TEST_F(TelemetryServiceTest, KeepsTheNewestFirstInBoundedFilesOfTheOwner) {
  for (int number = 0; number < 200; ++number) choose(QStringLiteral("Feature %1").arg(number));
  EXPECT_EQ(features().first(), "Feature 199");
  EXPECT_EQ(features().at(5), "Feature 194");
  const QFileInfoList files = QDir(data).entryInfoList(QDir::Files);
  EXPECT_EQ(files.size(), 2);
  for (const QFileInfo& file : files) {
    EXPECT_LE(file.size(), 1000);
    EXPECT_EQ(file.permissions() & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteOther), 0);
  }
  service.deleteAll();
  EXPECT_TRUE(features().isEmpty());
  EXPECT_TRUE(QDir(data).isEmpty());
}

TEST_F(TelemetryServiceTest, NothingPersonalIsKept) {
  choose("feature", {{"email", "ada@example.com"}, {TelemetryKey_Boolean, "true"}});
  QFile file(service.path());
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray line = file.readAll();
  EXPECT_FALSE(line.contains("ada@")) << line.data();
  EXPECT_TRUE(line.contains("feature"));
  EXPECT_EQ(service.newest(1).first().details, "true");
}

TEST_F(TelemetryServiceTest, AFullDiskIsToldOnceAndSurvived) {
  ASSERT_TRUE(QDir().mkpath(data));
  ASSERT_TRUE(QFile::link("/dev/full", service.path()));
  choose("lost");
  choose("lost");
  EXPECT_EQ(notices.size(), 1);
  EXPECT_TRUE(notices.first().contains("Free some space")) << notices.first().toStdString();
  ASSERT_TRUE(QFile::remove(service.path()));
  choose("kept");
  EXPECT_EQ(features(), QStringList{"kept"});
}

TEST_F(TelemetryServiceTest, AFileThatCannotMoveAsideDoesNotGrowForEver) {
  ASSERT_TRUE(QDir().mkpath(service.path() + ".1/in the way"));
  for (int number = 0; number < 50; ++number) choose(QStringLiteral("Feature %1").arg(number));
  EXPECT_LE(QFileInfo(service.path()).size(), 1000);
  ASSERT_EQ(notices.size(), 1);
  EXPECT_TRUE(notices.first().contains("its folder cannot be changed")) << notices.first().toStdString();
}

TEST_F(TelemetryServiceTest, AFileThatSomebodySpoiltIsRead) {
  choose("good");
  QFile file(service.path());
  ASSERT_TRUE(file.open(QIODevice::Append));
  file.write("{\"half\n\0\xff\n");
  file.close();
  choose("better");
  EXPECT_EQ(features().first(), "better");
  EXPECT_EQ(features().last(), "good");
}

}  // namespace
