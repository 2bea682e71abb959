#include "tests/kit/Input.h"
#include "tests/world/World.h"

namespace {

QString described(const AccessibleNode& node) {
  QString text = node.role + u' ' + node.name;
  if (!node.description.isEmpty()) text += QStringLiteral(" (%1)").arg(node.description);
  if (!node.labels.isEmpty()) text += QStringLiteral(" of %1").arg(node.labels.join(", "));
  return text;
}

using WorldReader = WorldTest;

TEST_F(WorldReader, EveryPaneIsReadInTheOrderOfTheEye) {
  const struct {
    World::User user;
    const char* pane;
    QStringList read;
  } cases[] = {
      {World::User::SignedIn, "General", {}},       {World::User::SignedIn, "Account", {}},
      {World::User::SignedIn, "Meetings", {}},      {World::User::SignedIn, "Notifications", {}},
      {World::User::SignedIn, "Video devices", {}}, {World::User::Guest, "General", {}},
      {World::User::Guest, "Account", {}},          {World::User::Guest, "Meetings", {}},
      {World::User::Guest, "Notifications", {}},    {World::User::Guest, "Video devices", {}},
  };
  std::optional<World> world;
  std::optional<ScreenReader> reader;
  for (const auto& each : cases) {
    SCOPED_TRACE(each.pane);
    if (each.pane == std::string("General")) {
      reader.reset();
      world.emplace(each.user);
      reader.emplace(world->desktop.sessionBus());
      world->session.play(
          {R"({"personalRoom":{"join":"https://meet.brenn.example/ada","sip":"ada@meet.brenn.example"}})",
           kShow});
    }
    world->showPane(each.pane);
    QStringList read;
    QStringList names;
    for (const AccessibleNode& node : reader->window("Preferences").allShowing()) {
      if (!node.name.isEmpty() || node.isFocusable) read.append(described(node));
      if (!node.isFocusable) continue;
      EXPECT_FALSE(node.name.isEmpty()) << read.last().toStdString();
      EXPECT_NE(node.name.toStdString(), node.description.toStdString());
      EXPECT_FALSE(names.contains(node.name)) << node.name.toStdString();
      names.append(node.name);
    }
    EXPECT_EQ(read, each.read) << read.join("\n").toStdString();
  }
}

}  // namespace
