#include <gtest/gtest.h>
#include <malloc.h>

#include <QCoreApplication>
#include <QPushButton>
#include <algorithm>

#include "companion/app/Companion.h"

namespace {

constexpr int kSecondsOfADay = 86'400;
constexpr int kMostGrowth = 1024 * 1024;  // bytes

// What is allocated and not freed, whatever the allocator keeps.
qint64 bytesInUse() {
  const struct mallinfo2 info = ::mallinfo2();
  return static_cast<qint64>(info.uordblks) + static_cast<qint64>(info.hblkhd);
}

QPushButton* buttonOf(const QWidget& window, const QString& title) {
  const auto buttons = window.findChildren<QPushButton*>();
  const auto found = std::ranges::find(buttons, title, &QPushButton::text);
  return found == buttons.end() ? nullptr : *found;
}

TEST(LongDay, AnEventASecondLeavesMemoryFlat) {
  Companion companion({});
  companion.showWindow();
  ASSERT_TRUE(companion.loadPlugin(FAKE_PLUGIN));
  QPushButton* const button = buttonOf(*companion.window(), "Close");
  ASSERT_TRUE(button);
  qint64 early = 0;
  for (int second = 1; second <= kSecondsOfADay; ++second) {
    button->click();
    if (second % 500 == 0) QCoreApplication::processEvents();
    // By then every list that is bounded should be full.
    if (second == kSecondsOfADay / 5) early = bytesInUse();
  }
  QCoreApplication::processEvents();
  const qint64 late = bytesInUse();
  std::printf("a day of events: %lld KiB after a fifth, %lld KiB at its end\n",
              static_cast<long long>(early / 1024), static_cast<long long>(late / 1024));
  EXPECT_LT(late - early, kMostGrowth);
}

}  // namespace
