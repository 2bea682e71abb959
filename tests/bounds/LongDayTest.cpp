#include <gtest/gtest.h>
#include <malloc.h>

#include <QCoreApplication>
#include <QDir>
#include <QPushButton>
#include <QTemporaryDir>
#include <algorithm>
#include <functional>

#include "companion/app/Companion.h"
#include "host/KZCommonUI/KZTelemetryConstants.h"
#include "host/KZFoundation/KZCommands.h"

namespace {

constexpr int kSecondsOfADay = 86'400;
constexpr int kClicksOfADay = kSecondsOfADay / 4;  // each is written to the disk
constexpr int kMostGrowth = 1024 * 1024;           // bytes

// The bytes allocated and not freed, without the allocator's own cache.
qint64 bytesInUse() {
  const struct mallinfo2 info = ::mallinfo2();
  return static_cast<qint64>(info.uordblks) + static_cast<qint64>(info.hblkhd);
}

QPushButton* buttonOf(const QWidget& window, const QString& title) {
  const auto buttons = window.findChildren<QPushButton*>();
  const auto found = std::ranges::find(buttons, title, &QPushButton::text);
  return found == buttons.end() ? nullptr : *found;
}

// The growth of memory from the point at which every bounded list should be full to the end.
qint64 growthOfADay(int events, const std::function<void()>& event) {
  qint64 early = 0;
  for (int number = 1; number <= events; ++number) {
    event();
    if (number % 500 == 0) QCoreApplication::processEvents();
    if (number == events / 5) early = bytesInUse();
  }
  QCoreApplication::processEvents();
  const qint64 late = bytesInUse();
  std::printf("a day of events: %lld KiB after a fifth, %lld KiB at its end\n",
              static_cast<long long>(early / 1024), static_cast<long long>(late / 1024));
  return late - early;
}

TEST(LongDay, AnEventASecondLeavesMemoryFlat) {
  Companion companion({});
  companion.showWindow();
  ASSERT_TRUE(companion.loadPlugin(FAKE_PLUGIN));
  QPushButton* const button = buttonOf(*companion.window(), "&Close Preferences");
  ASSERT_TRUE(button);
  EXPECT_LT(growthOfADay(kSecondsOfADay, [button] { button->click(); }), kMostGrowth);
}

TEST(LongDay, TelemetryLeavesMemoryFlatAndTheFilesBounded) {
  const QTemporaryDir folder;
  PluginHost host([](const QUrl&) { return true; });
  ASSERT_TRUE(host.load(FAKE_PLUGIN));
  TelemetryService telemetry(&host, folder.path());
  const Dictionary content{
      {TelemetryKey_Values, Dictionary{{TelemetryKey_FeatureName, "TelemetryValue_FeatureName_Any"}}}};
  const auto write = [&] { host.trigger(KZCommand::KZCmdWriteTelemetry, content); };
  EXPECT_LT(growthOfADay(kClicksOfADay, write), kMostGrowth);
  qint64 bytes = 0;
  for (const QFileInfo& file : QDir(folder.path()).entryInfoList(QDir::Files)) bytes += file.size();
  EXPECT_LE(bytes, 2 * TelemetryService::kFileBytes);
  EXPECT_GT(bytes, TelemetryService::kFileBytes);
  EXPECT_EQ(telemetry.newest(10).size(), 10);
}

}  // namespace
