#pragma once

#include <functional>

#include "tests/KZPreference/panes/meetings/PreferenceHost.h"

struct Addresses {
  const char* name;
  QString room;
  QString video;
};

// Opens the window, with all calendar sources, and shows the toolbar and each pane in each of its states.
class PaneWalk final {
 public:
  using Variant = PreferenceHost::Variant;
  using Look = std::function<void(QWidget& view, const char* state)>;

  void walk(Variant variant, const Addresses& addresses, const Look& look);

 private:
  void open(Variant variant, const Addresses& addresses);
  void walkAccount(Variant variant, const Look& look);
  void walkMeetings(Variant variant, const Look& look);

  PreferenceHost m_host;
};
