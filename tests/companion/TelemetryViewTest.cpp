#include "companion/app/TelemetryView.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

#include "companion/runtime/PluginHost.h"
#include "companion/services/TelemetryService.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZUtility/KZPlistFileHandle.h"
#include "tests/kit/FromPlugin.h"

namespace {

class TelemetryViewTest : public testing::Test {
 protected:
  void SetUp() override { view.show(); }
  void TearDown() override { KZPlistFileHandle::sharedInstance().close(); }

  void choose(const QString& feature) {
    sendFromPlugin(host, KZCommand::KZCmdWriteTelemetry,
                   Dictionary{{TelemetryKey_MetricName, "metric"},
                              {TelemetryKey_Values, Dictionary{{TelemetryKey_FeatureName, feature}}}});
    QTest::qWait(1);
  }

  QString shownFeature(int row) const {
    const QTableWidgetItem* item = table->item(row, 1);
    return item ? item->text() : QString();
  }
  QString text() const { return view.findChild<QLabel*>("telemetryText")->text(); }

  const QTemporaryDir folder;
  PluginHost host;
  TelemetryService service{&host, folder.filePath("data"), 1000};
  TelemetryView view{&service};
  QTableWidget* table = view.findChild<QTableWidget*>();
  QCheckBox* isOn = view.findChild<QCheckBox*>();
  QPushButton* deleteAll = view.findChild<QPushButton*>();
};

TEST_F(TelemetryViewTest, SwitchedOffNothingIsWrittenAndWhatWasKeptCanBeDeleted) {
  EXPECT_TRUE(isOn->isChecked());
  EXPECT_FALSE(deleteAll->isEnabled());
  choose("before");
  EXPECT_EQ(shownFeature(0), "before");
  isOn->click();
  QTest::qWait(1);
  EXPECT_TRUE(text().contains("was kept before lies in " + service.path())) << text().toStdString();
  choose("meanwhile");
  EXPECT_EQ(table->rowCount(), 1);
  deleteAll->click();
  QTest::qWait(1);
  EXPECT_EQ(table->rowCount(), 0);
  EXPECT_EQ(text(), "Nothing is written, and nothing is kept.");
  EXPECT_TRUE(QDir(folder.filePath("data")).isEmpty());
  EXPECT_FALSE(deleteAll->isEnabled());
  isOn->click();
  choose("after");
  EXPECT_EQ(shownFeature(0), "after");
}

TEST_F(TelemetryViewTest, ShowsTheNewestWhileTheFilesTakeTurns) {
  for (int number = 0; number < 40; ++number) {
    choose(QStringLiteral("Feature %1").arg(number));
    ASSERT_EQ(shownFeature(0), QStringLiteral("Feature %1").arg(number));
    ASSERT_EQ(table->rowCount() > 1 ? shownFeature(1) : QString("Feature -1"),
              QStringLiteral("Feature %1").arg(number - 1));
  }
  EXPECT_LT(table->rowCount(), 40) << "the oldest are gone";
}

}  // namespace
