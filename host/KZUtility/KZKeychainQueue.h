#pragma once

#include <QStringList>
#include <chrono>
#include <functional>
#include <memory>

#include "host/KZUtility/KZKeychainBackend.h"

// The secrets of a run, and what a keyring has still to do for them. Memory is the truth of the run: a write
// or removal counts at once. One worker thread carries reads, writes and removals to the keyring in their
// order; of an item only the newest is carried out. What the keyring does not confirm is tried again, with
// growing pauses and at every new change. Any thread.
class KZKeychainQueue final {
 public:
  using Item = KZKeychainBackend::Item;
  using Answer = KZKeychainBackend::Answer;
  using Status = KZKeychainBackend::Status;
  using Unlocking = KZKeychainBackend::Unlocking;

  struct Pace {
    std::chrono::milliseconds deadline = std::chrono::seconds(1);  // the longest wait of a caller
    std::chrono::milliseconds firstPause = std::chrono::seconds(1);
    std::chrono::milliseconds longestPause = std::chrono::minutes(1);
    std::chrono::milliseconds lastChance = std::chrono::seconds(2);  // of `finish`
  };
  // Called without a lock, on the worker's thread or that of a call, while the queue exists; it must not
  // destroy the queue.
  struct Listener {
    std::function<void(const QString& account)> written;  // confirmed by the keyring
    std::function<void(const QString& account)> removed;  // confirmed by the keyring
    std::function<void()> hindranceChanged;
  };

  // Without a backend everything stays in memory and is confirmed at once.
  KZKeychainQueue(std::shared_ptr<KZKeychainBackend> backend, Unlocking unlocking, Listener listener,
                  Pace pace);
  // Does not wait for the keyring; the worker ends after its current call.
  ~KZKeychainQueue();
  Q_DISABLE_COPY_MOVE(KZKeychainQueue)

  // Asks the keyring ahead for items that will be read. The user is asked once for all that are locked.
  void prefetch(const QList<Item>& items);

  // These two wait for the keyring's first answer, at most one deadline, and not at all while it is silent. A
  // status that is neither done nor not found says why the queue goes on trying.
  [[nodiscard]] Answer read(const Item& item);
  [[nodiscard]] Status remove(const Item& item);

  void write(const Item& item, const QByteArray& secret);

  // Waits as the two above for what was written and removed.
  void settle();

  // Tries what waits once more, within the last chance, and drops what is not confirmed then: returns the
  // accounts of the changes that are lost.
  [[nodiscard]] QStringList finish();

  // Why something waits; Done when the keyring keeps up.
  Status hindrance() const;

 private:
  struct State;
  // The worker's too, so that it outlives the queue for a call that does not return.
  const std::shared_ptr<State> m_state;
};
