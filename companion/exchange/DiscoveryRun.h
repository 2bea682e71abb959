#pragma once

#include <QList>
#include <QNetworkAccessManager>
#include <QObject>
#include <QSet>
#include <QTimer>

#include "companion/exchange/AutodiscoverAttempt.h"

struct DiscoveredExchange {
  ExchangeServices services;
  QString username;
  bool isOnline = false;
};

// One discovery, from an email to its services. Emits each signal at most once, except progressed; none after
// it is stopped or deleted.
class DiscoveryRun final : public QObject {
  Q_OBJECT

 public:
  DiscoveryRun(const ExchangeConfiguration& configuration, const QString& email);
  ~DiscoveryRun() override { stop(); }

  void start();
  // After credentialNeeded: it is now the answer to a challenge.
  void goOnWithCredential();
  // After tokenNeeded.
  void goOnWithToken(const QString& username, const QString& token);
  bool isAwaitingCredential() const { return m_state == State::AwaitingCredential; }
  bool isAwaitingToken() const { return m_state == State::AwaitingToken; }
  void stop();

 Q_SIGNALS:
  void credentialNeeded();
  void tokenNeeded(const OnlineService& service, const QString& email);
  void found(const DiscoveredExchange& exchange);
  void failed(const NetworkFailure& failure);
  void progressed(const QString& text);  // a sentence for the user

 private:
  enum class State { Searching, AwaitingCredential, AwaitingToken, Over };

  // An address, or where it is empty the look-up of the domain's service records.
  struct Candidate {
    AutodiscoverAttempt::Mode mode = AutodiscoverAttempt::Mode::Unauthorized;
    QUrl address = {};
  };

  struct Running {
    AutodiscoverAttempt* attempt;
    Candidate candidate;
  };

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
  Authorization basicCredential();
  void fail(const NetworkFailure& failure);
  void stopAttempts();

  const ExchangeConfiguration m_configuration;
  QNetworkAccessManager m_network;
  RedirectConsent m_consent;
  DiscoveryContext m_context;
  State m_state = State::Searching;
  QString m_email;
  QString m_domain;
  QString m_username;
  OnlineService m_online;
  QSet<QString> m_visitedEmails;
  QList<Candidate> m_waiting;
  QList<Running> m_running;
  QObject* m_lookup = nullptr;  // lives while service records are awaited
  QTimer m_stagger;
  NetworkFailure m_worst;  // of the failures so far, what is reported if nothing is found
};
