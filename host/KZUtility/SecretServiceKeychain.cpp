#include "host/KZUtility/SecretServiceKeychain.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

#include "host/KZUtility/SecretServiceCalls.h"

class SecretServiceKeychain::Worker final {
 public:
  using Call = std::function<Answer(const secretservice::Watch&)>;

  explicit Worker(std::chrono::milliseconds deadline) : m_deadline(deadline), m_patience(deadline) {}
  ~Worker() {
    if (!m_thread.joinable()) return;
    if (stop()) {
      m_thread.join();
    } else {
      m_thread.detach();
    }
  }

  Q_DISABLE_COPY_MOVE(Worker)

  Answer ask(Call call) {
    const auto task = std::make_shared<Task>();
    task->call = std::move(call);
    std::unique_lock lock(m_queue->mutex);
    if (!m_thread.joinable()) m_thread = std::thread([queue = m_queue] { queue->run(); });
    m_queue->waiting.push_back(task);
    m_queue->wake.notify_one();
    for (int answers = -1; answers != task->answers && !task->isDone;) {
      answers = task->answers;
      m_queue->done.wait_for(lock, m_patience, [&] { return task->isDone || task->answers != answers; });
    }
    if (task->isDone) return task->answer;
    m_patience = std::min(2 * m_patience, kLongestPatience);
    std::erase(m_queue->waiting, task);
    lock.unlock();
    secretservice::cancel(task->cancellable.get());
    return {.status = Status::Silent, .secret = {}};
  }

 private:
  struct Task {
    Call call;
    secretservice::Cancellable cancellable = secretservice::newCancellable();
    Answer answer;
    int answers = 0;  // of the service, within the call
    bool isDone = false;
  };

  // Shared by the callers and the thread, so that it outlives the worker for a thread whose call never
  // returns.
  struct Queue {
    std::mutex mutex;
    std::condition_variable wake;
    std::condition_variable done;
    std::deque<std::shared_ptr<Task>> waiting;
    std::shared_ptr<Task> current;
    bool isStopping = false;
    bool isStopped = false;

    void run() {
      secretservice::OwnContext context;
      std::unique_lock lock(mutex);
      for (;;) {
        wake.wait(lock, [this] { return isStopping || !waiting.empty(); });
        if (isStopping) break;
        current = std::move(waiting.front());
        waiting.pop_front();
        lock.unlock();
        Answer answer = current->call({.cancellable = current->cancellable.get(), .answered = [this] {
                                         const std::lock_guard counting(mutex);
                                         ++current->answers;
                                         done.notify_all();
                                       }});
        context.dispatch();
        lock.lock();
        current->answer = std::move(answer);
        current->isDone = true;
        current.reset();
        done.notify_all();
      }
      isStopped = true;
      done.notify_all();
    }
  };

  bool stop() {
    std::unique_lock lock(m_queue->mutex);
    m_queue->isStopping = true;
    m_queue->wake.notify_one();
    if (const auto current = m_queue->current) {
      lock.unlock();
      secretservice::cancel(current->cancellable.get());
      lock.lock();
    }
    return m_queue->done.wait_for(lock, m_deadline, [this] { return m_queue->isStopped; });
  }

  static constexpr std::chrono::milliseconds kLongestPatience = std::chrono::seconds(16);

  const std::chrono::milliseconds m_deadline;
  std::chrono::milliseconds m_patience;  // under the queue's mutex
  const std::shared_ptr<Queue> m_queue = std::make_shared<Queue>();
  std::thread m_thread;
};

SecretServiceKeychain::SecretServiceKeychain(std::chrono::milliseconds deadline)
    : m_worker(std::make_unique<Worker>(deadline)) {}

SecretServiceKeychain::~SecretServiceKeychain() = default;

KZKeychainBackend::Answer SecretServiceKeychain::read(const Item& item) {
  return m_worker->ask(
      [item](const secretservice::Watch& watch) { return secretservice::read(item, watch); });
}

KZKeychainBackend::Status SecretServiceKeychain::write(const Item& item, const QByteArray& secret) {
  const auto call = [item, secret, refused = m_refused](const secretservice::Watch& watch) {
    const Status status = secretservice::write(item, secret, watch);
    if (status == Status::Done) refused->erase({item.service, item.account});
    return Answer{.status = status, .secret = {}};
  };
  return m_worker->ask(call).status;
}

KZKeychainBackend::Status SecretServiceKeychain::remove(const Item& item) {
  const auto call = [item, refused = m_refused](const secretservice::Watch& watch) {
    const std::pair key(item.service, item.account);
    std::optional<Status> status;
    if (!refused->contains(key)) status = secretservice::remove(item, watch);
    if (!status) refused->insert(key);
    return Answer{.status = status.value_or(Status::Locked), .secret = {}};
  };
  return m_worker->ask(call).status;
}

// On the caller's thread: the user's answer may take longer than any deadline, and other calls go on
// meanwhile.
void SecretServiceKeychain::unlock(const QList<Item>& items) {
  secretservice::unlock(items);
}
