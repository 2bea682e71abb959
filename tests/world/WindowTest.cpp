#include <QRect>
#include <QSet>
#include <ostream>

#include "tests/kit/Input.h"
#include "tests/world/World.h"

// GoogleTest prints what differs.
void PrintTo(const QRect& rect, std::ostream* out) {
  *out << rect.x() << ',' << rect.y() << ' ' << rect.width() << 'x' << rect.height();
}

namespace {

const QString kShowAccount =
    QStringLiteral(R"({"command":2,"content":{"kOpenPrefsViewType":"kPrefsAccountView"}})");
const QString kShowOutlook = QStringLiteral(
    R"({"command":17,"content":{"kKZCalendarIntegrationSource":"kKZCalendarIntegrationSourceOutlook"}})");
const QString kSwitch = QStringLiteral(R"({"pane":"Notifications"})");

// While it is on the screen its height may change, nothing else.
void expectStill(const QList<QRect>& frames, const QRect& place) {
  for (const QRect& frame : frames) {
    ASSERT_EQ(QRect(frame.topLeft(), QSize(frame.width(), place.height())), place);
  }
}

using WorldWindow = WorldTest;

TEST_F(WorldWindow, OpensInPlaceWithThePaneThatWasAskedFor) {
  using Manager = Desktop::Manager;
  const struct {
    const char* name;
    Manager manager;
    QStringList steps;
    bool mayFade;
  } cases[] = {
      {"General", Manager::Openbox, {kShow}, false},
      {"Account", Manager::Openbox, {kShowAccount}, false},
      {"Meetings, for a calendar", Manager::Openbox, {kShowOutlook}, false},
      {"Account, and switched at once", Manager::Openbox, {kShowAccount, kSwitch}, true},
      {"no window manager", Manager::None, {kShowAccount}, false},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.name);
    World world(World::User::SignedIn, {.screen = {1366, 900}, .manager = each.manager});
    world.show(each.steps);
    const QList<QRect> frames = world.server.takeFrames();
    ASSERT_FALSE(frames.isEmpty());
    expectStill(frames, frames.first());
    // Mapped for the first pane, it may be resized once before anything is painted, but not step by step.
    QSet<int> heights;
    for (const QRect& frame : frames) heights.insert(frame.height());
    EXPECT_TRUE(each.mayFade || heights.size() <= 2) << heights.size() << " heights";
  }
}

TEST_F(WorldWindow, StaysOnTheScreenWithEveryPane) {
  const struct {
    QSize screen;
    Desktop::Manager manager;
    bool isMoved;  // upwards, for the highest pane
  } cases[] = {
      {{1366, 900}, Desktop::Manager::Openbox, false},
      {{1024, 600}, Desktop::Manager::Openbox, true},
      {{800, 480}, Desktop::Manager::Openbox, true},
      {{640, 400}, Desktop::Manager::None, true},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(testing::PrintToString(QRect({}, each.screen)));
    World world(World::User::SignedIn, {.screen = each.screen, .manager = each.manager});
    world.show();
    QRect place = world.server.takeFrames().last();
    for (const char* pane : {"Account", "Meetings", "Notifications", "Video devices"}) {
      SCOPED_TRACE(pane);
      world.showPane(pane);
      const QList<QRect> frames = world.server.takeFrames();
      ASSERT_FALSE(frames.isEmpty());
      EXPECT_TRUE(world.server.screen().contains(frames.last())) << testing::PrintToString(frames.last());
      if (each.isMoved && pane == QLatin1String("Meetings")) {
        EXPECT_LT(frames.last().y(), place.y());
        place.moveTop(frames.last().y());
        continue;
      }
      expectStill(frames, place);
    }
  }
}

}  // namespace
