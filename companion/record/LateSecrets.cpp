#include "companion/record/LateSecrets.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include "companion/record/SecretVault.h"

namespace {

// The members of a line whose values come from the user, the host or the plug-in.
bool isLateValue(const QString& member) {
  static const QStringList values = {
      QStringLiteral("content"),  QStringLiteral("items"),    QStringLiteral("joinByNumberLink"),
      QStringLiteral("opened"),   QStringLiteral("text"),     QStringLiteral("personalRoom"),
      QStringLiteral("userInfo"), QStringLiteral("username"), QStringLiteral("values"),
      QStringLiteral("warning")};
  return values.contains(member);
}

// Unlike a step's value for the plug-in, with what is missing.
QVariant lateValueOf(const QJsonValue& value, valuecodec::Form form) {
  if (value.isArray()) {
    QVariantList list;
    for (const QJsonValue& element : value.toArray()) list.append(lateValueOf(element, form));
    return list;
  }
  if (value.isObject() && !value.toObject().contains(QLatin1String("$data"))) {
    Dictionary dictionary;
    const QJsonObject object = value.toObject();
    for (auto entry = object.begin(); entry != object.end(); ++entry)
      dictionary.insert(entry.key(), lateValueOf(entry.value(), form));
    return dictionary;
  }
  const bool isPrinted = value.isString() && form == valuecodec::Form::Printed;
  return isPrinted ? QVariant(value.toString()) : valuecodec::decode(value).value;
}

}  // namespace

QByteArray withoutLateSecrets(const QByteArray& json, valuecodec::Form form, SecretVault* vault) {
  const QJsonObject before = QJsonDocument::fromJson(json).object();
  QJsonObject after = before;
  for (auto member = before.begin(); member != before.end(); ++member) {
    if (!isLateValue(member.key())) continue;
    const QVariant value = lateValueOf(member.value(), form);
    after.insert(member.key(), valuecodec::encode(vault->withoutKnown(value), form));
  }
  return after == before ? json : QJsonDocument(after).toJson(QJsonDocument::Compact);
}
