#include "companion/services/GeneralSettings.h"

#include "companion/runtime/PluginHost.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"

GeneralSettings::GeneralSettings(PluginHost* host, const AutostartEntry& autostart) : m_autostart(autostart) {
  host->handle(KZCommand::KZCmdUpdateGeneralSetting, this,
               [this](const Content& content) { update(content.value_or(Dictionary())); });
  // Without a choice nothing starts at login, and the pane, which takes that as on, is to show it.
  KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  if (!store.isPlistKeyExist(KZLaunchAtLogin)) store.setLaunchAtLogin(false);
}

void GeneralSettings::apply() {
  const QString failure = carryOut(KZPlistFileHandle::sharedInstance().launchAtLogin());
  if (!failure.isEmpty()) Q_EMIT message(failure);
}

void GeneralSettings::update(const Dictionary& values) {
  if (const auto isWanted = flagValue(values, kLaunchAtLogin)) startAtLogin(*isWanted);
  if (const auto isWanted = flagValue(values, kEnableOutlookKZPluginValue)) {
    Q_EMIT message(*isWanted ? QStringLiteral("Meetings can be scheduled from Microsoft Outlook once it is "
                                              "started again.")
                             : QStringLiteral("Microsoft Outlook schedules no meetings any more once it is "
                                              "started again."));
  }
}

void GeneralSettings::startAtLogin(bool isWanted) {
  const QString failure = carryOut(isWanted);
  if (!failure.isEmpty()) return Q_EMIT message(failure);
  Q_EMIT message(isWanted ? QStringLiteral("Brenn Mivra Meetings starts after your next login.")
                          : QStringLiteral("Brenn Mivra Meetings does not start after login any more."));
}

QString GeneralSettings::carryOut(bool isWanted) const {
  const QString reason = isWanted ? m_autostart.write() : m_autostart.remove();
  if (reason.isEmpty()) return {};
  return QStringLiteral("%1 cannot be changed: %2. Make its folder writable and choose again.")
      .arg(m_autostart.path(), reason);
}
