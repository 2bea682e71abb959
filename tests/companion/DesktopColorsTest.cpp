#include "companion/app/DesktopColors.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QGuiApplication>
#include <QProcess>
#include <QTest>

namespace {

using Settings = QMap<QString, QVariantMap>;

const QString kPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString kInterface = QStringLiteral("org.freedesktop.portal.Settings");
const QString kGroup = QStringLiteral("org.freedesktop.appearance");

class FakePortal final : public QDBusVirtualObject {
 public:
  explicit FakePortal(const QVariantMap& settings) : m_settings(settings) {}
  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
    isAsked = true;
    const Settings all = {{kGroup, m_settings}};
    if (!m_settings.isEmpty()) bus.send(call.createReply(QVariant::fromValue(all)));
    return true;
  }

  bool isAsked = false;

 private:
  QVariantMap m_settings;
};

// A bus of its own, a portal on it, and one that follows the portal.
class DesktopColorsTest : public testing::Test {
 protected:
  void SetUp() override {
    qDBusRegisterMetaType<Settings>();
    daemon.start("dbus-daemon", {"--session", "--nofork", "--print-address"});
    ASSERT_TRUE(daemon.waitForReadyRead());
    const QString address = QString::fromUtf8(daemon.readLine()).trimmed();
    QDBusConnection::connectToBus(address, "portal");
    QDBusConnection::connectToBus(address, "companion");
    ASSERT_TRUE(portalBus().registerService("org.freedesktop.portal.Desktop"));
  }

  void TearDown() override {
    QDBusConnection::disconnectFromBus("companion");
    QDBusConnection::disconnectFromBus("portal");
    daemon.terminate();
    daemon.waitForFinished();
  }

  static QDBusConnection portalBus() { return QDBusConnection("portal"); }

  void follow(FakePortal* portal) {
    ASSERT_TRUE(portalBus().registerVirtualObject(kPath, portal));
    colors.follow(QDBusConnection("companion"));
    ASSERT_TRUE(QTest::qWaitFor([portal] { return portal->isAsked; }));
  }

  static void change(const QString& group, const QString& key, const QVariant& value) {
    QDBusMessage signal = QDBusMessage::createSignal(kPath, kInterface, "SettingChanged");
    signal << group << key << QVariant::fromValue(QDBusVariant(value));
    portalBus().send(signal);
  }

  bool becomes(LookScheme scheme) {
    return QTest::qWaitFor([&] { return colors.scheme() == scheme; });
  }

  QProcess daemon;
  DesktopColors colors;  // the palette of the tests is light
};

TEST_F(DesktopColorsTest, FollowsThePortalAtTheStartAndLive) {
  FakePortal portal({{"color-scheme", 1U}, {"contrast", 0U}, {"accent-color", "blue"}});
  follow(&portal);
  EXPECT_TRUE(becomes(LookScheme::Dark));
  const struct {
    const char* key;
    QVariant value;
    LookScheme scheme;
  } rows[] = {{"contrast", 1U, LookScheme::HighContrastDark},
              {"color-scheme", 2U, LookScheme::HighContrastLight},
              {"contrast", 0U, LookScheme::Light},
              {"color-scheme", 1U, LookScheme::Dark},
              // No preference, and what is no number: the theme's.
              {"color-scheme", 0U, LookScheme::Light},
              {"color-scheme", 1U, LookScheme::Dark},
              {"color-scheme", "dark", LookScheme::Light}};
  for (const auto& row : rows) {
    change("org.example.other", row.key, 1U);
    change(kGroup, row.key, row.value);
    EXPECT_TRUE(becomes(row.scheme)) << row.key << ' ' << row.value.toString().toStdString();
  }
}

TEST_F(DesktopColorsTest, APortalThatDoesNotAnswerIsHeardLater) {
  FakePortal silent({});
  follow(&silent);
  EXPECT_EQ(colors.scheme(), LookScheme::Light);
  change(kGroup, "color-scheme", 1U);
  EXPECT_TRUE(becomes(LookScheme::Dark));
}

}  // namespace
