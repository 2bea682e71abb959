#include "companion/exchange/ServiceRecords.h"

#include <gtest/gtest.h>

#include <QHash>

namespace {

TEST(ServiceRecordsTest, OrdersByPriorityAndDrawsByWeight) {
  const QList<ServiceRecord> records = {{"last", 443, 20, 100}, {"rare", 443, 10, 1},  {"often", 443, 10, 3},
                                        {".", 443, 0, 0},       {"never", 443, 10, 0}, {"noport", 0, 0, 0}};
  QRandomGenerator random(1);
  QHash<QString, int> first;
  for (int round = 0; round < 1000; ++round) {
    const QList<ServiceRecord> ordered = inOrderOfTrial(records, random);
    ASSERT_EQ(ordered.size(), 4);
    EXPECT_EQ(ordered.last().target, "last");
    ++first[ordered.first().target];
  }
  EXPECT_NEAR(first.value("often"), 600, 100);
  EXPECT_NEAR(first.value("rare"), 200, 100);
  EXPECT_GT(first.value("never"), 0) << "weight zero still has a small chance";
}

}  // namespace
