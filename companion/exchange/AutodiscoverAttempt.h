#pragma once

#include <QByteArray>
#include <QObject>
#include <QSet>
#include <QUrl>
#include <functional>
#include <memory>
#include <variant>

#include "companion/exchange/AutodiscoverMessage.h"
#include "companion/exchange/CredentialChallenge.h"
#include "companion/exchange/RedirectConsent.h"
#include "companion/network/HttpCall.h"

struct CredentialNeeded {};

struct OtherEmail {
  QString email;
};

// The result of one attempt.
using AutodiscoverOutcome =
    std::variant<NetworkFailure, ExchangeServices, CredentialNeeded, OtherEmail, OnlineService>;

constexpr qsizetype kMostHops = 10;

// Shared by all attempts of one discovery, and outlives them.
struct DiscoveryContext {
  const ExchangeConfiguration& configuration;
  RedirectConsent& consent;
  // Empty while there is no credential: a challenge then ends the attempt.
  std::function<Authorization()> authorize = {};
  bool isOnline = false;  // the service is known to be online already
};

// Requests the services of an email from one address and follows where it leads. Deleting it ends it without
// an outcome.
class AutodiscoverAttempt final : public QObject {
 public:
  enum class Mode {
    Unauthorized,  // a credential is sent only after a challenge
    Authorized,    // with the credential at once: the address is known to want it
    Probe,         // only looks where an unencrypted address leads; the user must allow that
  };
  // `address` is the one that the outcome is of.
  using Done = std::function<void(const QUrl& address, const AutodiscoverOutcome&)>;

  AutodiscoverAttempt(const DiscoveryContext& context, const QString& email)
      : m_context(context), m_email(email) {}

  // Calls `done` once, possibly before this returns; it may delete the attempt.
  void start(Mode mode, const QUrl& address, Done done);

 private:
  using Question = RedirectConsent::Question;

  // Must hold before anything is sent to an address.
  bool isUsable(const QUrl& address);
  void ifAllowed(const QUrl& target, Question question, const std::function<void()>& next);
  void visit(const QUrl& address);
  void post(const QUrl& address, const QByteArray& authorization);
  void authorizedPost(const QUrl& address);
  void call(const HttpRequest& request, HttpCall::Done done);
  void readProbe(const HttpResponse& response);
  void read(const HttpResponse& response, bool isAuthorized);
  void readChallenge(const HttpResponse& response, bool isAuthorized);
  void readBody(const QByteArray& body);
  void acceptServices(const ExchangeServices& services);
  void fail(FailureKind kind, const QString& detail = QString());
  void finish(const AutodiscoverOutcome& outcome);

  const DiscoveryContext m_context;
  const QString m_email;
  Done m_done;
  QUrl m_address;  // the current one
  QSet<QUrl> m_visited;
  std::unique_ptr<HttpCall> m_call;
};
