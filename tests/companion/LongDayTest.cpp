#include <gtest/gtest.h>
#include <malloc.h>

#include <QCoreApplication>

#include "companion/app/BorderLog.h"
#include "companion/app/BorderLogView.h"
#include "companion/runtime/Border.h"

namespace {

constexpr int kSecondsOfADay = 86'400;
constexpr int kMostGrowth = 1024 * 1024;  // bytes

// What is allocated and not freed, whatever the allocator keeps.
qint64 bytesInUse() {
  const struct mallinfo2 info = ::mallinfo2();
  return static_cast<qint64>(info.uordblks + info.hblkhd);
}

TEST(LongDay, AnEventASecondLeavesMemoryFlat) {
  Border border([](const QUrl&) { return true; });
  BorderLog log;
  const Border::Token logging =
      border.addObserver([&log](const Crossing& crossing) { log.record(crossing); });
  BorderLogView view(&log);
  view.resize(800, 400);
  view.show();
  ASSERT_TRUE(border.loadPlugin(FAKE_PLUGIN));
  qint64 early = 0;
  for (int second = 1; second <= kSecondsOfADay; ++second) {
    // With its trace that is two events, so the list is full after a tenth of the day.
    border.triggerCommand(9, Dictionary{{"second", second}});
    if (second % 500 == 0) QCoreApplication::processEvents();
    if (second == kSecondsOfADay / 10) early = bytesInUse();
  }
  QCoreApplication::processEvents();
  const qint64 late = bytesInUse();
  std::printf("a day of events: %lld KiB after a tenth, %lld KiB at its end\n",
              static_cast<long long>(early / 1024), static_cast<long long>(late / 1024));
  EXPECT_LT(late - early, kMostGrowth);
}

}  // namespace
