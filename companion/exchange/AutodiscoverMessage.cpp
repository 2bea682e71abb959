#include "companion/exchange/AutodiscoverMessage.h"

#include <QXmlStreamWriter>
#include <utility>

#include "companion/exchange/BoundedXml.h"
#include "companion/network/WebAddress.h"

namespace {

constexpr int kLongestErrorText = 200;

// Collects what the elements of a response say.
class ResponseReader final {
 public:
  void read(const QString& path, const QString& text) {
    if (path.endsWith(QLatin1String("/Account/Protocol"))) addProtocol();
    if (path.endsWith(QLatin1String("/Account/Protocol/Type"))) m_type = text;
    if (path.endsWith(QLatin1String("/Account/Protocol/EwsUrl"))) m_webService = text;
    if (path.endsWith(QLatin1String("/Account/Action"))) m_action = text.toLower();
    // The protocol's documents write these both with a capital and a small letter.
    if (path.endsWith(QLatin1String("/Account/redirectAddr"), Qt::CaseInsensitive))
      m_response.otherEmail = text;
    if (path.endsWith(QLatin1String("/Account/redirectUrl"), Qt::CaseInsensitive)) {
      m_response.otherUrl = QUrl(text, QUrl::StrictMode);
    }
    if (path.endsWith(QLatin1String("/Response/Error"))) m_hasError = true;
    if (path.endsWith(QLatin1String("/Error/Message"))) {
      m_response.errorText = text.simplified().left(kLongestErrorText);
    }
  }

  AutodiscoverResponse response() {
    m_response.kind = kind();
    return m_response;
  }

 private:
  using Kind = AutodiscoverResponse::Kind;

  void addProtocol() {
    const QUrl found(std::exchange(m_webService, {}), QUrl::StrictMode);
    const QUrl address = isSafeAddress(found) ? found : QUrl();
    const QString type = std::exchange(m_type, {});
    if (type == QLatin1String("EXCH")) m_response.services.internalUrl = address;
    if (type == QLatin1String("EXPR")) m_response.services.externalUrl = address;
    // The newer form of EXPR, which goes first where both are there.
    if (type == QLatin1String("EXHTTP") && m_response.services.externalUrl.isEmpty()) {
      m_response.services.externalUrl = address;
    }
  }

  Kind kind() const {
    if (m_hasError) return Kind::Error;
    if (m_action == QLatin1String("redirectaddr") && !m_response.otherEmail.isEmpty())
      return Kind::OtherEmail;
    if (m_action == QLatin1String("redirecturl") && m_response.otherUrl.isValid()) return Kind::OtherUrl;
    return m_action == QLatin1String("settings") ? Kind::Services : Kind::Unreadable;
  }

  AutodiscoverResponse m_response;
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

AutodiscoverResponse readAutodiscoverResponse(const QByteArray& xml) {
  ResponseReader reader;
  const bool isRead =
      walkBoundedXml(xml, [&reader](const QString& path, const QString& text) { reader.read(path, text); });
  return isRead ? reader.response() : AutodiscoverResponse();
}
