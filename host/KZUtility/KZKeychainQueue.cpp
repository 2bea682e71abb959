#include "host/KZUtility/KZKeychainQueue.h"

#include <algorithm>
#include <condition_variable>
#include <map>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

struct KZKeychainQueue::State : std::enable_shared_from_this<State> {
  using Key = std::pair<QString, QString>;
  using Lock = std::unique_lock<std::mutex>;

  enum class Wish { None, Read, Write, Remove };

  struct Entry {
    std::optional<Answer> known;  // done or not found
    Wish wish = Wish::None;
    int number = 0;              // of the wish, so that an answer to an earlier one is told apart
    std::optional<Status> said;  // the keyring's last answer to the wish
  };

  std::shared_ptr<KZKeychainBackend> backend;
  Unlocking unlocking;
  Listener listener;
  Pace pace;

  std::mutex mutex;
  std::condition_variable changed;
  std::map<Key, Entry> entries;  // never erased: the worker holds references
  std::vector<Key> waiting;      // what has a wish, in order
  Status hindrance = Status::Done;
  bool isStarted = false;
  bool isDue = false;  // something new: the pause ends
  bool isCarrying = false;
  int rounds = 0;  // ended
  bool hasAsked = false;
  int tellers = 0;
  bool isStopping = false;

  State(std::shared_ptr<KZKeychainBackend> used, Unlocking how, Listener told, Pace times)
      : backend(std::move(used)), unlocking(how), listener(std::move(told)), pace(times) {}

  static Key keyOf(const Item& item) { return {item.service, item.account}; }
  static Item itemOf(const Key& key) { return {key.first, key.second}; }
  static bool isConfirmed(Status status) { return status == Status::Done || status == Status::NotFound; }

  void add(const Key& key, Wish wish) {
    Entry& entry = entries[key];
    entry.wish = wish;
    entry.said.reset();
    ++entry.number;
    std::erase(waiting, key);
    waiting.push_back(key);
    wake();
  }

  void wake() {
    isDue = true;
    changed.notify_all();
    if (std::exchange(isStarted, true)) return;
    std::thread([self = shared_from_this()] { self->run(); }).detach();
  }

  void end(const Key& key) {
    Entry& entry = entries[key];
    entry.wish = Wish::None;
    std::erase(waiting, key);
  }

  Entry& known(const Key& key) {
    Entry& entry = entries[key];
    if (entry.known || entry.wish != Wish::None) return entry;
    if (backend) {
      add(key, Wish::Read);
    } else {
      entry.known = Answer{.status = Status::NotFound, .secret = {}};
    }
    return entry;
  }

  void setHindrance(Lock& lock, Status status) {
    if (std::exchange(hindrance, status) == status) return;
    changed.notify_all();
    tell(lock, listener.hindranceChanged);
  }

  // Without the lock, and not after the queue is gone.
  void tell(Lock& lock, const auto& what, const auto&... account) {
    if (isStopping) return;
    ++tellers;
    lock.unlock();
    what(account...);
    lock.lock();
    --tellers;
    changed.notify_all();
  }

  template <typename Predicate>
  void await(Lock& lock, const Predicate& isAnswered) {
    const auto isOver = [&] { return isAnswered() || hindrance == Status::Silent; };
    if (!changed.wait_for(lock, pace.deadline, isOver)) setHindrance(lock, Status::Silent);
  }

  Answer carryOut(const Item& item, Wish wish, const QByteArray& secret) {
    if (wish == Wish::Read) return backend->read(item);
    return {.status = wish == Wish::Write ? backend->write(item, secret) : backend->remove(item),
            .secret = {}};
  }

  void tellChange(Lock& lock, const QString& account, Wish wish, Status status,
                  std::optional<Status> before) {
    if (wish == Wish::Write && status == Status::Done) return tell(lock, listener.written, account);
    // A keyring that was silent may have removed it all the same.
    const bool isLate = status == Status::NotFound && before == Status::Silent;
    if (wish == Wish::Remove && (status == Status::Done || isLate)) tell(lock, listener.removed, account);
  }

  // One try for everything that waits. Returns why something is left.
  Status carryAll(Lock& lock) {
    Status left = Status::Done;
    QList<Item> locked;
    const std::vector<Key> keys = waiting;
    for (const Key& key : keys) {
      Entry& entry = entries[key];
      if (entry.wish == Wish::None) continue;
      const Wish wish = entry.wish;
      const int number = entry.number;
      const QByteArray secret = wish == Wish::Write ? entry.known->secret : QByteArray();
      const std::optional<Status> before = entry.said;
      lock.unlock();
      const Answer answer = carryOut(itemOf(key), wish, secret);
      lock.lock();
      tellChange(lock, key.second, wish, answer.status, before);
      if (isStopping) return left;
      if (!isConfirmed(answer.status)) setHindrance(lock, left = answer.status);
      if (entry.number == number) {
        entry.said = answer.status;
        if (isConfirmed(answer.status)) {
          if (wish == Wish::Read) entry.known = answer;
          end(key);
        }
        changed.notify_all();
      }
      if (answer.status == Status::Locked) locked.append(itemOf(key));
      // Each of the others would take as long.
      if (answer.status == Status::Silent) break;
    }
    if (!locked.isEmpty()) askFor(locked);
    return left;
  }

  void askFor(const QList<Item>& locked) {
    if (unlocking == Unlocking::Never || std::exchange(hasAsked, true)) return;
    // The user may take any time.
    std::thread([self = shared_from_this(), locked] {
      self->backend->unlock(locked);
      const Lock lock(self->mutex);
      self->wake();
    }).detach();
  }

  void run() {
    Lock lock(mutex);
    auto pause = pace.firstPause;
    for (;;) {
      changed.wait(lock, [this] { return isStopping || !waiting.empty(); });
      if (isStopping) return;
      isDue = false;
      isCarrying = true;
      const Status left = carryAll(lock);
      isCarrying = false;
      ++rounds;
      changed.notify_all();
      if (isStopping) return;
      setHindrance(lock, left);
      if (left == Status::Done) {
        pause = pace.firstPause;
      } else if (!changed.wait_for(lock, pause, [this] { return isStopping || isDue; })) {
        pause = std::min(2 * pause, pace.longestPause);
      }
    }
  }

  std::vector<Key> waitingChanges() {
    std::vector<Key> changes = waiting;
    std::erase_if(changes, [this](const Key& key) { return entries[key].wish == Wish::Read; });
    return changes;
  }
};

KZKeychainQueue::KZKeychainQueue(std::shared_ptr<KZKeychainBackend> backend, Unlocking unlocking,
                                 Listener listener, Pace pace)
    : m_state(std::make_shared<State>(std::move(backend), unlocking, std::move(listener), pace)) {}

KZKeychainQueue::~KZKeychainQueue() {
  State::Lock lock(m_state->mutex);
  m_state->isStopping = true;
  m_state->changed.notify_all();
  m_state->changed.wait(lock, [this] { return m_state->tellers == 0; });
}

void KZKeychainQueue::prefetch(const QList<Item>& items) {
  const State::Lock lock(m_state->mutex);
  for (const Item& item : items) m_state->known(State::keyOf(item));
}

KZKeychainBackend::Answer KZKeychainQueue::read(const Item& item) {
  State::Lock lock(m_state->mutex);
  const State::Entry& entry = m_state->known(State::keyOf(item));
  if (!entry.known) m_state->await(lock, [&entry] { return entry.known || entry.said; });
  if (entry.known) return *entry.known;
  return {.status = entry.said.value_or(Status::Silent), .secret = {}};
}

void KZKeychainQueue::write(const Item& item, const QByteArray& secret) {
  {
    const State::Lock lock(m_state->mutex);
    m_state->entries[State::keyOf(item)].known = Answer{.status = Status::Done, .secret = secret};
    if (m_state->backend) return m_state->add(State::keyOf(item), State::Wish::Write);
  }
  m_state->listener.written(item.account);
}

KZKeychainBackend::Status KZKeychainQueue::remove(const Item& item) {
  Status status = Status::NotFound;
  {
    State::Lock lock(m_state->mutex);
    State::Entry& entry = m_state->entries[State::keyOf(item)];
    if (entry.known) status = entry.known->status;
    entry.known = Answer{.status = Status::NotFound, .secret = {}};
    if (m_state->backend) {
      m_state->add(State::keyOf(item), State::Wish::Remove);
      const int number = entry.number;
      const auto isReplaced = [&entry, number] { return entry.number != number; };
      m_state->await(lock, [&] { return entry.said || isReplaced(); });
      return isReplaced() ? Status::Silent : entry.said.value_or(Status::Silent);
    }
  }
  if (status == Status::Done) m_state->listener.removed(item.account);
  return status;
}

void KZKeychainQueue::settle() {
  State::Lock lock(m_state->mutex);
  m_state->await(lock, [this] {
    return std::ranges::all_of(m_state->waitingChanges(), [this](const State::Key& key) {
      return m_state->entries[key].said.has_value();
    });
  });
}

QStringList KZKeychainQueue::finish() {
  State::Lock lock(m_state->mutex);
  if (!m_state->waitingChanges().empty()) {
    m_state->wake();
    const int last = m_state->rounds + (m_state->isCarrying ? 2 : 1);
    m_state->changed.wait_for(lock, m_state->pace.lastChance, [this, last] {
      return m_state->rounds >= last || m_state->waitingChanges().empty();
    });
  }
  QStringList lost;
  for (const State::Key& key : m_state->waitingChanges()) lost.append(key.second);
  for (const State::Key& key : std::vector(m_state->waiting)) {
    ++m_state->entries[key].number;
    m_state->end(key);
  }
  return lost;
}

KZKeychainBackend::Status KZKeychainQueue::hindrance() const {
  const State::Lock lock(m_state->mutex);
  return m_state->hindrance;
}
