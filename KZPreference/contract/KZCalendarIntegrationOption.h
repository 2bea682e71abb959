#pragma once

// Which calendar sources the user may choose.
struct KZCalendarIntegrationOption {
  bool isEnableNone = false;
  bool isEnableMivra = true;
  bool isEnableGoogle = false;
  bool isEnableOutlook = true;
};
