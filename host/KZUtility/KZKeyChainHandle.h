#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <memory>
#include <optional>

#include "host/KZFoundation/KZHostExport.h"
#include "host/KZUtility/KZKeychainBackend.h"

// The host's keychain. Secrets are kept in the platform's keychain. Once that is missing, locked or silent,
// they live in memory until the run ends, with one warning trace, also when the keychain comes back: its
// items then stay as they were, and what this run has read from it is still known. Never in a file. Any
// thread.
class KZ_HOST_EXPORT KZKeyChainHandle : public QObject {
  Q_OBJECT

 public:
  enum class Storage { Memory, System };

  static KZKeyChainHandle& sharedInstance();

  // Memory until the host chooses. Choosing again forgets what was in memory, and tries the keychain again.
  void useStorage(Storage storage);
  void useBackend(std::shared_ptr<KZKeychainBackend> backend);  // another keychain than these two
  // Whether the keychain that was chosen last has failed, so that what is committed lasts for this run only.
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
