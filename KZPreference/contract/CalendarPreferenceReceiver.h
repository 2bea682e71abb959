#pragma once

#include "host/KZFoundation/Dictionary.h"

// Shows the stored calendar settings. Main thread only.
class CalendarPreferenceReceiver {
 public:
  virtual ~CalendarPreferenceReceiver() = default;

  virtual void setCalendarPreference(const Dictionary& preference) = 0;
};
