#pragma once

#include <QString>
#include <set>

#include "companion/inspector/InspectorEvent.h"

// Which events a reader wants to see.
struct InspectorFilter {
  std::set<InspectorEvent::Kind> hidden;
  QString text;  // in the name or the content; case does not matter

  bool accepts(const InspectorEvent& event) const;
};
