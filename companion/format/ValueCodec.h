#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QString>
#include <QVariant>

#include "host/KZFoundation/Dictionary.h"

// Values between a script and the host. A text that begins with "@" is the host's constant object of that
// name, bytes are {"$data": base64}, null is a missing value.
namespace valuecodec {

struct [[nodiscard]] Decoded {
  QVariant value;
  QString error;  // empty when all is well
};

Decoded decode(const QJsonValue& value);

// Encodes a value as in printed results, or exactly, so that `decode` restores it with the identity of
// constants.
enum class Form { Printed, Exact };

QJsonValue encode(const QVariant& value, Form form = Form::Printed);
QJsonValue encodeContent(const Content& content, Form form = Form::Printed);  // null where there is none

QByteArray compactText(const QJsonValue& value);  // as JSON

}  // namespace valuecodec
