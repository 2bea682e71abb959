#include "companion/services/ChangeNotices.h"

#include "companion/runtime/Border.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

QString identityNotice(const Content& content) {
  const KZPlistFileHandle& store = KZPlistFileHandle::sharedInstance();
  if (!content) return QStringLiteral("You are %1 now, %2.").arg(store.displayName(), store.userName());
  // A record arrives at every start; what did not change is no news.
  return {};
}

QString sourceNotice() {
  const Dictionary calendar = KZPlistFileHandle::sharedInstance().calendarIntegration();
  const QString source = textValue(calendar, kKZCalendarIntegrationSource);
  if (source == kKZCalendarIntegrationSourceOutlook) {
    return QStringLiteral("Meetings come from Microsoft Outlook now.");
  }
  if (source == kKZCalendarIntegrationSourceGoogle) return QStringLiteral("Meetings come from Google now.");
  if (source == kKZCalendarIntegrationSourceMivRa) return QStringLiteral("Meetings come from Mivra now.");
  return QStringLiteral("Meetings come from no calendar now.");
}

QString devicesNotice(const Content& content) {
  const auto isOn = flagValue(content.value_or(Dictionary()), kKZVideoDeviceAutodetect);
  if (!isOn) return {};
  return *isOn ? QStringLiteral("Nearby video devices are looked for. This companion finds none.")
               : QStringLiteral("Nearby video devices are not looked for any more.");
}

QString noticeOf(KZCommand command, const Content& content) {
  switch (command) {
    case KZCommand::KZCmdPreferenceChanged:
      return identityNotice(content);
    case KZCommand::KZCmdCalendarIntegrationSourceChanged:
      return sourceNotice();
    case KZCommand::KZCmdSetVideoDevicePrefs:
      return devicesNotice(content);
    case KZCommand::KZCmdListExchMeetingAuthFailure:
      return QStringLiteral(
          "Exchange did not accept the saved user name and password. Detect the account again in "
          "Preferences, "
          "Meetings.");
    case KZCommand::KZCmdExchDiscoverAuthFailure:
      return QStringLiteral(
          "Exchange did not accept this user name and password. Check them, then detect the account again.");
    default:
      return {};
  }
}

}  // namespace

ChangeNotices::ChangeNotices(Border* border) {
  connect(border, &Border::commandSent, this, &ChangeNotices::answer);
}

void ChangeNotices::answer(quint64 command, const Content& content) {
  const QString notice = noticeOf(static_cast<KZCommand>(command), content);
  if (!notice.isEmpty()) Q_EMIT noticed(notice);
}
