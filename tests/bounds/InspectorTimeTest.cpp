#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTableView>

#include "companion/inspector/InspectorView.h"

namespace {

// Generous bounds, which fail when the time for an event grows with the list.
TEST(InspectorTime, ManyEventsCostLittle) {
  constexpr int kEvents = 30'000;
  InspectorLog log;
  InspectorView view(&log);
  view.resize(900, 400);
  view.show();
  QElapsedTimer timer;
  timer.start();
  for (int number = 0; number < kEvents; ++number) {
    log.record(CommandToHost{KZCommand::KZCmdPreferenceChanged, Dictionary{{"number", number}}});
    if (number % 240 == 0) QCoreApplication::processEvents();
  }
  QCoreApplication::processEvents();
  const double microseconds = double(timer.nsecsElapsed()) / 1000 / kEvents;
  RecordProperty("microseconds_per_event", std::to_string(microseconds));
  EXPECT_LT(microseconds, 500);
  const QAbstractItemModel* rows = view.findChild<QTableView*>()->model();
  EXPECT_LE(rows->rowCount(), InspectorLog::mostEvents);
  timer.start();
  view.findChild<QLineEdit*>()->setText("7");
  QCoreApplication::processEvents();
  RecordProperty("milliseconds_per_filter", std::to_string(timer.elapsed()));
  EXPECT_LT(timer.elapsed(), 1000);
  EXPECT_LT(rows->rowCount(), InspectorLog::mostEvents / 2);
}

}  // namespace
