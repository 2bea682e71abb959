#pragma once

#include <gtest/gtest.h>

#include <QList>
#include <QStringList>
#include <QTest>
#include <memory>
#include <utility>

#include "companion/exchange/ExchangeDiscovery.h"
#include "companion/exchange/SandboxExchange.h"
#include "host/KZFoundation/KZNotificationCenter.h"
#include "sandbox/ExchangeService.h"

// The sandbox, a discovery that looks for accounts in it, and a plug-in that remembers what it was told and
// offers one credential.
class DiscoveryFixture : public testing::Test {
 protected:
  DiscoveryFixture();

  void SetUp() override;

  // Somebody else does.
  void answerNoChallenge() { m_authenticator.reset(); }
  void detect(const QString& email);
  void sinkPassword();
  // What is asked now and from now on.
  void allowEverything();
  // Waits for the next notification that was not waited for yet; its content, empty when none came.
  Dictionary waitFor(KZNotify index, int milliseconds = 3000);
  Dictionary waitForExchange();  // the account of a success
  QString waitForMessage();      // the message of a failure
  void expectNothingMore(int milliseconds = 150);

  // The visits that carried something to prove who asks.
  QList<sandbox::ExchangeService::Visit> authorizedVisits() const;
  int visitsOf(const QString& host) const;

  static ExchangeConfiguration quickConfiguration();

  sandbox::ExchangeService server;
  ExchangeConfiguration configuration;
  std::unique_ptr<ExchangeDiscovery> discovery;
  QList<std::pair<KZNotify, Dictionary>> notified;
  bool isEverythingAllowed = false;
  QStringList asked;  // the hosts that the user was asked about
  QList<RedirectPrompt::Answer> openQuestions;
  int withdrawn = 0;
  int ended = 0;
  QString username = QStringLiteral("CORP\\onprem");
  QString password = QStringLiteral("correct horse");
  QList<Dictionary> challenges;

 private:
  KZNotificationCenter::Token m_authenticator;
};
