#include "adal/ADParameters.h"

#include <QUrl>

namespace {

QString decodedParameter(QByteArray text) {
  text.replace('+', ' ');
  return QUrl::fromPercentEncoding(text);
}

}  // namespace

// QUrlQuery leaves a "+" as it is, which every server reads as a blank.
QByteArray encodedParameters(const ADParameters& parameters) {
  QByteArray encoded;
  for (const auto& [name, value] : parameters) {
    if (!encoded.isEmpty()) encoded += '&';
    encoded += QUrl::toPercentEncoding(name) + '=' + QUrl::toPercentEncoding(value);
  }
  return encoded;
}

ADParameters decodedParameters(QByteArrayView encoded) {
  ADParameters parameters;
  for (const QByteArray& pair : encoded.toByteArray().split('&')) {
    if (pair.isEmpty()) continue;
    const qsizetype sign = pair.indexOf('=');
    const QByteArray value = sign < 0 ? QByteArray() : pair.sliced(sign + 1);
    parameters.append({decodedParameter(sign < 0 ? pair : pair.first(sign)), decodedParameter(value)});
  }
  return parameters;
}

std::optional<QString> onlyValue(const ADParameters& parameters, const QString& name) {
  std::optional<QString> found;
  for (const auto& [key, value] : parameters) {
    if (key != name) continue;
    if (found) return {};
    found = value;
  }
  return found;
}
