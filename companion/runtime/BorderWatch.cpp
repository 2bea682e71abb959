#include "companion/runtime/BorderWatch.h"

#include <utility>

#include "host/KZUIExtension/KZWarningWindowController.h"
#include "host/KZUtility/KZWorkspace.h"

BorderWatch::BorderWatch(Handlers handlers) {
  if (handlers.posted) {
    m_datasource = KZNotificationCenter::defaultCenter().addObserver(
        QStringLiteral("HTTPAuthenticationDatasource"), std::move(handlers.posted));
  }
  KZWorkspace::sharedWorkspace().setOpener(std::move(handlers.opened));
  KZWarningWindowController::setObserver(std::move(handlers.warned));
  setKZTraceSink(std::move(handlers.traced));
}

BorderWatch::~BorderWatch() {
  m_datasource.reset();
  KZWorkspace::sharedWorkspace().setOpener({});
  KZWarningWindowController::setObserver({});
  setKZTraceSink({});
}
