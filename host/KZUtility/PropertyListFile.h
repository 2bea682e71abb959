#pragma once

#include <sys/stat.h>

#include <QHash>
#include <QString>
#include <QVariant>
#include <optional>

#include "host/KZFoundation/Dictionary.h"
#include "host/KZUtility/AtomicFile.h"
#include "host/KZUtility/KZSaveProblem.h"
#include "host/KZUtility/PropertyListConversion.h"

// One XML property list on the disk, as KZPlistFileHandle promises it. What another process wrote meanwhile
// is kept, but for the keys that are set here.
class PropertyListFile final {
 public:
  explicit PropertyListFile(const QString& folder);

  QString path() const;
  // As the last reading or writing left it.
  KZSaveProblem problem() const { return m_problem; }
  // Where the last file that could not be used lies now; null when there was none.
  QString setAsidePath() const { return m_setAsidePath; }

  // Makes the folder when missing and locks it while this object lives. False when another process has it:
  // then nothing may be read or written.
  [[nodiscard]] bool lock();
  // Once, before anything is set.
  Dictionary read();

  // An invalid value removes the key. Nothing is written before `flush`.
  void set(const QString& key, const QVariant& value);
  // Writes what is not yet on the disk, that of an earlier, failed attempt too.
  void flush();

 private:
  struct Stamp {
    dev_t device;
    ino_t inode;
    off_t size;
    timespec modified;

    bool operator==(const Stamp& other) const;
  };

  void makeFolder() const;
  std::optional<Stamp> stamp() const;
  // Takes over what is on the disk; sets it aside when it cannot be used.
  void load();
  QString loadFrom(int descriptor);
  void reject(const QString& reason, uid_t owner);
  [[nodiscard]] bool setAside();
  void applyPending();
  void fail(KZSaveProblem problem, const QString& reason);

  QString m_folder;
  Descriptor m_lock;
  QString m_setAsidePath;
  KZSaveProblem m_problem = KZSaveProblem::None;
  // The whole document, so that what nobody here knows is written back as it was.
  PropertyList m_document;
  QHash<QString, QVariant> m_pending;
  std::optional<Stamp> m_seen;
};
