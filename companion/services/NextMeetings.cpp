#include "companion/services/NextMeetings.h"

#include <chrono>

#include "companion/runtime/PluginHost.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

using namespace std::chrono_literals;

constexpr auto kRefreshTime = 5min;

}  // namespace

NextMeetings::NextMeetings(PluginHost* host, ServiceNetwork* network) : m_network(network), m_token(host) {
  m_soon.setSingleShot(true);
  m_soon.setInterval(0ms);
  m_again.setInterval(kRefreshTime);
  connect(&m_soon, &QTimer::timeout, this, &NextMeetings::request);
  connect(&m_again, &QTimer::timeout, this, &NextMeetings::refresh);
  connect(&m_token, &TokenRequest::failed, this, [this](const QString& reason) { show({}, reason); });
  connect(&m_token, &TokenRequest::got, this, &NextMeetings::list);
  connect(network, &ServiceNetwork::changed, this, &NextMeetings::refresh);
  watchStore();
  watchHost(host);
}

void NextMeetings::watchStore() {
  connect(&KZPlistFileHandle::sharedInstance(), &KZPlistFileHandle::valueChanged, this,
          [this](const QString& key) {
            if (key == QLatin1String("calendarIntegration")) refresh();
          });
}

void NextMeetings::watchHost(PluginHost* host) {
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
  m_token.cancel();
  m_exchange.reset();
  m_account = readMeetingAccount();
  if (!m_account.missing.isEmpty()) return show({}, m_account.missing);
  // The request of a token would already reach an online service.
  const QString refusal = m_network->refusalOf(meetingAddress(m_account.exchange));
  if (!refusal.isEmpty()) return show({}, refusal);
  m_isAsking = true;
  Q_EMIT changed();
  m_account.isOnline ? m_token.ask(m_account.exchange) : list({});
}

// The token goes to the account that it was requested for, even if the store has changed since.
void NextMeetings::list(const QString& token) {
  m_exchange = std::make_unique<ExchangeMeetings>(m_network->exchange());
  connect(m_exchange.get(), &ExchangeMeetings::listed, this, [this](const QList<ExchangeMeeting>& meetings) {
    show(meetings,
         meetings.isEmpty() ? QStringLiteral("No meetings in the days that you chose.") : QString());
  });
  connect(m_exchange.get(), &ExchangeMeetings::failed, this,
          [this](const QString& reason) { show({}, reason); });
  m_exchange->list(m_account.exchange, token, m_account.days);
}

void NextMeetings::show(const QList<ExchangeMeeting>& meetings, const QString& text) {
  m_isAsking = false;
  m_meetings = meetings;
  m_text = text;
  Q_EMIT changed();
}
