#include "tests/world/ScreenReader.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusReply>

#include "tests/kit/Input.h"

namespace {

const QString kRoot = QStringLiteral("/org/a11y/atspi/accessible/root");
const QString kRegistry = QStringLiteral("org.a11y.atspi.Registry");
const QString kAccessible = QStringLiteral("org.a11y.atspi.Accessible");
const QString kEvents = QStringLiteral("org.a11y.atspi.Event.Object");

constexpr uint kLabelledBy = 2;
constexpr int kFocusable = 11;
constexpr int kShowing = 25;

// Numbers are the same for every toolkit, names are not.
QString roleName(uint number) {
  static const QHash<uint, QString> names = {
      {7, "check box"},     {11, "combo box"}, {16, "dialog"},  {20, "filler"},       {23, "frame"},
      {29, "label"},        {31, "list"},      {32, "item"},    {37, "page tab"},     {38, "page tab list"},
      {39, "panel"},        {40, "password"},  {43, "button"},  {44, "radio button"}, {61, "text"},
      {63, "tool bar"},     {79, "entry"},     {83, "heading"}, {88, "link"},         {98, "group"},
      {101, "notification"}};
  return names.value(number, QString::number(number));
}

// A list of objects of the bus: a(so).
QList<QPair<QString, QString>> objects(const QVariant& value) {
  QList<QPair<QString, QString>> found;
  const auto list = value.value<QDBusArgument>();
  list.beginArray();
  while (!list.atEnd()) {
    QString service;
    QDBusObjectPath path;
    list.beginStructure();
    list >> service >> path;
    list.endStructure();
    found.append({service, path.path()});
  }
  list.endArray();
  return found;
}

}  // namespace

QList<AccessibleNode> AccessibleNode::allShowing() const {
  QList<AccessibleNode> all;
  if (!isShowing) return all;
  all.append(*this);
  for (const AccessibleNode& child : children) all.append(child.allShowing());
  return all;
}

ScreenReader::ScreenReader(const QString& sessionBus) : m_bus(QString()) {
  const QString session = QStringLiteral("session %1").arg(sessionBus);
  QDBusConnection sessionConnection = QDBusConnection::connectToBus(sessionBus, session);
  QString address;
  EXPECT_TRUE(kit::waitUntil([&] {
    const auto ask =
        QDBusMessage::createMethodCall("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress");
    address = QDBusReply<QString>(sessionConnection.call(ask)).value();
    return !address.isEmpty();
  }));
  m_bus = QDBusConnection::connectToBus(address, "accessibility");
  m_bus.connect({}, {}, kEvents, "StateChanged", this, SLOT(stateChanged(QDBusMessage)));
  m_bus.connect({}, {}, kEvents, "Announcement", this, SLOT(announcement(QDBusMessage)));
  m_bus.connect({}, {}, kEvents, "TextChanged", this, SLOT(textChanged(QDBusMessage)));
  call(kRegistry, "/org/a11y/atspi/registry", kRegistry, "RegisterEvent", {"object:"});
  QDBusConnection::disconnectFromBus(session);
}

ScreenReader::~ScreenReader() {
  QDBusConnection::disconnectFromBus("accessibility");
}

QVariantList ScreenReader::call(const QString& service, const QString& path, const QString& interface,
                                const QString& method, const QVariantList& arguments) {
  QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
  message.setArguments(arguments);
  return m_bus.call(message).arguments();
}

QVariant ScreenReader::property(const QString& service, const QString& path, const char* name) {
  const QVariantList answer =
      call(service, path, "org.freedesktop.DBus.Properties", "Get", {kAccessible, QLatin1String(name)});
  return answer.value(0).value<QDBusVariant>().variant();
}

QString ScreenReader::role(const QString& service, const QString& path) {
  return roleName(call(service, path, kAccessible, "GetRole").value(0).toUInt());
}

AccessibleNode ScreenReader::node(const QString& service, const QString& path) {
  const auto states = qdbus_cast<QList<uint>>(call(service, path, kAccessible, "GetState").value(0));
  const auto has = [&states](int state) { return states.value(state / 32) >> (state % 32) & 1U; };
  AccessibleNode node{.role = role(service, path),
                      .name = property(service, path, "Name").toString(),
                      .description = property(service, path, "Description").toString(),
                      .isShowing = has(kShowing) != 0,
                      .isFocusable = has(kFocusable) != 0};
  const QVariant relations = call(service, path, kAccessible, "GetRelationSet").value(0);
  const auto list = relations.value<QDBusArgument>();
  list.beginArray();
  while (!list.atEnd()) {
    uint kind = 0;
    list.beginStructure();
    list >> kind;
    list.beginArray();
    while (!list.atEnd()) {
      QString target;
      QDBusObjectPath targetPath;
      list.beginStructure();
      list >> target >> targetPath;
      list.endStructure();
      if (kind == kLabelledBy) node.labels.append(property(target, targetPath.path(), "Name").toString());
    }
    list.endArray();
    list.endStructure();
  }
  list.endArray();
  for (const auto& [childService, childPath] :
       objects(call(service, path, kAccessible, "GetChildren").value(0)))
    node.children.append(this->node(childService, childPath));
  return node;
}

AccessibleNode ScreenReader::window(const QString& title) {
  for (const auto& [app, root] : objects(call(kRegistry, kRoot, kAccessible, "GetChildren").value(0)))
    for (const auto& [service, path] : objects(call(app, root, kAccessible, "GetChildren").value(0)))
      if (property(service, path, "Name") == title) return node(service, path);
  return {};
}

void ScreenReader::settle() {
  // The application answers after the events that it sent before.
  for (const auto& [app, root] : objects(call(kRegistry, kRoot, kAccessible, "GetChildren").value(0)))
    role(app, root);
  kit::settle();
}

QString ScreenReader::focused() {
  settle();
  return m_focused;
}

bool ScreenReader::expectFocus(const QString& roleAndName) {
  const bool isFocused = kit::waitUntil([&] { return focused() == roleAndName; });
  EXPECT_TRUE(isFocused) << m_focused.toStdString() << " instead of " << roleAndName.toStdString();
  return isFocused;
}

QStringList ScreenReader::announced() {
  settle();
  return m_announced;
}

QStringList ScreenReader::texts() {
  settle();
  return m_texts;
}

void ScreenReader::forget() {
  settle();
  m_announced.clear();
  m_texts.clear();
}

void ScreenReader::stateChanged(const QDBusMessage& event) {
  const QString state = event.arguments().value(0).toString();
  const bool isOn = event.arguments().value(1).toInt() != 0;
  if (!isOn || (state != "focused" && state != "showing")) return;
  const QString what = role(event.service(), event.path());
  if (state == "showing" && what != "notification") return;
  const QString name = property(event.service(), event.path(), "Name").toString();
  if (state == "focused")
    m_focused = what + u' ' + name;
  else
    m_announced.append(name);
}

void ScreenReader::announcement(const QDBusMessage& event) {
  m_announced.append(event.arguments().value(3).value<QDBusVariant>().variant().toString());
}

void ScreenReader::textChanged(const QDBusMessage& event) {
  m_texts.append(event.arguments().value(3).value<QDBusVariant>().variant().toString());
}
