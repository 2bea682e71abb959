#include "companion/services/NextMeetings.h"

#include <chrono>
#include <utility>

#include "companion/exchange/SandboxExchange.h"
#include "companion/runtime/PluginHost.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZUtility/KZPlistFileHandle.h"

namespace {

using namespace std::chrono_literals;

constexpr auto kRefreshTime = 5min;

bool isWithin(const ServiceNetwork& network, const Dictionary& exchange) {
  for (const QString& key :
       {kKZCalendarIntegrationExchangeExternalUrl, kKZCalendarIntegrationExchangeInternalUrl}) {
    const QString address = textValue(exchange, key);
    if (!address.isEmpty() && !network.mayAsk(QUrl(address))) return false;
  }
  return true;
}

}  // namespace

NextMeetings::NextMeetings(PluginHost* host, ServiceNetwork* network, ExchangeConfiguration exchange)
    : m_network(network), m_ordinary(std::move(exchange)), m_token(host) {
  m_soon.setSingleShot(true);
  m_soon.setInterval(0ms);
  m_again.setInterval(kRefreshTime);
  connect(&m_soon, &QTimer::timeout, this, &NextMeetings::ask);
  connect(&m_again, &QTimer::timeout, this, &NextMeetings::refreshSoon);
  connect(&m_token, &TokenRequest::failed, this, [this](const QString& reason) { show({}, reason); });
  // A token goes to the account that it was asked for, whatever the store says meanwhile.
  connect(&m_token, &TokenRequest::got, this,
          [this](const QString& token) { m_exchange->list(m_account.exchange, token, m_account.days); });
  connect(network, &ServiceNetwork::changed, this, &NextMeetings::refreshSoon);
  useSandbox({});
  watchStore();
  watchHost(host);
}

void NextMeetings::useSandbox(const QJsonObject& description) {
  m_token.cancel();
  m_exchange = std::make_unique<ExchangeMeetings>(withSandbox(m_ordinary, description));
  connect(m_exchange.get(), &ExchangeMeetings::listed, this, [this](const QList<ExchangeMeeting>& meetings) {
    show(meetings,
         meetings.isEmpty() ? QStringLiteral("No meetings in the days that you chose.") : QString());
  });
  connect(m_exchange.get(), &ExchangeMeetings::failed, this,
          [this](const QString& reason) { show({}, reason); });
  refreshSoon();
}

void NextMeetings::watchStore() {
  connect(&KZPlistFileHandle::sharedInstance(), &KZPlistFileHandle::valueChanged, this,
          [this](const QString& key) {
            if (key == QLatin1String("calendarIntegration")) refreshSoon();
          });
}

void NextMeetings::watchHost(PluginHost* host) {
  host->handle(KZCommand::KZCmdCalendarIntegrationSourceChanged, this,
               [this](const Content&) { refreshSoon(); });
  // The same account may have been applied with another password.
  m_observing = host->addObserver([this](const PluginEvent& event, PluginHost::Phase phase) {
    const auto* notified = std::get_if<NotificationToPlugin>(&event);
    const bool isResolved = notified && notified->index == KZNotify::KZNotifyResolveExchangeDone;
    if (isResolved && phase == PluginHost::Phase::Begin) refreshSoon();
  });
}

void NextMeetings::setWatched(bool isWatched) {
  m_isWatched = isWatched;
  if (isWatched) {
    m_again.start();
    return refreshSoon();
  }
  m_again.stop();
  m_soon.stop();
}

void NextMeetings::refreshSoon() {
  if (m_isWatched) m_soon.start();
}

void NextMeetings::ask() {
  m_token.cancel();
  m_exchange->cancel();
  m_account = readMeetingAccount();
  if (!m_account.missing.isEmpty()) return show({}, m_account.missing);
  if (!m_network->isReady()) return show({}, m_network->missing());
  if (!isWithin(*m_network, m_account.exchange)) {
    return show({},
                QStringLiteral("This account is outside the sandbox. Detect one of the Accounts to try, or "
                               "start the companion with --network."));
  }
  m_isAsking = true;
  Q_EMIT changed();
  if (m_account.isOnline) return m_token.ask(m_account.exchange);
  m_exchange->list(m_account.exchange, {}, m_account.days);
}

void NextMeetings::show(const QList<ExchangeMeeting>& meetings, const QString& text) {
  m_isAsking = false;
  m_meetings = meetings;
  m_text = text;
  Q_EMIT changed();
}
