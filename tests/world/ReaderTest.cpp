#include "tests/kit/Input.h"
#include "tests/world/World.h"

namespace {

QString described(const AccessibleNode& node) {
  QString text = node.role + u' ' + node.name;
  if (!node.description.isEmpty()) text += QStringLiteral(" (%1)").arg(node.description);
  if (!node.labels.isEmpty()) text += QStringLiteral(" of %1").arg(node.labels.join(", "));
  return text;
}

const QStringList kTabs = {"frame Preferences",     "page tab list Preferences", "page tab General",
                           "page tab Account",      "page tab Meetings",         "page tab Notifications",
                           "page tab Video devices"};

using WorldReader = WorldTest;

TEST_F(WorldReader, EveryPaneIsReadInTheOrderOfTheEye) {
  const struct {
    World::User user;
    const char* pane;
    QStringList read;
  } cases[] = {
      {World::User::SignedIn,
       "General",
       {"panel General", "check box Start Brenn Mivra Meetings when my computer starts",
        "check box Schedule or start Mivra meetings from Microsoft Outlook"}},
      {World::User::SignedIn,
       "Account",
       {"panel Account", "label Full name:", "label Ada Lovelace of Full name:", "label Mivra site URL:",
        "label meet.brenn.example of Mivra site URL:", "button Change",
        "label Email address:", "label ada@brenn.example of Email address:"}},
      {World::User::SignedIn,
       "Meetings",
       {"panel Meetings", "heading Meetings", "button Edit",
        "label Personal Room:", "label https://meet.brenn.example/ada", "button Copy personal room",
        "label Video address:", "label ada@meet.brenn.example", "button Copy video address",
        "heading Calendar", "label Number of days to show in meetings list:",
        "combo box 7 of Number of days to show in meetings list:", "panel Calendar integration",
        "heading Calendar integration", "radio button Mivra", "radio button Microsoft Outlook",
        "text Email address (Return looks up the account.)", "button Look up account (Email address)"}},
      {World::User::SignedIn,
       "Notifications",
       {"panel Notifications", "check box Meeting notifications",
        "combo box 15 of minutes before scheduled start time.",
        "label minutes before scheduled start time."}},
      {World::User::SignedIn,
       "Video devices",
       {"panel Video devices", "check box Automatically discover nearby devices"}},
      {World::User::Guest,
       "General",
       {"panel General", "check box Start Brenn Mivra Meetings when my computer starts"}},
      {World::User::Guest,
       "Account",
       {"panel Account", "heading Account", "button Edit",
        "label Your name:", "label Your name: of Your name:", "label Your email address:",
        "label Your email address: of Your email address:"}},
      {World::User::Guest,
       "Meetings",
       {"panel Meetings", "heading Calendar", "label Number of days to show in meetings list:",
        "combo box 7 of Number of days to show in meetings list:", "panel Calendar integration",
        "heading Calendar integration", "radio button Microsoft Outlook",
        "text Email address (Return looks up the account.)", "button Look up account (Email address)"}},
  };
  std::optional<World> world;
  std::optional<ScreenReader> reader;
  for (const auto& each : cases) {
    SCOPED_TRACE(each.pane);
    if (each.pane == std::string("General")) {
      reader.reset();
      world.emplace(each.user);
      reader.emplace(world->desktop.sessionBus());
      world->show();
    }
    world->showPane(each.pane);
    QStringList read;
    QStringList names;
    for (const AccessibleNode& node : reader->window("Preferences").allShowing()) {
      if (!node.name.isEmpty() || node.isFocusable) read.append(described(node));
      if (!node.isFocusable) continue;
      EXPECT_FALSE(node.name.isEmpty());
      EXPECT_FALSE(names.contains(node.name)) << "named twice: " << node.name.toStdString();
      names.append(node.name);
    }
    EXPECT_EQ(read.mid(0, kTabs.size()), kTabs);
    EXPECT_EQ(read.mid(kTabs.size()).join("\n").toStdString(), each.read.join("\n").toStdString());
  }
}

}  // namespace
