#include "companion/record/SecretVault.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QUrlQuery>
#include <algorithm>

#include "host/KZFoundation/KZConstantRegistry.h"

namespace {

// A shorter secret would be found in texts that have nothing to do with it.
constexpr qsizetype kShortestFoundAnywhere = 4;

bool isSecretName(const QString& text) {
  static const QRegularExpression pattern(QStringLiteral("^secret-[1-9][0-9]{0,5}$"));
  return pattern.match(text).hasMatch();
}

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

// As the secret may stand in another text.
QStringList formsOf(const QString& secret) {
  const QString json =
      QString::fromUtf8(QJsonDocument(QJsonObject{{"", secret}}).toJson(QJsonDocument::Compact));
  QStringList forms = {secret, QString::fromLatin1(QUrl::toPercentEncoding(secret)),
                       json.mid(5, json.size() - 7), QString::fromLatin1(secret.toUtf8().toBase64()),
                       QString::fromLatin1(secret.toUtf8().toBase64(QByteArray::Base64UrlEncoding))};
  forms.removeDuplicates();
  return forms;
}

}  // namespace

QString SecretVault::nameOf(const QString& secret) {
  if (secret.isEmpty()) return secret;
  const auto known = m_names.constFind(secret);
  if (known != m_names.constEnd()) return *known;
  QString name = secret;
  if (!isSecretName(secret)) {
    const QStringList taken = m_names.values();
    do {
      name = QStringLiteral("secret-%1").arg(++m_lastNumber);
    } while (taken.contains(name));
  }
  m_names.insert(secret, name);
  return name;
}

QByteArray SecretVault::nameOfBytes(const QByteArray& secret) {
  const QString text = QString::fromLatin1(secret);
  return isSecretName(text) ? nameOf(text).toLatin1()
                            : nameOf(QString::fromLatin1(secret.toBase64())).toLatin1();
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
      return holdsKnown(bytes) ? QVariant(nameOfBytes(bytes)) : value;
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
  QString open = text;
  for (auto match = word.globalMatch(text); match.hasNext();) {
    const QString found = match.next().captured();
    const auto standard = QByteArray::Base64Encoding;
    const auto forAddresses = QByteArray::Base64UrlEncoding;
    const QByteArray encoded = found.toLatin1();
    if (holdsKnown(QByteArray::fromBase64(encoded, standard)) ||
        holdsKnown(QByteArray::fromBase64(encoded, forAddresses))) {
      open.replace(found, nameOf(found));
    }
  }
  // The longest first: one secret may begin another.
  QStringList secrets = m_names.keys();
  std::ranges::sort(secrets, std::ranges::greater(), &QString::size);
  for (const QString& secret : secrets) {
    if (secret.size() < kShortestFoundAnywhere || isSecretName(secret)) continue;
    for (const QString& form : formsOf(secret)) open.replace(form, m_names.value(secret));
  }
  return open;
}

bool SecretVault::holdsKnown(const QByteArray& bytes) const {
  return std::ranges::any_of(m_names.keys(), [&](const QString& secret) {
    return secret.size() >= kShortestFoundAnywhere && !isSecretName(secret) &&
           bytes.contains(secret.toUtf8());
  });
}

QString SecretVault::addressWithoutSecrets(const QString& address) {
  QUrl url(address);
  if (!url.password().isEmpty()) url.setPassword(nameOf(url.password(QUrl::FullyDecoded)));
  if (url.hasQuery()) {
    QList<std::pair<QString, QString>> items;
    const auto given = QUrlQuery(url).queryItems(QUrl::FullyDecoded);
    for (const auto& [key, value] : given) {
      const bool isRedirect = key == "redirect_uri";
      const QString open = isSecretItem(key) ? nameOf(value)
                           : isRedirect      ? withoutLoopbackPort(value)
                                             : value;
      items.append({key, QString::fromLatin1(QUrl::toPercentEncoding(open))});
    }
    QUrlQuery query;
    query.setQueryItems(items);
    url.setQuery(query);
  }
  return withoutKnown(url.toString(QUrl::FullyEncoded));
}
