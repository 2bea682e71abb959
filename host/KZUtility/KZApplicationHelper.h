#pragma once

#include "host/KZFoundation/KZHostExport.h"

// What the host knows about the signed-in user's site. Main thread only.
class KZ_HOST_EXPORT KZApplicationHelper {
 public:
  static KZApplicationHelper& sharedInstance();

  bool siteEnableOutlook() const { return m_siteEnableOutlook; }
  void setSiteEnableOutlook(bool isEnabled) { m_siteEnableOutlook = isEnabled; }

 private:
  KZApplicationHelper() = default;

  bool m_siteEnableOutlook = true;
};
