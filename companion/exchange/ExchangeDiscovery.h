#pragma once

#include <QList>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <memory>
#include <vector>

#include "companion/exchange/AutodiscoverAttempt.h"
#include "host/KZFoundation/Dictionary.h"
#include "host/KZFoundation/KZCommands.h"

// Finds the Exchange service of one email as a host does for its plug-in: commands in, notifications out.
// While it sends a signal it must not be deleted. Main thread only.
class ExchangeDiscovery final : public QObject {
  Q_OBJECT

 public:
  // Starts soon, with the content of command 15.
  ExchangeDiscovery(const ExchangeConfiguration& configuration, const Dictionary& content);
  ~ExchangeDiscovery() override { stop(); }

  bool isRunning() const { return m_state != State::Over; }
  // Ends it without a result.
  void stop();
  // Ends it with that failure, where it has not ended yet.
  void fail(const NetworkFailure& failure);
  // Command 16.
  void cancel();
  // Command 27. A credential that is not waited for is dropped.
  void sinkCredential(const Dictionary& content);

 Q_SIGNALS:
  // For the plug-in.
  void notified(KZNotify index, const Dictionary& content);
  // A sentence for the user.
  void message(const QString& text);

 private:
  enum class State { Searching, AwaitingCredential, AwaitingToken, Over };

  // An address, or where it is empty the look-up of the domain's service records.
  struct Candidate {
    AutodiscoverAttempt::Mode mode = AutodiscoverAttempt::Mode::Unauthorized;
    QUrl address = {};
  };

  struct Running {
    std::unique_ptr<AutodiscoverAttempt> attempt;
    Candidate candidate;
  };

  void start();
  void startRace();
  void startNext();
  void startAttempt(const Candidate& candidate);
  void lookUpServices();
  void onServiceRecords(const QList<ServiceRecord>& records);
  void onOutcome(const AutodiscoverAttempt* attempt, const QUrl& address, const AutodiscoverOutcome& outcome);
  void handle(const NetworkFailure& failure, const QUrl& address);
  void handle(const ExchangeServices& services, const QUrl& address);
  void handle(const CredentialNeeded& needed, const QUrl& address);
  void handle(const OtherEmail& other, const QUrl& address);
  void handle(const OnlineService& service, const QUrl& address);
  void moveTo(const QString& email, const QString& domain);
  void goOnWithPassword();
  void goOnWithToken(const QString& username, const QString& token);
  void stopSearch();

  const ExchangeConfiguration m_configuration;
  const QString m_account;  // the email of command 15
  RedirectConsent m_consent;
  DiscoveryContext m_context;
  State m_state = State::Searching;
  QString m_email;  // the one that is looked for: servers may lead to another
  QString m_domain;
  QString m_username;
  OnlineService m_online;
  QSet<QString> m_visitedEmails;
  QList<Candidate> m_waiting;
  std::vector<Running> m_running;
  QObject* m_lookup = nullptr;  // lives while service records are awaited
  QTimer m_stagger;
  NetworkFailure m_worst;  // of the failures so far, what is reported if nothing is found
};
