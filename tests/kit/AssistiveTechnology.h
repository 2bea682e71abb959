#pragma once

#include <QStringList>

namespace kit {

// Assistive technology that listens while it lives. Only one at a time.
class AssistiveTechnology {
 public:
  AssistiveTechnology();
  ~AssistiveTechnology();

  QStringList takeAnnounced();
};

}  // namespace kit
