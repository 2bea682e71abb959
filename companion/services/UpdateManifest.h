#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <QVersionNumber>
#include <optional>

// What an update service offers.
struct UpdateManifest {
  QVersionNumber version;
  QUrl package;
  qint64 bytes = 0;
  QByteArray sha256 = {};  // 32 bytes
  QString notes = {};
};

inline constexpr qint64 largestPackage = 1024LL * 1024 * 1024;

// Nothing where the text is no manifest, or offers a package that could not be checked. `address` is where it
// was read.
std::optional<UpdateManifest> readUpdateManifest(const QUrl& address, const QByteArray& json);

// Dotted numbers alone; nothing for any other text.
std::optional<QVersionNumber> readVersion(const QString& text);
