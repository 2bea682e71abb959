#pragma once

#include <QString>
#include <QtPlugin>

// A status of the keychain as an error.
struct OSStatusError {
  QString domain;
  qint32 code = 0;
};

// The stored form of the plug-in's token cache, which its root object offers beside KZPluginFactory. It is
// one blob, which holds refresh tokens: keep files of it as a secret is kept. The plug-in reads the keychain
// anew before each use of the cache, so a blob from a file is in use once it is in the keychain:
//
//     save:     storage->readFromKeychain(), then storage->writeToFile(path)
//     restore:  storage->readFromFile(path), then storage->writeToKeychain()
//
// Main thread only; make both calls in one go. A status is 0 for done, -25300 for no such item, -25308 for a
// locked keychain, and -25291 for one that is missing or does not answer.
class KZTokenCacheStorage {
 public:
  KZTokenCacheStorage() = default;
  virtual ~KZTokenCacheStorage() = default;
  Q_DISABLE_COPY_MOVE(KZTokenCacheStorage)

  // A path for the file, in the user's home folder. The plug-in itself uses no file.
  virtual QString defaultSavePath() const = 0;

  // Takes the blob from the file, as it is. A damaged one is not used, with an error trace: the cache keeps
  // what it has, and the next run starts without tokens. False, and no blob, when the file cannot be read.
  [[nodiscard]] virtual bool readFromFile(const QString& path) = 0;

  // Replaces the file, for its owner only. False, with a message in the system log and the old file
  // unchanged, when there is no blob or the file cannot be written.
  [[nodiscard]] virtual bool writeToFile(const QString& path) = 0;

  // Takes the blob from the keychain; afterwards there is none when the status is not 0.
  [[nodiscard]] virtual qint32 readFromKeychain() = 0;

  // Without a blob, -25300, and the keychain is left as it is. Otherwise 0: the blob counts at once, and is
  // carried to the keyring in the background.
  [[nodiscard]] virtual qint32 writeToKeychain() = 0;

  // Removes every token, from the keychain too: true when the keychain has confirmed that it has none. False
  // with the status in `error`, unless that is null: the tokens are gone for this run, and the keychain's are
  // removed when it answers.
  [[nodiscard]] virtual bool clearCacheWithError(OSStatusError* error) = 0;
};

Q_DECLARE_INTERFACE(KZTokenCacheStorage, "example.brenn-mivra.KZTokenCacheStorage/1")
