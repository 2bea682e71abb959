#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <memory>
#include <optional>

#include "host/KZFoundation/KZHostExport.h"
#include "host/KZUtility/KZKeychainBackend.h"

// The host's keychain. Memory is the truth of a run: what was written or removed counts at once, and is
// carried to the platform's keyring in the background, in order, until the keyring confirms it. A keyring
// that is missing, locked or silent is tried again while the run lasts; nobody waits for it longer than a
// second, once. Secrets are never written to a file. Any thread.
class KZ_HOST_EXPORT KZKeyChainHandle : public QObject {
  Q_OBJECT

 public:
  using Status = KZKeychainBackend::Status;
  using Unlocking = KZKeychainBackend::Unlocking;

  enum class Storage { Memory, System };
  // Why secrets are not kept in the keyring at present.
  enum class Hindrance { None, Locked, NoKeyring, Silent };

  static KZKeyChainHandle& sharedInstance();

  // Memory is the default. A new choice ends the old one as `finish` does and forgets its secrets. On the
  // main thread, after the application object is created.
  void useStorage(Storage storage, Unlocking unlocking = Unlocking::Never);
  // A keyring of the host's own.
  void useBackend(std::shared_ptr<KZKeychainBackend> backend, Unlocking unlocking = Unlocking::Never);

  Hindrance hindrance() const;

  // The saved on-premise credential; each text is null when absent. Committing two missing texts removes it.
  void getOutlookUsername(QString* username, QString* password);
  void commitOutlookUsername(const QString& username, const QString& password);
  Status removeOutlookCredential();

  // The saved online account's data; nothing when absent.
  std::optional<QByteArray> getOutlookOnlineData();
  void commitOutlookOnlineData(const QByteArray& data);

  // One generic password item, as the platform's keychain has it.
  [[nodiscard]] KZKeychainBackend::Answer copyGenericPassword(const KZKeychainBackend::Item& item);
  [[nodiscard]] Status deleteGenericPassword(const KZKeychainBackend::Item& item);
  // Both removals are Done or NotFound only when the keyring has confirmed it. Otherwise the status says why
  // not: the item is gone for this run, and the removal is carried out when the keyring answers.

  // Waits until the keyring has confirmed all changes, at most a second, and not at all while it is silent.
  // Main thread.
  void settle();

  // The end of a run: what still waits has two seconds, and each item that is lost gets an error trace.
  // Called when the event loop ends; a host without one calls it before its trace sink goes. Main thread.
  void finish();

 Q_SIGNALS:
  // From the event loop of the main thread.
  void hindranceChanged();
  // After the keyring, or memory where there is none, has confirmed it.
  void itemWritten(const QString& account);
  void itemRemoved(const QString& account);

 private:
  KZKeyChainHandle();
  ~KZKeyChainHandle() override;

  void tellHindrance();

  struct Private;
  std::unique_ptr<Private> d;
};
