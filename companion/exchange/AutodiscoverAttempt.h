#pragma once

#include <QByteArray>
#include <QObject>
#include <QSet>
#include <QUrl>
#include <functional>
#include <memory>
#include <optional>

#include "companion/exchange/AutodiscoverMessage.h"
#include "companion/exchange/DiscoveryFailure.h"
#include "companion/exchange/RedirectConsent.h"
#include "companion/network/HttpCall.h"

struct AutodiscoverOutcome {
  enum class Kind { Failure, Services, Challenge, OtherEmail, Online, Refused };

  Kind kind = Kind::Failure;
  QUrl address = {};  // who said so
  ExchangeServices services = {};
  QString otherEmail = {};
  std::optional<OnlineService> online = {};
  DiscoveryFailure failure = {};
};

// The header that proves who asks, or why there is none.
struct Authorization {
  QByteArray header;
  DiscoveryFailureKind missing = DiscoveryFailureKind::NoCredential;
};

// What every attempt of one discovery shares. All of it outlives the attempts.
struct DiscoveryContext {
  QNetworkAccessManager& network;
  const ExchangeConfiguration& configuration;
  RedirectConsent& consent;
  // Empty while nobody has entered a credential: a challenge then ends the attempt.
  std::function<Authorization()> authorize = {};
  bool isOnline = false;  // the service is known to be online already
};

// Asks one address for the services of an email and follows where it leads.
class AutodiscoverAttempt final : public QObject {
 public:
  using Done = std::function<void(const AutodiscoverOutcome&)>;

  AutodiscoverAttempt(const DiscoveryContext& context, const QString& email)
      : m_context(context), m_email(email) {}

  // Called once, unless the attempt is stopped.
  void setDone(Done done) { m_done = std::move(done); }

  void ask(const QUrl& address) { visit(address); }
  // Asks with the credential at once: the address is known to want it.
  void askAuthorized(const QUrl& address);
  // Only looks where an unencrypted address leads; the user must allow that.
  void probe(const QUrl& address);
  // Ends the attempt unanswered.
  void stop();

 private:
  using Kind = DiscoveryFailureKind;

  // What must be known of an address before anything is sent to it.
  bool isFit(const QUrl& address);
  void visit(const QUrl& address);
  void consented(const QUrl& address, RedirectConsent::Question question);
  void post(const QUrl& address, const QByteArray& authorization);
  void authorizedPost(const QUrl& address);
  void readProbe(const HttpAnswer& answer);
  void read(const HttpAnswer& answer, bool isAuthorized);
  void readChallenge(const HttpAnswer& answer, bool isAuthorized);
  void readBody(const QByteArray& body);
  void acceptServices(const ExchangeServices& services);
  void fail(Kind kind, const QString& serverText = QString());
  void finish(AutodiscoverOutcome outcome);

  const DiscoveryContext m_context;
  const QString m_email;
  Done m_done;
  QUrl m_address;  // the one that is asked now
  QSet<QUrl> m_visited;
  std::unique_ptr<HttpCall> m_call;
};
