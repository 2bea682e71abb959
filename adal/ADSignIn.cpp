#include "adal/ADSignIn.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QRandomGenerator>
#include <QThread>
#include <algorithm>
#include <array>
#include <utility>

#include "adal/ADAddress.h"
#include "adal/ADAuthenticationSettings.h"
#include "adal/ADLogger.h"
#include "adal/ADRefresh.h"
#include "adal/ADTokenAnswer.h"

namespace {

constexpr QByteArray::Base64Options urlSafe = QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals;

// 43 random characters of the URL-safe alphabet, for a state or a verifier.
QByteArray randomText() {
  std::array<quint32, 8> random{};
  QRandomGenerator::system()->fillRange(random.data(), static_cast<qsizetype>(random.size()));
  return QByteArray(reinterpret_cast<const char*>(random.data()), sizeof random).toBase64(urlSafe);
}

QByteArray challengeFor(const QByteArray& verifier) {
  return QCryptographicHash::hash(verifier, QCryptographicHash::Sha256).toBase64(urlSafe);
}

QList<std::weak_ptr<ADSignIn>>& runningSignIns() {
  static auto* const signIns = new QList<std::weak_ptr<ADSignIn>>;
  return *signIns;
}

bool canShowDialogs() {
  return qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr;
}

bool contains(const ADParameters& parameters, const QString& name) {
  return std::any_of(parameters.begin(), parameters.end(),
                     [&](const auto& parameter) { return parameter.first == name; });
}

// Only error names from the standard are copied: the page could send any text.
ADError pageError(const QString& name) {
  if (name == QLatin1String("access_denied")) return {ADErrorCode::Refused, name};
  if (name == QLatin1String("temporarily_unavailable") || name == QLatin1String("server_error"))
    return {ADErrorCode::Unavailable, name};
  return {ADErrorCode::Refused, QStringLiteral("by the sign-in page")};
}

ADBrowserPage pageFor(const ADAuthenticationResult& result) {
  if (!result.error) return ADBrowserPage::SignedIn;
  return result.error->code == ADErrorCode::Refused ? ADBrowserPage::Refused : ADBrowserPage::Failed;
}

}  // namespace

std::shared_ptr<ADSignIn> ADSignIn::forRequest(const ADSignInRequest& request) {
  runningSignIns().removeIf([](const std::weak_ptr<ADSignIn>& signIn) { return signIn.expired(); });
  for (const std::weak_ptr<ADSignIn>& running : std::as_const(runningSignIns())) {
    const std::shared_ptr<ADSignIn> signIn = running.lock();
    if (!signIn || signIn->m_isFinished || signIn->m_request != request) continue;
    if (signIn->m_dialog) signIn->m_dialog->raise();
    return signIn;
  }
  auto signIn = std::make_shared<ADSignIn>(request);
  runningSignIns().append(signIn);
  signIn->start();
  return signIn;
}

ADSignIn::ADSignIn(const ADSignInRequest& request)
    : m_request(request), m_state(randomText()), m_verifier(randomText()) {
  Q_ASSERT(QThread::currentThread() == QCoreApplication::instance()->thread());
  m_deadline.setSingleShot(true);
  connect(&m_deadline, &QTimer::timeout, this, [this] { fail({ADErrorCode::TimedOut, {}}); });
  // Windows and sockets must not outlive the application object; this object may.
  connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &ADSignIn::giveUp);
}

ADSignIn::~ADSignIn() {
  giveUp();
}

void ADSignIn::start() {
  ADLogger::log(ADLogLevel::Info, QStringLiteral("sign-in: started for %1").arg(m_request.userIdentifier.id),
                ADPii::Contained);
  findEndpoints(m_web, m_request.authority, [this](const ADEndpointsOrError& found) {
    if (found.error) {
      fail(*found.error);
    } else {
      openPage(found.endpoints);
    }
  });
}

void ADSignIn::openPage(const ADEndpoints& endpoints) {
  m_endpoints = endpoints;
  m_redirectUri = m_request.redirectUri;
  if (m_redirectUri.isEmpty() || !m_redirectUri.isValid()) {
    fail({ADErrorCode::InvalidArgument, QStringLiteral("no redirect address")});
    return;
  }
  const bool isLoopback = isLoopbackRedirect(m_redirectUri);
  const std::optional<ADError> failure = isLoopback ? openListener() : std::nullopt;
  if (failure) {
    fail(*failure);
    return;
  }
  if (!isLoopback && !canShowDialogs()) {
    fail({ADErrorCode::InvalidArgument, QStringLiteral("no dialog can ask for the code")});
    return;
  }
  m_deadline.start(ADAuthenticationSettings::sharedInstance().limits().signIn);
  if (canShowDialogs()) {
    showDialog(isLoopback ? ADSignInDialog::Kind::WaitForBrowser : ADSignInDialog::Kind::AskForCode);
  }
  openBrowser();
}

std::optional<ADError> ADSignIn::openListener() {
  m_listener =
      std::make_unique<ADLoopbackListener>([this](const ADParameters& answer) { return isExpected(answer); });
  connect(m_listener.get(), &ADLoopbackListener::answered, this, &ADSignIn::onAnswer);
  const std::optional<ADError> failure = m_listener->listen(m_redirectUri);
  m_redirectUri = m_listener->redirectUri();
  return failure;
}

QUrl ADSignIn::pageAddress() const {
  ADParameters parameters{
      {QStringLiteral("response_type"), QStringLiteral("code")},
      {QStringLiteral("client_id"), m_request.clientId},
      {QStringLiteral("redirect_uri"), m_redirectUri.toString(QUrl::FullyEncoded)},
      {QStringLiteral("state"), QString::fromLatin1(m_state)},
      {QStringLiteral("code_challenge"), QString::fromLatin1(challengeFor(m_verifier))},
      {QStringLiteral("code_challenge_method"), QStringLiteral("S256")},
  };
  parameters += m_endpoints.resourceParameters(m_request.resource);
  parameters += m_endpoints.promptParameters(m_request.promptBehavior);
  if (!m_request.userIdentifier.id.isEmpty()) {
    parameters.append({QStringLiteral("login_hint"), m_request.userIdentifier.id});
  }
  if (!m_request.claims.isEmpty()) parameters.append({QStringLiteral("claims"), m_request.claims});

  QUrl address = m_endpoints.authorization;
  QStringList queries{address.query(QUrl::FullyEncoded), QString::fromLatin1(encodedParameters(parameters)),
                      m_request.extraQueryParameters};
  queries.removeAll(QString());
  address.setQuery(queries.join(QLatin1Char('&')));
  return address;
}

void ADSignIn::showDialog(ADSignInDialog::Kind kind) {
  m_dialog = std::make_unique<ADSignInDialog>(kind, pageAddress());
  connect(m_dialog.get(), &ADSignInDialog::codeEntered, this, &ADSignIn::onCodeEntered);
  connect(m_dialog.get(), &ADSignInDialog::openAgainRequested, this, &ADSignIn::openBrowser);
  connect(m_dialog.get(), &QDialog::rejected, this, [this] { fail({ADErrorCode::UserCancelled, {}}); });
  m_dialog->show();
}

void ADSignIn::openBrowser() {
  if (ADAuthenticationSettings::sharedInstance().openBrowser(pageAddress())) return;
  ADLogger::log(ADLogLevel::Warn, QStringLiteral("sign-in: no browser opened"));
  // The user can still copy the address from the dialog.
  if (!m_dialog) fail({ADErrorCode::InvalidArgument, QStringLiteral("no browser opened")});
}

bool ADSignIn::isExpected(const ADParameters& answer) const {
  if (onlyValue(answer, QStringLiteral("state")) != QString::fromLatin1(m_state)) return false;
  // Another authority's answer must not be redeemed at this one.
  const bool hasIssuer = contains(answer, QStringLiteral("iss"));
  const QString issuer = onlyValue(answer, QStringLiteral("iss")).value_or(QString());
  if (hasIssuer ? !isIssuer(issuer, m_request.authority) : m_endpoints.namesIssuer) return false;
  const std::optional<QString> code = onlyValue(answer, QStringLiteral("code"));
  return onlyValue(answer, QStringLiteral("error")) || (code && !code->isEmpty());
}

void ADSignIn::onAnswer(const ADParameters& answer) {
  const std::optional<QString> error = onlyValue(answer, QStringLiteral("error"));
  if (!error) {
    redeem(*onlyValue(answer, QStringLiteral("code")));
    return;
  }
  fail(pageError(*error));
}

// Users may paste the code, or the whole address at which the browser ended.
void ADSignIn::onCodeEntered(const QString& entered) {
  const ADParameters answer =
      decodedParameters(entered.section(QLatin1Char('?'), 1).section(QLatin1Char('#'), 0, 0).toUtf8());
  const bool isAddress =
      entered.contains(QLatin1String("://")) || contains(answer, QStringLiteral("state")) ||
      contains(answer, QStringLiteral("code")) || contains(answer, QStringLiteral("error"));
  if (!isAddress) {
    redeem(entered);
  } else if (isExpected(answer)) {
    onAnswer(answer);
  } else {
    m_dialog->showProblem(
        ADAuthenticationSettings::sharedInstance().text("This is not the expected answer."));
  }
}

void ADSignIn::redeem(const QString& code) {
  stopWaiting();
  const ADParameters form =
      ADParameters{{QStringLiteral("grant_type"), QStringLiteral("authorization_code")},
                   {QStringLiteral("code"), code},
                   {QStringLiteral("redirect_uri"), m_redirectUri.toString(QUrl::FullyEncoded)},
                   {QStringLiteral("client_id"), m_request.clientId},
                   {QStringLiteral("code_verifier"), QString::fromLatin1(m_verifier)}} +
      m_endpoints.resourceParameters(m_request.resource);
  m_web.post(m_endpoints.token, form, [this](const ADWebAnswer& answer) {
    const ADTokenAnswerOrError granted =
        tokenAnswer(answer, {m_request.clientId, m_endpoints.issuer}, adNow());
    if (granted.error) {
      fail(*granted.error);
    } else if (granted.answer.userId.isEmpty()) {
      fail({ADErrorCode::ServerAnswer, QStringLiteral("no user")});
    } else {
      const QList<ADTokenCacheItem> items = itemsForAnswer(granted.answer, {.userId = granted.answer.userId,
                                                                            .authority = m_request.authority,
                                                                            .resource = m_request.resource,
                                                                            .clientId = m_request.clientId});
      storeSignedIn(items);
      finish(ADAuthenticationResult::succeeded(items.last()));
    }
  });
}

void ADSignIn::fail(const ADError& error) {
  finish(ADAuthenticationResult::failed(error));
}

void ADSignIn::finish(const ADAuthenticationResult& result) {
  if (std::exchange(m_isFinished, true)) return;
  stopWaiting();
  if (m_listener) ADLoopbackListener::end(std::move(m_listener), pageFor(result));
  ADLogger::log(
      result.error ? ADLogLevel::Error : ADLogLevel::Info,
      QStringLiteral("sign-in: %1").arg(result.error ? result.error->text() : QStringLiteral("succeeded")));
  // From the event loop, so that a completion may destroy the contexts that hold this. A caller may tell
  // results apart by what is outstanding: the refreshes in progress come first.
  ADRefresh::whenNoneIsInProgress([self = weak_from_this(), result] {
    const std::shared_ptr<ADSignIn> signIn = self.lock();
    if (signIn) signIn->m_completions.call(result);
  });
}

void ADSignIn::stopWaiting() {
  m_deadline.stop();
  if (!m_dialog) return;
  m_dialog->disconnect(this);
  m_dialog->hide();
  // Later, because it may be the caller.
  m_dialog.release()->deleteLater();
}

// Ends at once, also in the browser.
void ADSignIn::giveUp() {
  m_web = {};
  stopWaiting();
  if (m_listener) ADLoopbackListener::close(std::move(m_listener), ADBrowserPage::Failed);
}
