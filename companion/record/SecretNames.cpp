#include "companion/record/SecretNames.h"

#include <QRegularExpression>
#include <algorithm>
#include <cstring>
#include <functional>

#include "host/KZFoundation/KZConstantRegistry.h"
#include "host/KZUtility/KZTrace.h"

namespace {

// Shorter secrets would be found in texts that have nothing to do with them.
constexpr qsizetype kShortestInTexts = sizeof(quint64) / sizeof(QChar);
const QString kDataKey = QStringLiteral("$data");

bool isName(const QString& text) {
  static const QRegularExpression pattern(QStringLiteral("^secret-[1-9][0-9]{0,5}$"));
  return pattern.match(text).hasMatch();
}

bool isConstant(const QString& text) {
  return !constantNamed(text.startsWith(u'@') ? text.mid(1) : text).isNull();
}

// The first characters of a text that has so many.
quint64 beginningOf(QStringView text) {
  quint64 beginning = 0;
  std::memcpy(&beginning, text.data(), sizeof beginning);
  return beginning;
}

bool isData(const QVariant& value) {
  return value.typeId() == QMetaType::QVariantMap && value.toMap().keys() == QStringList{kDataKey};
}

// The value with everything replaced that is no dictionary and no list.
QVariant withLeaves(const QVariant& value, const std::function<QVariant(const QVariant&)>& replacement) {
  if (value.typeId() == QMetaType::QVariantMap && !isData(value)) {
    Dictionary replaced = value.toMap();
    for (QVariant& inner : replaced) inner = withLeaves(inner, replacement);
    return replaced;
  }
  if (value.typeId() != QMetaType::QVariantList && value.typeId() != QMetaType::QStringList)
    return replacement(value);
  QVariantList replaced = value.toList();
  for (QVariant& inner : replaced) inner = withLeaves(inner, replacement);
  return replaced;
}

}  // namespace

QString SecretNames::nameOf(const QString& secret) {
  if (secret.isEmpty()) return secret;
  const auto known = m_names.constFind(secret);
  if (known != m_names.constEnd()) return *known;
  QString name = secret;
  if (!isName(secret)) {
    do {
      name = QStringLiteral("secret-%1").arg(++m_lastNumber);
    } while (m_names.contains(name));
  }
  m_names.insert(secret, name);
  // A part of a name would be replaced in names.
  if (secret.size() < kShortestInTexts || name.contains(secret)) return name;
  QList<qsizetype>& lengths = m_lengths[beginningOf(secret)];
  if (!lengths.contains(secret.size())) lengths.append(secret.size());
  std::ranges::sort(lengths, std::greater());
  return name;
}

QJsonValue SecretNames::withoutSecrets(const QString& member, const QJsonValue& value) {
  const auto named = [this](const QVariant& secret) {
    return withLeaves(secret, [this](const QVariant& leaf) { return this->named(leaf); });
  };
  const auto withoutKnown = [this](const QVariant& leaf) {
    return leaf.typeId() == QMetaType::QString ? this->withoutKnown(leaf.toString()) : leaf;
  };
  const QVariant open = kzReplaceSecrets({{member, value.toVariant()}}, named).value(member);
  const bool isContent = value.isObject() || value.isArray() || member == QLatin1String("opened");
  return QJsonValue::fromVariant(isContent ? withLeaves(open, withoutKnown) : open);
}

QVariant SecretNames::named(const QVariant& secret) {
  if (isMissing(secret) || secret.typeId() == QMetaType::Bool) return secret;
  if (isData(secret)) return namedData(secret.toMap().value(kDataKey).toString());
  const QString text = secret.toString();
  if (isConstant(text)) return secret;
  // A credential is a user name, a colon and a password: the user name stays where the password is known.
  const qsizetype passwordAt = text.indexOf(u':') + 1;
  const auto password = passwordAt > 0 ? m_names.constFind(text.mid(passwordAt)) : m_names.constEnd();
  return password == m_names.constEnd() ? nameOf(text) : text.left(passwordAt) + *password;
}

// Bytes that are a text are the same secret as the text.
QVariant SecretNames::namedData(const QString& base64) {
  const QString bytes = QString::fromLatin1(QByteArray::fromBase64(base64.toLatin1()));
  return Dictionary{{kDataKey, QString::fromLatin1(nameOf(bytes).toLatin1().toBase64())}};
}

QString SecretNames::withoutKnown(const QString& text) const {
  QString open;
  qsizetype end = 0;
  for (qsizetype at = 0; at + kShortestInTexts <= text.size(); ++at) {
    const auto lengths = m_lengths.constFind(beginningOf(QStringView(text).mid(at)));
    if (at < end || lengths == m_lengths.constEnd()) continue;
    for (const qsizetype length : *lengths) {
      const auto known = m_names.constFind(text.mid(at, length));
      if (known == m_names.constEnd()) continue;
      open += text.mid(end, at - end) + *known;
      end = at + known.key().size();
      break;
    }
  }
  return open + text.mid(end);
}
