#include "companion/session/ViewDescription.h"

#include <QAction>
#include <QJsonArray>
#include <QToolBar>
#include <QWidget>
#include <algorithm>

#include "companion/format/ControlFinder.h"
#include "companion/runtime/PreferencesWindow.h"
#include "companion/session/ControlDescription.h"
#include "platform/FrameLayout.h"
#include "platform/KeyView.h"
#include "platform/View.h"
#include "platform/ViewAnimation.h"
#include "platform/WindowController.h"

namespace {

QJsonArray describeFrame(const Frame& frame) {
  return {frame.x, frame.y, frame.width, frame.height};
}

QJsonObject describeDrawnText(const DrawnText& drawn) {
  const QJsonObject font = {{"size", drawn.size}, {"bold", drawn.role == FontRole::BoldSystem}};
  return {{"class", "drawn"},
          {"text", drawn.text},
          {"frame", describeFrame(drawn.frame)},
          {"font", font},
          {"alignment", describeAlignment(drawn.alignment)}};
}

bool takesTab(const QWidget& view) {
  return view.focusPolicy() & Qt::TabFocus;
}

// Where Tab goes from the view; nullptr when it stays.
const QWidget* nextControlOf(const QWidget& view) {
  if (const QWidget* next = nextKeyViewOf(&view)) return next;
  if (!takesTab(view)) return nullptr;
  const QWidget* content = view.window()->findChild<QWidget*>(QStringLiteral("contentSubview"));
  for (const QWidget* next = view.nextInFocusChain(); next != &view; next = next->nextInFocusChain()) {
    const bool isControl = content && content->isAncestorOf(next) && !controlNameOf(*next).isNull();
    if (isControl && takesTab(*next) && next->isEnabled() && next->isVisibleTo(content)) return next;
  }
  return nullptr;
}

QJsonArray describeToolBar(const Window& window) {
  QJsonArray items;
  for (const QAction* item : paneItemsOf(window)) {
    items.append(QJsonObject{{"label", item->text()}, {"enabled", item->isEnabled()}});
  }
  return items;
}

QJsonValue selectedLabelOf(const Window& window) {
  const QList<QAction*> items = paneItemsOf(window);
  const auto selected = std::ranges::find_if(items, &QAction::isChecked);
  return selected == items.end() ? QJsonValue(QJsonValue::Null) : QJsonValue((*selected)->text());
}

QJsonObject describeAnimation(const ViewAnimation* animation) {
  return {{"running", animation && animation->isRunning()},
          {"duration", animation ? animation->duration() : 0.0}};
}

QJsonValue textOrNull(const QString& text) {
  return text.isNull() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

}  // namespace

QJsonObject describeView(const QWidget& view) {
  QJsonObject description = {{"class", QString::fromLatin1(view.metaObject()->className())},
                             {"name", controlNameOf(view)},
                             {"frame", describeFrame(frameOf(&view))},
                             {"hidden", view.isHidden()},
                             {"enabled", view.isEnabled()}};
  describeControl(view, &description);
  if (const QWidget* next = nextControlOf(view)) description.insert("next", controlNameOf(*next));
  QJsonArray children;
  for (const QWidget* child : subviewsOf(&view)) children.append(describeView(*child));
  if (const auto* drawing = qobject_cast<const View*>(&view)) {
    for (const DrawnText& drawn : drawing->drawnTexts()) children.append(describeDrawnText(drawn));
  }
  description.insert("children", children);
  return description;
}

QJsonValue describeWindow(const Window* window) {
  if (!window) return QJsonValue::Null;
  const QWidget* content = contentViewOf(*window);
  return QJsonObject{
      {"controller", QString::fromLatin1(window->controller()->metaObject()->className())},
      {"title", window->windowTitle()},
      {"visible", window->isVisible()},
      {"key", window->isActiveWindow()},
      {"frame", describeFrame(frameOf(window))},
      {"selected", selectedLabelOf(*window)},
      {"toolbar", describeToolBar(*window)},
      {"animation", describeAnimation(animationOf(*window))},
      {"firstResponder", textOrNull(ControlFinder(content).nameOf(window->focusWidget()))},
      {"content", describeView(*content)},
  };
}
