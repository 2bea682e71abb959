#pragma once

#include <QList>
#include <QNetworkAccessManager>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <functional>

#include "companion/exchange/AutodiscoverAttempt.h"

struct DiscoveredExchange {
  ExchangeServices services;
  QString username;
  bool isOnline = false;
};

// One discovery, from an email to its services. Says each thing at most once but for noticed; stopped or
// deleted it says nothing more.
class DiscoveryRun final : public QObject {
  Q_OBJECT

 public:
  DiscoveryRun(const ExchangeConfiguration& configuration, const QString& email);
  ~DiscoveryRun() override { stop(); }

  void start();
  // The credential is now to be had by a challenge.
  void goOnWithCredential();
  void goOnWithToken(const QString& username, const QString& token);
  bool isAwaitingCredential() const { return m_state == State::AwaitingCredential; }
  bool isAwaitingToken() const { return m_state == State::AwaitingToken; }
  void stop();

 Q_SIGNALS:
  void credentialNeeded();
  void tokenNeeded(const OnlineService& service, const QString& email);
  void found(const DiscoveredExchange& exchange);
  void refused(const QString& message);  // the password
  void failed(const QString& message);
  void noticed(const QString& text);  // how it goes on, for the user

 private:
  enum class State { Probing, AwaitingCredential, Authorizing, AwaitingToken, ResolvingOnline, Over };

  struct Candidate {
    enum class Kind { Ask, AskAuthorized, Probe, LookUp };

    Kind kind = Kind::Ask;
    QUrl address = {};
    QString serviceName = {};
  };

  struct Running {
    AutodiscoverAttempt* attempt;
    Candidate candidate;
  };

  static Candidate lookUpOf(const QString& domain);
  void startRace();
  void startNext();
  void startCandidate(const Candidate& candidate);
  void lookUpServices(const QString& name);
  void onServices(const QList<ServiceRecord>& records);
  void onOutcome(const AutodiscoverAttempt* attempt, const AutodiscoverOutcome& outcome);
  void onFailure(const DiscoveryFailure& failure);
  void onChallenge(const QUrl& address);
  void onOtherEmail(const QUrl& address, const QString& email);
  void onOnline(const OnlineService& service);
  void onServicesFound(const ExchangeServices& services);
  void onRefused(const QUrl& address);
  void moveTo(const QString& email, const QString& domain);
  Authorization basicCredential();
  void fail(const DiscoveryFailure& failure);
  void stopAttempts();

  const ExchangeConfiguration m_configuration;
  QNetworkAccessManager m_network;
  RedirectConsent m_consent;
  DiscoveryContext m_context;
  State m_state = State::Probing;
  QString m_email;
  QString m_domain;
  QString m_username;
  OnlineService m_online;
  QSet<QString> m_visitedEmails;
  QList<Candidate> m_waiting;
  QList<Running> m_running;
  QObject* m_lookup = nullptr;  // lives while service records are awaited
  QTimer m_stagger;
  DiscoveryFailure m_worst;
};
