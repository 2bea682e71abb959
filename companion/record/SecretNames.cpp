#include "companion/record/SecretVault.h"

#include <QRegularExpression>
#include <QUrlQuery>
#include <utility>

#include "host/KZFoundation/KZConstantRegistry.h"

namespace {

bool isSecretItem(const QString& key) {
  static const QStringList ofSignIn = {QStringLiteral("state"), QStringLiteral("nonce"),
                                       QStringLiteral("code_challenge")};
  if (ofSignIn.contains(key)) return true;
  // What is a secret in a dictionary is one in an address.
  bool isSecret = false;
  (void)kzReplaceSecrets({{key, QString()}}, [&isSecret](const QVariant& value) {
    isSecret = true;
    return value;
  });
  return isSecret;
}

// The port at which this machine waits for an answer is another one each time.
QString withoutLoopbackPort(const QString& address) {
  QUrl url(address);
  if (url.host() != "127.0.0.1" && url.host() != "localhost") return address;
  url.setPort(-1);
  return url.toString(QUrl::FullyEncoded);
}

}  // namespace

QString SecretVault::nameOf(const QString& secret) {
  if (secret.isEmpty()) return secret;
  const auto known = m_names.constFind(secret);
  if (known != m_names.constEnd()) return *known;
  QString name = secret;
  if (!SecretFinder::isName(secret)) {
    const QStringList taken = m_names.values();
    do {
      name = QStringLiteral("secret-%1").arg(++m_lastNumber);
    } while (taken.contains(name));
  }
  m_names.insert(secret, name);
  m_finder.add(secret, name);
  return name;
}

// Bytes that are a text are the same secret as the text.
QByteArray SecretVault::nameOfBytes(const QByteArray& secret) {
  const QString text = QString::fromUtf8(secret);
  return nameOf(text.toUtf8() == secret ? text : QString::fromLatin1(secret.toBase64())).toLatin1();
}

Content SecretVault::withoutSecrets(const Content& content) {
  return content ? Content(withoutSecrets(QVariant(*content)).toMap()) : Content();
}

QVariant SecretVault::withoutSecrets(const QVariant& value) {
  const Dictionary replaced =
      kzReplaceSecrets({{QString(), value}}, [this](const QVariant& secret) { return nameUnderKey(secret); });
  return withoutKnown(replaced.value(QString()));
}

QString SecretVault::withoutSecrets(const QString& text) {
  return withoutSecrets(QVariant(text)).toString();
}

QVariant SecretVault::nameUnderKey(const QVariant& secret) {
  switch (secret.typeId()) {
    case QMetaType::QVariantMap: {
      Dictionary names = secret.toMap();
      for (QVariant& value : names) value = nameUnderKey(value);
      return names;
    }
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
      QVariantList names = secret.toList();
      for (QVariant& value : names) value = nameUnderKey(value);
      return names;
    }
    case QMetaType::QByteArray:
      return nameOfBytes(secret.toByteArray());
    default:
      break;
  }
  const QString text = secret.toString();
  const bool isOpen = isMissing(secret) || !constantNameOf(text).isNull();
  return isOpen ? secret : QVariant(nameInCredential(text));
}

// A credential is a user name, a colon and a password; the user name stays where the password is known.
QString SecretVault::nameInCredential(const QString& text) {
  for (auto known = m_names.constBegin(); known != m_names.constEnd(); ++known) {
    const QString end = u':' + known.key();
    if (text.endsWith(end)) return text.chopped(end.size()) + u':' + *known;
  }
  return nameOf(text);
}

QVariant SecretVault::withoutKnown(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::QString: {
      const QString text = value.toString();
      const QString open = withoutKnown(text);
      return open == text ? value : QVariant(open);
    }
    case QMetaType::QVariantMap: {
      Dictionary open = value.toMap();
      for (QVariant& inner : open) inner = withoutKnown(inner);
      return open;
    }
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
      QVariantList open = value.toList();
      for (QVariant& inner : open) inner = withoutKnown(inner);
      return open;
    }
    case QMetaType::QByteArray: {
      const QByteArray bytes = value.toByteArray();
      return m_finder.isIn(bytes) ? QVariant(nameOfBytes(bytes)) : value;
    }
    default:
      return value;
  }
}

QString SecretVault::withoutKnown(const QString& text) {
  if (text.isEmpty() || m_names.isEmpty() || !constantNameOf(text).isNull()) return text;
  const auto whole = m_names.constFind(text);
  if (whole != m_names.constEnd()) return *whole;
  // Words of base64 first: a user name and a password may be hidden in one.
  static const QRegularExpression word(QStringLiteral("[A-Za-z0-9+/_-]{6,}={0,2}"));
  QString open;
  qsizetype end = 0;
  for (auto match = word.globalMatch(text); match.hasNext();) {
    const auto found = match.next();
    if (!m_finder.isInBase64(found.captured())) continue;
    open += text.mid(end, found.capturedStart() - end) + nameOf(found.captured());
    end = found.capturedEnd();
  }
  return m_finder.replaced(open + text.mid(end));
}

QString SecretVault::itemsWithoutSecrets(const QString& items) {
  QList<std::pair<QString, QString>> open;
  const auto given = QUrlQuery(items).queryItems(QUrl::FullyDecoded);
  for (const auto& [key, value] : given) {
    const bool isRedirect = key == "redirect_uri";
    const QString text = isSecretItem(key) ? nameOf(value) : isRedirect ? withoutLoopbackPort(value) : value;
    open.append({key, QString::fromLatin1(QUrl::toPercentEncoding(withoutKnown(text)))});
  }
  QUrlQuery query;
  query.setQueryItems(open);
  return query.toString(QUrl::FullyEncoded);
}

QString SecretVault::addressWithoutSecrets(const QString& address) {
  QUrl url(address);
  if (!url.password().isEmpty()) url.setPassword(nameOf(url.password(QUrl::FullyDecoded)));
  if (url.hasQuery()) url.setQuery(itemsWithoutSecrets(url.query(QUrl::FullyEncoded)));
  // A sign-in may hand its answer over behind the address.
  if (url.fragment().contains(u'=')) url.setFragment(itemsWithoutSecrets(url.fragment(QUrl::FullyEncoded)));
  return withoutKnown(url.toString(QUrl::FullyEncoded));
}
