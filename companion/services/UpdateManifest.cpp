#include "companion/services/UpdateManifest.h"

#include <QCryptographicHash>
#include <QRegularExpression>

#include "companion/network/WebAddress.h"
#include "host/KZFoundation/Dictionary.h"
#include "host/KZUtility/KZUtility.h"

std::optional<UpdateManifest> readUpdateManifest(const QUrl& address, const QByteArray& json) {
  const QVariant value = KZUtility::JSONValueFromString(QString::fromUtf8(json));
  if (value.metaType() != QMetaType::fromType<Dictionary>()) return {};
  const Dictionary said = value.toMap();
  const auto version = readVersion(textValue(said, QStringLiteral("version")));
  if (!version) return {};
  const QUrl package(textValue(said, QStringLiteral("package")), QUrl::StrictMode);
  UpdateManifest manifest{.version = *version,
                          .package = address.resolved(package),
                          .bytes = said.value(QStringLiteral("bytes")).toLongLong(),
                          .sha256 = QByteArray::fromHex(textValue(said, QStringLiteral("sha256")).toLatin1()),
                          .notes = textValue(said, QStringLiteral("notes")).simplified().left(500)};
  const bool isCheckable =
      manifest.bytes > 0 && manifest.bytes <= largestPackage &&
      manifest.sha256.size() == QCryptographicHash::hashLength(QCryptographicHash::Sha256);
  const bool isWhole = isCheckable && !package.isEmpty() && isSafeStep(address, manifest.package);
  return isWhole ? std::optional(manifest) : std::nullopt;
}

std::optional<QVersionNumber> readVersion(const QString& text) {
  static const QRegularExpression dotted(QStringLiteral("\\A[0-9]{1,8}(\\.[0-9]{1,8}){0,5}\\z"));
  if (!dotted.match(text).hasMatch()) return {};
  return QVersionNumber::fromString(text);
}
