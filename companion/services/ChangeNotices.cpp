#include "companion/services/ChangeNotices.h"

#include <utility>

#include "companion/runtime/PluginHost.h"
#include "companion/services/NextMeetings.h"
#include "companion/texts/CompanionText.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

QString identityNotice() {
  const KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  return companionText("You are %1 now, %2.").arg(store.displayName(), store.userName());
}

QString roomNotice(const QString& room) {
  if (room.isEmpty()) return companionText("You have no personal room any more.");
  return companionText("Your personal room is %1 now.").arg(room);
}

QString sourceNotice() {
  const Dictionary calendar =
      KZPlistFileHandle::sharedInstance().calendarIntegration().value_or(Dictionary());
  const QString source = textValue(calendar, kKZCalendarIntegrationSource);
  if (source == kKZCalendarIntegrationSourceOutlook) {
    return companionText("Meetings come from Microsoft Outlook now.");
  }
  if (source == kKZCalendarIntegrationSourceGoogle) return companionText("Meetings come from Google now.");
  if (source == kKZCalendarIntegrationSourceMivRa) return companionText("Meetings come from Mivra now.");
  return companionText("Meetings come from no calendar now.");
}

QString devicesNotice(const Content& content) {
  const auto isOn = flagValue(content.value_or(Dictionary()), kKZVideoDeviceAutodetect);
  if (!isOn) return {};
  return *isOn ? companionText("Nearby video devices are looked for. This companion finds none.")
               : companionText("Nearby video devices are not looked for any more.");
}

}  // namespace

ChangeNotices::ChangeNotices(PluginHost* host) {
  const auto show = [this](const QString& text) {
    if (!text.isEmpty()) Q_EMIT message(text);
  };
  host->handle(KZCommand::KZCmdPreferenceChanged, this,
               [this, show](const Content& content) { show(recordNotice(content)); });
  host->handle(KZCommand::KZCmdCalendarIntegrationSourceChanged, this,
               [show](const Content&) { show(sourceNotice()); });
  host->handle(KZCommand::KZCmdSetVideoDevicePrefs, this,
               [show](const Content& content) { show(devicesNotice(content)); });
  host->handle(KZCommand::KZCmdListExchMeetingAuthFailure, this,
               [show](const Content&) { show(refusedPasswordText()); });
  host->handle(KZCommand::KZCmdExchDiscoverAuthFailure, this, [show](const Content&) {
    show(companionText(
        "Exchange did not accept this user name and password. Check them, then detect the account again."));
  });
}

QString ChangeNotices::recordNotice(const Content& content) {
  if (!content) return identityNotice();
  const QString room = textValue(*content, QRT_Preference_PMRUrl);
  const std::optional<QString> before = std::exchange(m_room, room);
  // A record arrives at every start: only a change is worth a notice.
  return before && *before != room ? roomNotice(room) : QString();
}
