#include "companion/app/DemoServices.h"

#include <chrono>

#include "companion/app/Border.h"
#include "host/KZFoundation/KZCommands.h"
#include "host/KZFoundation/KZConstants.h"

namespace {

using namespace std::chrono_literals;

constexpr auto kSearchTime = 1200ms;
constexpr auto kUpdateTime = 600ms;

constexpr quint32 number(KZNotify index) {
  return static_cast<quint32>(index);
}

QString localPart(const QString& email) {
  return email.section(u'@', 0, 0).toLower();
}

}  // namespace

DemoServices::DemoServices(Border* border) : m_border(border) {
  m_searching.setSingleShot(true);
  m_searching.setInterval(kSearchTime);
  connect(&m_searching, &QTimer::timeout, this, [this] { m_nextStep(); });
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
    case KZCommand::KZCmdApplyOutlookAccount:
      return search(values);
    case KZCommand::KZCmdCancelApplyOutlookAccount:
      return cancelSearch();
    case KZCommand::KZCmdSinkOutlookAccountCredential:
      return takeCredential(values);
    default:
      return;
  }
}

void DemoServices::refuseUpdates() {
  reportFailure(number(KZNotify::KZNotifyCheckForUpdatesDone),
                QStringLiteral("This host has no update service."));
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

void DemoServices::search(const Dictionary& content) {
  m_email = textValue(content, QRT_ExchangeDiscover_Email);
  later([this] { finishSearch(); });
  Q_EMIT noticed(QStringLiteral(
      "Demonstration of Exchange: onprem@… asks for a password, fail@… is not found, any other "
      "address is found."));
}

void DemoServices::later(std::function<void()> nextStep) {
  m_nextStep = std::move(nextStep);
  m_searching.start();
}

void DemoServices::cancelSearch() {
  m_searching.stop();
  Q_EMIT noticed(QStringLiteral("The search for an Exchange service was given up."));
}

void DemoServices::finishSearch() {
  if (localPart(m_email) == "onprem") return askForCredential();
  if (localPart(m_email) != "fail") return reportFound({});
  reportFailure(number(KZNotify::KZNotifyResolveExchangeDone),
                QStringLiteral("No Exchange service was found for this address (demonstration)."));
}

void DemoServices::askForCredential() {
  m_border->notify(
      number(KZNotify::KZNotifyExchangeResolvingNeedCredential),
      Dictionary{{kKZResult, kKZSuccess},
                 {QRT_ExchangeDiscover_ExchangeType, QRT_ExchangeDiscover_ExchangeTypeOnpremise}});
}

void DemoServices::takeCredential(const Dictionary& content) {
  const QString username = textValue(content, QRT_CredentialContent).section(u':', 0, 0);
  later([this, username] { reportFound(username); });
}

void DemoServices::reportFound(const QString& username) {
  Dictionary exchange = {
      {kKZCalendarIntegrationExchangeEmail, m_email},
      {kKZCalendarIntegrationExchangeExternalUrl, QStringLiteral("https://exchange.example.com/ews")},
      {kKZCalendarIntegrationIsOnline, false}};
  if (!username.isEmpty()) exchange.insert(kKZCalendarIntegrationExchangeUsername, username);
  m_border->notify(number(KZNotify::KZNotifyResolveExchangeDone),
                   Dictionary{{kKZResult, kKZSuccess}, {QRT_ExchangeDiscover_Exchange, exchange}});
}

void DemoServices::reportFailure(quint32 index, const QString& message) {
  m_border->notify(
      index, Dictionary{{kKZResult, kKZFail}, {kKZErrorHandleData, Dictionary{{kKZErrorMessage, message}}}});
}
