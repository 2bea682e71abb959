#include <QDir>

#include "tests/kit/Input.h"
#include "tests/world/World.h"

namespace {

using WorldWayland = WorldTest;

TEST_F(WorldWayland, AWindowOfFixedSizeOutlivesMaximise) {
  Desktop desktop({.manager = Desktop::Manager::None});
  XServer server(desktop.display());
  QFile configuration(desktop.folder() + "/weston.ini");
  ASSERT_TRUE(configuration.open(QIODevice::WriteOnly));
  configuration.write("[core]\nidle-time=0\n[shell]\npanel-position=none\n");
  configuration.close();
  desktop.start("weston", {"--backend=x11-backend.so", "--use-pixman", "--socket=wayland-world",
                           "--config=" + configuration.fileName(), "--width=1000", "--height=700"});
  ASSERT_TRUE(kit::waitUntil([&] {
    return QDir(desktop.folder()).exists("wayland-world.lock") && !server.takeChanges().isEmpty();
  }));

  QProcessEnvironment environment = desktop.environment("wayland");
  environment.insert("WAYLAND_DISPLAY", "wayland-world");
  LiveSession session(environment);
  for (const char* pane : {"Account", "Meetings", "General"}) {
    session.play({R"({"command":2})", QStringLiteral(R"({"pane":"%1"})").arg(pane)});
    server.press('m', {key::kSuper, key::kShift});
    EXPECT_EQ(session.play({R"({"wait":300})", R"({"click":"m_startCheckingBtn"})"}).size(), 1);
  }
  EXPECT_EQ(session.end(), 0);
}

}  // namespace
