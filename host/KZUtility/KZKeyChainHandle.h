#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <memory>
#include <optional>

#include "host/KZFoundation/KZHostExport.h"
#include "host/KZUtility/KZKeychainBackend.h"

// The host's keychain. Secrets are kept in the platform's keychain. Once that is missing, locked or does not
// respond, they stay in memory until the process ends, with one warning trace, even when the keychain becomes
// available again: its items are not changed any more, and those that were read stay known. Secrets are never
// written to a file. Any thread.
class KZ_HOST_EXPORT KZKeyChainHandle : public QObject {
  Q_OBJECT

 public:
  enum class Storage { Memory, System };

  static KZKeyChainHandle& sharedInstance();

  // Memory is the default. A new choice removes the secrets in memory and tries the keychain again.
  void useStorage(Storage storage);
  void useBackend(std::shared_ptr<KZKeychainBackend> backend);  // a keychain of the host's own
  // Whether the keychain that was chosen last has failed, so that secrets are kept for this run only.
  bool hasFailed() const;

  // The saved on-premise credential; each text is null when absent. Committing two missing texts removes it.
  void getOutlookUsername(QString* username, QString* password);
  void commitOutlookUsername(const QString& username, const QString& password);
  void removeOutlookCredential();

  // The saved online account's data; nothing when absent.
  std::optional<QByteArray> getOutlookOnlineData();
  void commitOutlookOnlineData(const QByteArray& data);

  // One generic password item, as the platform's keychain has it.
  [[nodiscard]] KZKeychainBackend::Answer copyGenericPassword(const KZKeychainBackend::Item& item);
  [[nodiscard]] KZKeychainBackend::Status deleteGenericPassword(const KZKeychainBackend::Item& item);

 Q_SIGNALS:
  // Once for each keychain that fails, on the thread of the call that failed.
  void failed();
  // After an item was written or removed, in the keychain or in memory; on the thread of the call.
  void itemWritten(const QString& account);
  void itemRemoved(const QString& account);

 private:
  KZKeyChainHandle();
  ~KZKeyChainHandle() override;

  struct Private;
  std::unique_ptr<Private> d;
};
