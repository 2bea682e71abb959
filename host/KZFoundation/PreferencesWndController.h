#pragma once

#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZHostExport.h"

// A preferences window that the host implements; from before plug-ins had their own. Main thread only.
class KZ_HOST_EXPORT PreferencesWndController {
 public:
  PreferencesWndController();
  virtual ~PreferencesWndController();
  Q_DISABLE_COPY_MOVE(PreferencesWndController)

  virtual void bringPreferenceWindowToTop() = 0;
  virtual void onRefreshDone(const Dictionary& content) = 0;
  virtual bool isWindowVisible() const = 0;
  virtual void close() = 0;
};
