#include "companion/runtime/BorderWatch.h"

#include <utility>

#include "host/KZUIExtension/KZWarningWindowController.h"
#include "host/KZUtility/KZWorkspace.h"

BorderWatch::BorderWatch(Handlers handlers) {
  auto& center = KZNotificationCenter::defaultCenter();
  if (handlers.challenged) {
    m_challenges =
        center.addObserver(QStringLiteral("HTTPAuthenticationRequired"), std::move(handlers.challenged));
  }
  if (handlers.answered) {
    m_answers =
        center.addObserver(QStringLiteral("HTTPAuthenticationDatasource"), std::move(handlers.answered));
  }
  KZWorkspace::sharedWorkspace().setOpener(std::move(handlers.opened));
  KZWarningWindowController::setObserver(std::move(handlers.warned));
  setKZTraceSink(std::move(handlers.traced));
}

BorderWatch::~BorderWatch() {
  m_challenges.reset();
  m_answers.reset();
  KZWorkspace::sharedWorkspace().setOpener({});
  KZWarningWindowController::setObserver({});
  setKZTraceSink({});
}
