#include "adal/ADClock.h"

#include <QMutex>
#include <QMutexLocker>
#include <utility>

namespace {

struct ClockState {
  QMutex mutex;
  ADClock clock;
};

ClockState& clockState() {
  // Never destroyed: tokens are asked for their age until the process ends.
  static ClockState* const state = new ClockState;
  return *state;
}

}  // namespace

void setADClock(ADClock clock) {
  const QMutexLocker lock(&clockState().mutex);
  clockState().clock = std::move(clock);
}

QDateTime adNow() {
  ADClock clock;
  {
    const QMutexLocker lock(&clockState().mutex);
    clock = clockState().clock;
  }
  return clock ? clock() : QDateTime::currentDateTimeUtc();
}
