#include "companion/inspector/InspectorFilter.h"

bool InspectorFilter::accepts(const InspectorEvent& event) const {
  if (hidden.contains(event.kind)) return false;
  return text.isEmpty() || event.title().contains(text, Qt::CaseInsensitive) ||
         event.content.contains(text, Qt::CaseInsensitive);
}
