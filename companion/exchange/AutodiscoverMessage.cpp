#include "companion/exchange/AutodiscoverMessage.h"

#include <QXmlStreamWriter>

#include "companion/exchange/BoundedXml.h"

namespace {

constexpr int kLongestErrorText = 200;

QUrl secureUrl(const QString& text) {
  const QUrl url(text, QUrl::StrictMode);
  const bool isSecure =
      url.scheme() == QLatin1String("https") && !url.host().isEmpty() && url.userInfo().isEmpty();
  return isSecure ? url : QUrl();
}

class AnswerReader final {
 public:
  void start(const QStringList& path) {
    if (endsWithNames(path, {u"Account", u"Protocol"})) m_type = m_webService = QString();
  }

  void end(const QStringList& path, const QString& text) {
    if (endsWithNames(path, {u"Account", u"Protocol"})) return addProtocol();
    if (endsWithNames(path, {u"Account", u"Protocol", u"Type"})) m_type = text;
    if (endsWithNames(path, {u"Account", u"Protocol", u"EwsUrl"})) m_webService = text;
    if (endsWithNames(path, {u"Account", u"Action"})) m_action = text;
    if (endsWithNames(path, {u"Account", u"RedirectAddr"}) ||
        endsWithNames(path, {u"Account", u"redirectAddr"})) {
      m_answer.otherEmail = text;
    }
    if (endsWithNames(path, {u"Account", u"RedirectUrl"}) ||
        endsWithNames(path, {u"Account", u"redirectUrl"})) {
      m_answer.otherUrl = QUrl(text, QUrl::StrictMode);
    }
    if (endsWithNames(path, {u"Response", u"Error"})) m_hasError = true;
    if (endsWithNames(path, {u"Error", u"Message"})) {
      m_answer.errorText = text.simplified().left(kLongestErrorText);
    }
  }

  AutodiscoverAnswer answer() {
    m_answer.kind = kind();
    return m_answer;
  }

 private:
  using Kind = AutodiscoverAnswer::Kind;

  void addProtocol() {
    const QUrl url = secureUrl(m_webService);
    if (m_type == QLatin1String("EXCH")) m_answer.services.internalUrl = url;
    if (m_type == QLatin1String("EXPR")) m_answer.services.externalUrl = url;
    // Says the same in the newer form; the older one goes first where both are there.
    if (m_type == QLatin1String("EXHTTP") && m_answer.services.externalUrl.isEmpty()) {
      m_answer.services.externalUrl = url;
    }
  }

  Kind kind() const {
    if (m_hasError) return Kind::Error;
    const bool isElsewhere = m_action.compare(QLatin1String("redirectAddr"), Qt::CaseInsensitive) == 0;
    if (isElsewhere) return m_answer.otherEmail.isEmpty() ? Kind::Unreadable : Kind::OtherEmail;
    const bool isAtOtherUrl = m_action.compare(QLatin1String("redirectUrl"), Qt::CaseInsensitive) == 0;
    if (isAtOtherUrl) return m_answer.otherUrl.isValid() ? Kind::OtherUrl : Kind::Unreadable;
    return m_action == QLatin1String("settings") ? Kind::Services : Kind::Unreadable;
  }

  AutodiscoverAnswer m_answer;
  QString m_action;
  QString m_type;  // of the protocol that is being read
  QString m_webService;
  bool m_hasError = false;
};

}  // namespace

QByteArray autodiscoverRequest(const QString& email) {
  const QString schemas =
      QStringLiteral("http://schemas.microsoft.com/exchange/autodiscover/outlook/%1/2006%2");
  QByteArray xml;
  QXmlStreamWriter writer(&xml);
  writer.writeStartDocument();
  writer.writeStartElement(QStringLiteral("Autodiscover"));
  writer.writeDefaultNamespace(schemas.arg(QStringLiteral("requestschema"), QString()));
  writer.writeStartElement(QStringLiteral("Request"));
  writer.writeTextElement(QStringLiteral("EMailAddress"), email);
  writer.writeTextElement(QStringLiteral("AcceptableResponseSchema"),
                          schemas.arg(QStringLiteral("responseschema"), QStringLiteral("a")));
  writer.writeEndDocument();
  return xml;
}

AutodiscoverAnswer readAutodiscoverAnswer(const QByteArray& xml) {
  AnswerReader reader;
  const bool isRead = walkBoundedXml(
      xml, [&reader](const QStringList& path) { reader.start(path); },
      [&reader](const QStringList& path, const QString& text) { reader.end(path, text); });
  return isRead ? reader.answer() : AutodiscoverAnswer();
}
