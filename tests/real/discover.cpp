// discover EMAIL [--allow] [USERNAME PASSWORD]: looks for the Exchange service of an email in the network as
// it is, as a host does. Prints one JSON object on each line: each question to the user, whose answer is no
// without --allow; the result; and the longest time for which the event loop stood still.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>
#include <algorithm>
#include <cstdio>

#include "companion/exchange/ExchangeDiscovery.h"
#include "host/KZFoundation/KZConstants.h"
#include "host/KZFoundation/KZNotificationCenter.h"

namespace {

void printLine(const QJsonObject& line) {
  std::printf("%s\n", QJsonDocument(line).toJson(QJsonDocument::Compact).constData());
  std::fflush(stdout);
}

// The user at the plug-in's pane, who knows one credential.
void answerChallenges(const QString& username, const QString& password) {
  auto& center = KZNotificationCenter::defaultCenter();
  static const auto token =
      center.addObserver("HTTPAuthenticationRequired", [=, &center](const KZNotification& challenge) {
        const bool isRefused = textValue(challenge.userInfo, "ShowWarningMsg") == "true";
        if (isRefused) {
          printLine({{"refused", username}});
          QCoreApplication::quit();
        }
        center.post(
            {.name = "HTTPAuthenticationDatasource",
             .userInfo = {{"Username", isRefused ? "" : username}, {"Password", isRefused ? "" : password}}});
      });
}

}  // namespace

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QStringList arguments = QCoreApplication::arguments();
  const bool isAllowing = arguments.removeAll(QStringLiteral("--allow")) > 0;
  answerChallenges(arguments.value(2), arguments.value(3));

  ExchangeConfiguration configuration = productionExchange({}, {});
  configuration.prompt.ask = [isAllowing](const QUrl& target, const RedirectPrompt::Answer& answer) {
    printLine({{"asked", target.host()}});
    answer(isAllowing);
  };
  ExchangeDiscovery discovery(configuration, {{QRT_ExchangeDiscover_Email, arguments.value(1)}});
  QObject::connect(&discovery, &ExchangeDiscovery::notified, [&](KZNotify index, const Dictionary& content) {
    printLine({{"notified", static_cast<int>(index)}, {"content", QJsonObject::fromVariantMap(content)}});
    if (index == KZNotify::KZNotifyResolveExchangeDone) return QCoreApplication::quit();
    discovery.sinkCredential({{QRT_CredentialType, QRT_CredentialTypeUsernamePassword}});
  });

  qint64 longestPause = 0;
  QElapsedTimer sinceTurn;
  sinceTurn.start();
  QTimer turns;
  QObject::connect(&turns, &QTimer::timeout,
                   [&] { longestPause = std::max(longestPause, sinceTurn.restart()); });
  turns.start(1);
  const int status = QCoreApplication::exec();
  printLine({{"longestPauseMs", longestPause}});
  return status;
}
