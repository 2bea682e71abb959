#include "companion/app/DemoServices.h"

#include <QTimer>
#include <chrono>

#include "companion/runtime/Border.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"

namespace {

using namespace std::chrono_literals;

constexpr auto kUpdateTime = 600ms;

}  // namespace

DemoServices::DemoServices(Border* border) : m_border(border) {
  connect(border, &Border::commandSent, this, &DemoServices::answer);
}

void DemoServices::answer(quint64 command, const Content& content) {
  const Dictionary values = content.value_or(Dictionary());
  switch (static_cast<KZCommand>(command)) {
    case KZCommand::KZCmdCheckForUpdates:
    case KZCommand::KZCmdCheckForUpdatesAutomatically:
      QTimer::singleShot(kUpdateTime, this, &DemoServices::refuseUpdates);
      return;
    case KZCommand::KZCmdRequireLink:
      return openLink(values);
    case KZCommand::KZCmdChangeSite:
      return Q_EMIT siteWanted();
    default:
      return;
  }
}

void DemoServices::refuseUpdates() {
  const Dictionary error = {{kKZErrorMessage, QStringLiteral("This host has no update service.")}};
  m_border->notify(static_cast<quint32>(KZNotify::KZNotifyCheckForUpdatesDone),
                   Dictionary{{kKZResult, kKZFail}, {kKZErrorHandleData, error}});
}

void DemoServices::openLink(const Dictionary& content) {
  const bool isJoin = content.value(QRT_Require_Link_Action_Type).toInt() == 2;
  Q_EMIT noticed(QStringLiteral("Demonstration: a meeting application would now open its page \"%1\".")
                     .arg(isJoin ? QStringLiteral("Join by number") : QStringLiteral("Meeting settings")));
}

void DemoServices::changeSite(const QString& site) {
  Q_EMIT noticed(QStringLiteral("The site is %1 now.").arg(site));
  // A window reads the site when it is built.
  m_border->triggerCommand(static_cast<quint64>(KZCommand::KZCmdDestroyPreference));
  m_border->triggerCommand(static_cast<quint64>(KZCommand::KZCmdShowPreference),
                           Dictionary{{kOpenPrefsViewType, kPrefsAccountView}});
}
