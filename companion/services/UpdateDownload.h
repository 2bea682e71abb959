#pragma once

#include <QObject>
#include <QTimer>
#include <memory>

#include "companion/network/WebFetch.h"
#include "companion/services/UpdatePackageFile.h"

// Fetches one package. Destroying it leaves nothing behind.
class UpdateDownload final : public QObject {
  Q_OBJECT

 public:
  UpdateDownload(std::unique_ptr<WebFetch> fetch, const QString& folder, const UpdateManifest& manifest);

  void start();
  void stop();  // unanswered

 Q_SIGNALS:
  void progressed(qint64 bytes, qint64 ofBytes);
  void finished(const QString& path);
  void failed(const QString& reason);  // a sentence for the user

 private:
  bool take(const QByteArray& piece);
  void end(const WebAnswer& answer);

  const UpdateManifest m_manifest;
  UpdatePackageFile m_file;
  QTimer m_patience;
  std::unique_ptr<WebFetch> m_fetch;
};
