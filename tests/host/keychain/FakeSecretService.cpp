// An empty Secret Service with one fault, named by the first argument:
//   silent  never answers
//   locked  its default collection is locked
//   absent  it has no default collection
//   slow    answers each call long after the deadline
//   dies    ends in the middle of a call
// It prints "ready" once it owns the name, and "prompt" when a call would prompt the user.

#include <gio/gio.h>
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <string_view>

namespace {

constexpr unsigned long kSlowMicroseconds = 700000;

struct Fake {
  std::string_view fault;
};

void say(const char* line) {
  std::puts(line);
  std::fflush(stdout);
}

GVariant* answerTo(const Fake& fake, std::string_view member) {
  if (member == "ReadAlias") {
    if (fake.fault == "dies") _exit(1);
    return g_variant_new("(o)", fake.fault == "absent" ? "/" : "/org/freedesktop/secrets/collection/login");
  }
  if (member == "Get") return g_variant_new("(v)", g_variant_new_boolean(fake.fault == "locked"));
  if (member == "GetAll") return g_variant_new("(a{sv})", nullptr);
  if (member == "OpenSession") {
    return g_variant_new("(vo)", g_variant_new_string(""), "/org/freedesktop/secrets/session/1");
  }
  if (member == "SearchItems") return g_variant_new("(aoao)", nullptr, nullptr);
  return nullptr;
}

// Only the plain session is supported; the library then asks again without encryption.
bool isEncryptedSession(GDBusMessage* message, std::string_view member) {
  if (member != "OpenSession") return false;
  const gchar* algorithm = nullptr;
  GVariant* input = nullptr;
  g_variant_get(g_dbus_message_get_body(message), "(&sv)", &algorithm, &input);
  g_variant_unref(input);
  return std::strcmp(algorithm, "plain") != 0;
}

GDBusMessage* replyTo(const Fake& fake, GDBusMessage* message, std::string_view member) {
  if (isEncryptedSession(message, member)) {
    return g_dbus_message_new_method_error(message, "org.freedesktop.DBus.Error.NotSupported", "plain only");
  }
  GVariant* answer = answerTo(fake, member);
  if (!answer) {
    return g_dbus_message_new_method_error(message, "org.freedesktop.DBus.Error.UnknownMethod", "not here");
  }
  GDBusMessage* reply = g_dbus_message_new_method_reply(message);
  g_dbus_message_set_body(reply, answer);
  return reply;
}

GDBusMessage* onMessage(GDBusConnection* bus, GDBusMessage* message, gboolean isIncoming, gpointer data) {
  const Fake& fake = *static_cast<Fake*>(data);
  if (!isIncoming || g_dbus_message_get_message_type(message) != G_DBUS_MESSAGE_TYPE_METHOD_CALL)
    return message;
  const std::string_view member = g_dbus_message_get_member(message);
  if (member == "Unlock" || member == "Prompt" || member == "CreateCollection") say("prompt");
  if (fake.fault == "slow") g_usleep(kSlowMicroseconds);
  if (fake.fault != "silent") {
    GDBusMessage* reply = replyTo(fake, message, member);
    g_dbus_connection_send_message(bus, reply, G_DBUS_SEND_MESSAGE_FLAGS_NONE, nullptr, nullptr);
    g_object_unref(reply);
  }
  g_object_unref(message);
  return nullptr;
}

void onBus(GDBusConnection* bus, const gchar*, gpointer data) {
  g_dbus_connection_add_filter(bus, onMessage, data, nullptr);
}

void onName(GDBusConnection*, const gchar*, gpointer) {
  say("ready");
}
void onNoName(GDBusConnection*, const gchar*, gpointer) {
  _exit(2);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  Fake fake = {.fault = argv[1]};
  g_bus_own_name(G_BUS_TYPE_SESSION, "org.freedesktop.secrets", G_BUS_NAME_OWNER_FLAGS_NONE, onBus, onName,
                 onNoName, &fake, nullptr);
  g_main_loop_run(g_main_loop_new(nullptr, FALSE));
}
