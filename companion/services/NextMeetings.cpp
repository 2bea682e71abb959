#include "companion/services/NextMeetings.h"

#include <algorithm>

#include "companion/runtime/PluginHost.h"
#include "companion/texts/CompanionText.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZKeyChainHandle.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

constexpr std::chrono::minutes kRefreshTime(5);
constexpr int kMostDays = 31;

// Why the account cannot be listed, in a sentence; null where it can.
QString missingText(const QString& source, const Dictionary& account) {
  if (source == kKZCalendarIntegrationSourceGoogle || source == kKZCalendarIntegrationSourceMivRa) {
    return companionText(
        "The meetings of your calendar are not listed here: this companion reads Microsoft Outlook only. "
        "Choose it in Preferences, Meetings.");
  }
  // Without a stored source a pane may show Outlook as chosen.
  if (source != kKZCalendarIntegrationSourceOutlook || meetingAddress(account).isEmpty()) {
    return companionText(
        "To see your next meetings, choose Microsoft Outlook in Preferences, Meetings, and enter your email "
        "address.");
  }
  // Sending the refused password again could lock the account.
  const bool isRefused = !flagValue(account, kKZCalendarIntegrationOnpremiseCredValid).value_or(true);
  return isRefused ? refusedPasswordText() : QString();
}

// Why there is no token; %1 is the user.
QString reasonOf(const Dictionary& answer) {
  if (!isSet(answer, QStringLiteral("GetTokenFailed")))
    return companionText("Nobody is signed in as %1. Detect the account again to sign in.");
  const QString reason = textValue(answer, QStringLiteral("GetTokenFailedReason"));
  return reason == QLatin1String("TryLater")
             ? companionText("The sign-in of %1 cannot be renewed now. Refresh later.")
             : companionText("The sign-in of %1 could not be renewed. Detect the account again to sign in.");
}

}  // namespace

NextMeetings::NextMeetings(PluginHost* host, ServiceNetwork* network, std::chrono::milliseconds tokenTime)
    : m_host(host), m_network(network) {
  m_soon.setSingleShot(true);
  m_soon.setInterval(0);
  m_again.setInterval(kRefreshTime);
  m_tokenDeadline.setSingleShot(true);
  m_tokenDeadline.setInterval(tokenTime);
  connect(&m_soon, &QTimer::timeout, this, &NextMeetings::request);
  connect(&m_again, &QTimer::timeout, this, &NextMeetings::refresh);
  connect(&m_tokenDeadline, &QTimer::timeout, this, [this] {
    show({}, companionText("The sign-in of %1 was not renewed in time. Refresh, or detect the account again.")
                 .arg(m_tokenEmail));
  });
  connect(network, &ServiceNetwork::changed, this, &NextMeetings::refresh);
  connect(&KZPlistFileHandle::sharedInstance(), &KZPlistFileHandle::valueChanged, this,
          [this](const QString& key) {
            if (key == QLatin1String("calendarIntegration")) refresh();
          });
  // What was missing can be read now.
  const KZKeyChainHandle& keychain = KZKeyChainHandle::sharedInstance();
  connect(&keychain, &KZKeyChainHandle::hindranceChanged, this, [this, &keychain] {
    if (keychain.hindrance() == KZKeyChainHandle::Hindrance::None) refresh();
  });
  watch(host);
}

void NextMeetings::watch(PluginHost* host) {
  host->handle(KZCommand::KZCmdExchOnlineTokenGot, this,
               [this](const Content& content) { takeToken(content.value_or(Dictionary())); });
  host->handle(KZCommand::KZCmdCalendarIntegrationSourceChanged, this, [this](const Content&) { refresh(); });
  // The same account may have been applied with another password.
  m_observing = host->addObserver([this](const PluginEvent& event, PluginHost::Phase phase) {
    const auto* notified = std::get_if<NotificationToPlugin>(&event);
    const bool isResolved = notified && notified->index == KZNotify::KZNotifyResolveExchangeDone;
    if (isResolved && phase == PluginHost::Phase::Begin) refresh();
  });
}

void NextMeetings::setWatched(bool isWatched) {
  m_isWatched = isWatched;
  if (isWatched) {
    m_again.start();
    return refresh();
  }
  m_again.stop();
  m_soon.stop();
}

void NextMeetings::refresh() {
  if (m_isWatched) m_soon.start();
}

void NextMeetings::request() {
  m_tokenEmail.clear();
  m_tokenDeadline.stop();
  m_exchange.reset();
  const Dictionary calendar =
      KZPlistFileHandle::sharedInstance().calendarIntegration().value_or(Dictionary());
  m_account = dictionaryValue(calendar, kKZCalendarIntegrationExchange);
  m_days = std::clamp(countValue(calendar, kKZCalendarIntegrationDays).toInt(), 1, kMostDays);
  const QString missing = missingText(textValue(calendar, kKZCalendarIntegrationSource), m_account);
  if (!missing.isEmpty()) return show({}, missing);
  // The request of a token would already reach an online service.
  const QString refusal = m_network->refusalOf(meetingAddress(m_account));
  if (!refusal.isEmpty()) return show({}, refusal);
  m_isAsking = true;
  Q_EMIT changed();
  isSet(m_account, kKZCalendarIntegrationIsOnline) ? requestToken() : list({});
}

void NextMeetings::requestToken() {
  m_tokenEmail = textValue(m_account, kKZCalendarIntegrationExchangeEmail);
  m_tokenDeadline.start();
  m_host->trigger(
      KZCommand::KZCmdGetExchOnlineToken,
      Dictionary{{kKZCalendarIntegration, Dictionary{{kKZCalendarIntegrationExchange, m_account}}}});
}

void NextMeetings::takeToken(const Dictionary& values) {
  const Dictionary calendar = dictionaryValue(values, kKZCalendarIntegration);
  const Dictionary exchange = dictionaryValue(calendar, kKZCalendarIntegrationExchange);
  // The response to an earlier request may come late.
  const bool isAwaited = !m_tokenEmail.isNull() &&
                         isEqualText(textValue(exchange, kKZCalendarIntegrationExchangeEmail), m_tokenEmail);
  const bool isFailed = isSet(values, QStringLiteral("GetTokenFailed"));
  if (!isAwaited || (!isFailed && isSet(values, QStringLiteral("isTokenExpired")))) return;
  m_tokenDeadline.stop();
  const QString email = std::exchange(m_tokenEmail, {});
  const QString token = textValue(values, QRT_ListingMeeting_exchOnlineToken);
  if (!isFailed && !token.isEmpty()) return list(token);
  show({}, reasonOf(values).arg(email));
}

// The token goes to the account that it was requested for, even if the store has changed since.
void NextMeetings::list(const QString& token) {
  m_exchange = std::make_unique<ExchangeMeetings>(
      m_network->exchange(), [this](const QList<ExchangeMeeting>& meetings, const QString& failure) {
        const bool isNone = meetings.isEmpty() && failure.isEmpty();
        show(meetings, isNone ? companionText("No meetings in the days that you chose.") : failure);
      });
  m_exchange->list(m_account, token, m_days);
}

void NextMeetings::show(const QList<ExchangeMeeting>& meetings, const QString& text) {
  m_isAsking = false;
  m_meetings = meetings;
  m_text = text;
  Q_EMIT changed();
}

QString refusedPasswordText() {
  return companionText(
      "Exchange did not accept the saved user name and password. Detect the account again in Preferences, "
      "Meetings.");
}

int announcedMinutes() {
  const Dictionary settings =
      KZPlistFileHandle::sharedInstance().meetingNotification().value_or(Dictionary());
  if (!flagValue(settings, kKZMeetintNotificationToast).value_or(true)) return 0;
  return countValue(settings, kKZMeetintNotificationToastMinutes).toInt();
}
