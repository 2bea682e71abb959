#pragma once

#include <gtest/gtest.h>

#include <QList>
#include <QStringList>
#include <QTest>
#include <memory>
#include <utility>

#include "companion/exchange/ExchangeDiscovery.h"
#include "companion/exchange/SandboxDescription.h"
#include "host/KZFoundation/KZNotificationCenter.h"
#include "sandbox/Sandbox.h"

// The sandbox, a discovery that looks for accounts in it, and a plug-in that keeps the notifications it gets
// and offers one credential.
class DiscoveryFixture : public testing::Test {
 protected:
  DiscoveryFixture();

  void SetUp() override;

  void detect(const QString& email);
  void sinkPassword();
  // The open questions and all later ones.
  void allowEverything();
  // Waits for the next notification that was not waited for yet; its content, empty when none came.
  Dictionary waitFor(KZNotify index, int milliseconds = 3000);
  Dictionary waitForExchange();  // the account of a success
  QString waitForMessage();      // the message of a failure
  void expectNothingMore(int milliseconds = 150);

  // The visits that carried a credential.
  QList<sandbox::Sandbox::Visit> authorizedVisits() const;
  int visitsOf(const QString& host) const;

  static ExchangeConfiguration quickConfiguration();

  sandbox::Sandbox server;
  SandboxDescription description;
  ExchangeConfiguration configuration;
  std::unique_ptr<ExchangeDiscovery> discovery;
  QList<std::pair<KZNotify, Dictionary>> notified;
  bool isEverythingAllowed = false;
  QStringList asked;  // the hosts that the user was asked about
  QList<RedirectPrompt::Answer> openQuestions;
  int withdrawn = 0;
  QString username = QStringLiteral("CORP\\onprem");
  QString password = QStringLiteral("correct horse");
  QList<Dictionary> challenges;

 private:
  KZNotificationCenter::Token m_authenticator;
};
