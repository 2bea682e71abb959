#include <QPixmap>

#include "companion/runtime/PreferencesWindow.h"
#include "companion/session/EventPump.h"
#include "companion/session/Steps.h"
#include "platform/Text.h"
#include "platform/WindowController.h"

namespace {

constexpr qint64 kLongestWaitMs = 24LL * 3600 * 1000;
constexpr double kLargestFont = 1000;

FontRole fontRoleNamed(const QString& name) {
  if (name == "label") return FontRole::Label;
  return name == "bold" ? FontRole::BoldSystem : FontRole::System;
}

}  // namespace

StepResult steps::wait(Step& step, StepContext& context) {
  const std::chrono::milliseconds time(step.integer("wait", 0, kLongestWaitMs));
  if (!step.isGood()) return step.result();
  context.waitedMs += time.count();
  eventpump::run(time);
  return {};
}

StepResult steps::echo(Step& step, StepContext&) {
  return {{{"echo", step.raw("echo")}}};
}

StepResult steps::measure(Step& step, StepContext&) {
  const QString measured = step.text("measure");
  const QString text = measured == "text" && step.has("text") ? step.text("text") : measured;
  const QString font = step.choice("font", {"default", "label", "system", "bold"});
  const double size = font != "default" && step.has("size") ? step.number("size") : systemFontSize;
  if (size < 1 || size > kLargestFont) step.fail(QStringLiteral("\"size\" is out of range"));
  if (!step.isGood()) return step.result();
  const Size result = sizeOfText(text, fontRoleNamed(font), size);
  return StepResult::answer(QJsonObject{{"width", result.width}, {"height", result.height}});
}

StepResult steps::screenshot(Step& step, StepContext&) {
  const QString path = step.text("screenshot");
  Window* window = findPreferencesWindow();
  if (!step.isGood()) return step.result();
  if (!window) return StepResult::refused(QStringLiteral("no window is open"));
  if (window->grab().save(path, "PNG")) return {};
  return StepResult::failed(QStringLiteral("cannot write %1").arg(path));
}
