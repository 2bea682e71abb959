// The library requires these to use its service interface, which has been stable since 2012.
#define SECRET_WITH_UNSTABLE
#define SECRET_API_SUBJECT_TO_CHANGE
#include "host/KZUtility/SecretServiceCalls.h"

#include <libsecret/secret.h>

#include <functional>
#include <vector>

namespace secretservice {

namespace {

using Item = KZKeychainBackend::Item;
using Answer = KZKeychainBackend::Answer;
using Status = KZKeychainBackend::Status;

template <auto Free>
struct FreeWith {
  template <typename T>
  void operator()(T* object) const {
    Free(object);
  }
};
template <typename T>
using Object = std::unique_ptr<T, FreeWith<g_object_unref>>;
using Variant = std::unique_ptr<GVariant, FreeWith<g_variant_unref>>;
using Attributes = std::unique_ptr<GHashTable, FreeWith<g_hash_table_unref>>;
using Value = std::unique_ptr<SecretValue, FreeWith<secret_value_unref>>;
using ErrorText = std::unique_ptr<GError, FreeWith<g_error_free>>;

using Text = std::unique_ptr<gchar, FreeWith<g_free>>;
using Paths = std::unique_ptr<gchar*, FreeWith<g_strfreev>>;

const SecretSchema& schema() {
  static const SecretSchema generic = [] {
    SecretSchema made = {};
    made.name = "org.freedesktop.Secret.Generic";
    made.attributes[0] = {"service", SECRET_SCHEMA_ATTRIBUTE_STRING};
    made.attributes[1] = {"account", SECRET_SCHEMA_ATTRIBUTE_STRING};
    return made;
  }();
  return generic;
}

Attributes attributesOf(const Item& item) {
  return Attributes(secret_attributes_build(&schema(), "service", item.service.toUtf8().constData(),
                                            "account", item.account.toUtf8().constData(), nullptr));
}

// What a failed call says about the keyring.
Status statusOf(const GError* error) {
  if (g_error_matches(error, SECRET_ERROR, SECRET_ERROR_IS_LOCKED)) return Status::Locked;
  const bool isLate = g_error_matches(error, G_IO_ERROR, G_IO_ERROR_CANCELLED) ||
                      g_error_matches(error, G_IO_ERROR, G_IO_ERROR_TIMED_OUT);
  return isLate ? Status::Silent : Status::NoKeyring;
}

// For the library's own handler, which crashes when a collection appears before the service has told its
// properties. Nothing here needs the signals.
void stopSignal(GDBusProxy* service, const gchar*, const gchar*, GVariant*, gpointer) {
  g_signal_stop_emission_by_name(service, "g-signal");
}

void ignoreSignals(SecretService* service) {
  const auto handler = G_CALLBACK(stopSignal);
  if (g_signal_handler_find(service, G_SIGNAL_MATCH_FUNC, 0, 0, nullptr, reinterpret_cast<gpointer>(handler),
                            nullptr) == 0) {
    g_signal_connect(service, "g-signal", handler, nullptr);
  }
}

// One try against a connected service; a failure leaves `error` set when a new connection may help.
class Attempt final {
 public:
  explicit Attempt(const Watch& watch) : m_cancellable(watch.cancellable), m_answered(watch.answered) {}
  ~Attempt() { g_clear_error(&m_error); }
  Q_DISABLE_COPY_MOVE(Attempt)

  bool isFailed() const { return m_error != nullptr; }
  Status failure() const { return statusOf(m_error); }

  bool connect() {
    m_service.reset(secret_service_get_sync(SECRET_SERVICE_NONE, m_cancellable, &m_error));
    if (!m_service) return false;
    // By default the process exits when the bus closes the connection.
    g_dbus_connection_set_exit_on_close(bus(), FALSE);
    ignoreSignals(m_service.get());
    m_answered();
    const bool isOpen = secret_service_ensure_session_sync(m_service.get(), m_cancellable, &m_error);
    m_answered();
    return isOpen;
  }

  Answer read(const Item& item) {
    const Status found = find(item);
    if (found != Status::Done) return {.status = found, .secret = {}};
    const Value value(secret_service_get_secret_for_dbus_path_sync(m_service.get(), *m_unlocked.get(),
                                                                   m_cancellable, &m_error));
    // Removed meanwhile, when there is no error.
    if (!value) return {.status = isFailed() ? failure() : Status::NotFound, .secret = {}};
    gsize size = 0;
    const gchar* bytes = secret_value_get(value.get(), &size);
    return {.status = Status::Done, .secret = QByteArray(bytes ? bytes : "", static_cast<qsizetype>(size))};
  }

  Status write(const Item& item, const QByteArray& secret) {
    if (const Status status = defaultCollection(); status != Status::Done) return status;
    const Status found = search(item);
    if (found != Status::Done && found != Status::NotFound) return found;
    const Value value(secret_value_new(secret.constData(), secret.size(), "application/octet-stream"));
    const Attributes attributes = attributesOf(item);
    const bool isStored =
        secret_service_store_sync(m_service.get(), &schema(), attributes.get(), SECRET_COLLECTION_DEFAULT,
                                  item.service.toUtf8().constData(), value.get(), m_cancellable, &m_error);
    return isStored ? Status::Done : failure();
  }

  std::optional<Status> remove(const Item& item) {
    const Status found = find(item);
    if (found != Status::Done) return found;
    // Not cancelled: that would dismiss the question that a service may ask its user here.
    m_cancellable = nullptr;
    for (gchar** path = m_unlocked.get(); *path; ++path) {
      if (!secret_service_delete_item_dbus_path_sync(m_service.get(), *path, m_cancellable, &m_error))
        return isFailed() ? std::optional(failure()) : std::nullopt;
      m_answered();
    }
    // The library does not tell a removal from one that the user has refused.
    const Status left = find(item);
    if (left == Status::Done) return std::nullopt;
    return left == Status::NotFound ? Status::Done : left;
  }

  // What must be unlocked for the item.
  QByteArray lockedPath(const Item& item) {
    if (find(item) != Status::Locked) return {};
    return m_locked && *m_locked ? *m_locked : m_collection.get();
  }

  void unlock(const QList<QByteArray>& paths) {
    std::vector<const gchar*> list(paths.begin(), paths.end());
    list.push_back(nullptr);
    secret_service_unlock_dbus_paths_sync(m_service.get(), list.data(), m_cancellable, nullptr, &m_error);
  }

 private:
  GDBusConnection* bus() const { return g_dbus_proxy_get_connection(G_DBUS_PROXY(m_service.get())); }

  // Never prompts. A keyring may ask its user to unlock it before it searches: a locked one is not searched.
  // When nothing is found, the collection decides whether that means anything.
  Status find(const Item& item) {
    m_locked.reset();
    const Status collection = defaultCollection();
    if (isFailed() || collection == Status::Locked) return collection;
    const Status found = search(item);
    return found == Status::NotFound && collection != Status::Done ? collection : found;
  }

  Status search(const Item& item) {
    const Attributes attributes = attributesOf(item);
    gchar** unlocked = nullptr;
    gchar** locked = nullptr;
    const bool isSearched = secret_service_search_for_dbus_paths_sync(
        m_service.get(), &schema(), attributes.get(), m_cancellable, &unlocked, &locked, &m_error);
    m_unlocked.reset(unlocked);
    m_locked.reset(locked);
    if (!isSearched) return failure();
    m_answered();
    if (*unlocked) return Status::Done;
    return *locked ? Status::Locked : Status::NotFound;
  }

  // Whether it is there and unlocked.
  Status defaultCollection() {
    m_collection.reset(secret_service_read_alias_dbus_path_sync(m_service.get(), SECRET_COLLECTION_DEFAULT,
                                                                m_cancellable, &m_error));
    if (isFailed()) return failure();
    m_answered();
    if (!m_collection) return Status::NoKeyring;
    const Variant answer(g_dbus_connection_call_sync(
        bus(), g_dbus_proxy_get_name(G_DBUS_PROXY(m_service.get())), m_collection.get(),
        "org.freedesktop.DBus.Properties", "Get",
        g_variant_new("(ss)", "org.freedesktop.Secret.Collection", "Locked"), G_VARIANT_TYPE("(v)"),
        G_DBUS_CALL_FLAGS_NONE, -1, m_cancellable, &m_error));
    if (!answer) return failure();
    m_answered();
    GVariant* inner = nullptr;
    g_variant_get(answer.get(), "(v)", &inner);
    const Variant locked(inner);
    const bool isUnlocked =
        g_variant_is_of_type(locked.get(), G_VARIANT_TYPE_BOOLEAN) && !g_variant_get_boolean(locked.get());
    return isUnlocked ? Status::Done : Status::Locked;
  }

  GCancellable* m_cancellable;
  const std::function<void()> m_answered;
  GError* m_error = nullptr;
  Object<SecretService> m_service;
  Text m_collection;
  Paths m_unlocked;
  Paths m_locked;
};

// After a service has died, every call fails until the library has disconnected from it.
template <typename Result>
Result tried(const Watch& watch, const std::function<Result(Attempt&)>& call,
             const std::function<Result(Status)>& failed) {
  for (bool isFirst = true;; isFirst = false) {
    Attempt attempt(watch);
    if (attempt.connect()) {
      Result result = call(attempt);
      if (!attempt.isFailed()) return result;
    }
    const Status status = attempt.failure();
    if (status == Status::Silent) return failed(status);
    secret_service_disconnect();
    if (!isFirst) return failed(status);
  }
}

}  // namespace

void CancellableDeleter::operator()(GCancellable* cancellable) const {
  g_object_unref(cancellable);
}

Cancellable newCancellable() {
  return Cancellable(g_cancellable_new());
}
void cancel(GCancellable* cancellable) {
  g_cancellable_cancel(cancellable);
}

OwnContext::OwnContext() : m_context(g_main_context_new()) {
  g_main_context_push_thread_default(static_cast<GMainContext*>(m_context));
}

OwnContext::~OwnContext() {
  dispatch();
  g_main_context_pop_thread_default(static_cast<GMainContext*>(m_context));
  g_main_context_unref(static_cast<GMainContext*>(m_context));
}

void OwnContext::dispatch() {
  while (g_main_context_iteration(static_cast<GMainContext*>(m_context), FALSE)) continue;
}

Answer read(const Item& item, const Watch& watch) {
  return tried<Answer>(
      watch, [&](Attempt& attempt) { return attempt.read(item); },
      [](Status status) { return Answer{.status = status, .secret = {}}; });
}

Status write(const Item& item, const QByteArray& secret, const Watch& watch) {
  return tried<Status>(
      watch, [&](Attempt& attempt) { return attempt.write(item, secret); }, std::identity());
}

std::optional<Status> remove(const Item& item, const Watch& watch) {
  return tried<std::optional<Status>>(
      watch, [&](Attempt& attempt) { return attempt.remove(item); }, std::identity());
}

void unlock(const QList<Item>& items) {
  OwnContext context;
  Attempt attempt({.cancellable = nullptr, .answered = [] {}});
  if (!attempt.connect()) return;
  QList<QByteArray> paths;
  for (const Item& item : items) {
    const QByteArray path = attempt.lockedPath(item);
    if (!path.isEmpty() && !paths.contains(path)) paths.append(path);
  }
  if (!paths.isEmpty() && !attempt.isFailed()) attempt.unlock(paths);
}

}  // namespace secretservice
