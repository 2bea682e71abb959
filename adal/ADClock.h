#pragma once

#include <QDateTime>
#include <functional>

// The time by which tokens expire. Any thread.
using ADClock = std::function<QDateTime()>;

// An empty function restores the system's clock.
void setADClock(ADClock clock);
QDateTime adNow();
